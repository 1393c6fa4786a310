#pragma once
// Helpers of the run-time tests.

#include <gtest/gtest.h>

#include "tests/services/controls/error_number.h"

// Expects the statement to fail with a RuntimeError of the given number.
#define EXPECT_RUNTIME_ERROR(statement, expected) \
  EXPECT_EQ(::qb::test::errorNumber([&] { (void)(statement); }), expected) << #statement
