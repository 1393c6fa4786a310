#pragma once
// A fresh client database whose store is reached through a SpyStore, with
// the module's settings back at 0.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "data/mod_database_functions.h"
#include "services/host/module_state.h"
#include "tests/data/spy_store.h"
#include "tests/support/test_database.h"

namespace qb::test {

class DataTest : public ::testing::Test {
 protected:
  DataTest() : spy(std::make_shared<SpyStore>(db.storePtr())) {
    moduleState().databaseReference = spy;
    modDatabaseFunctions::resetSettings();
  }
  ~DataTest() override {
    modDatabaseFunctions::resetSettings();
    resetModuleState();
  }

  // The innermost trace name of every recorded failure, in order.
  std::vector<std::string> failedTraces() {
    std::vector<std::string> names;
    for (const auto& failure : db.errors().failures) {
      names.push_back(failure.stack.empty() ? "" : failure.stack.back());
    }
    return names;
  }

  TestDatabase db;
  std::shared_ptr<SpyStore> spy;
};

}  // namespace qb::test
