#pragma once
// The run-time error number an action fails with, 0 when it succeeds.

#include <functional>

#include "services/errors/runtime_error.h"

namespace qb::test {

inline int32_t errorNumber(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

}  // namespace qb::test
