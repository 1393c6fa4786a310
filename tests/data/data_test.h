#pragma once
// The data layer's test support: a store that passes every call on to the
// real one and counts them (it can pretend to be disconnected, or make every
// open fail as a missing table does), and a fixture with a fresh client
// database reached through it and the module's settings back at 0.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "data/mod_database_functions.h"
#include "services/errors/runtime_error.h"
#include "services/host/module_state.h"
#include "services/store/database_reference.h"
#include "tests/support/test_database.h"

namespace qb::test {

class SpyStore : public DatabaseReference {
 public:
  using H = RecordsetHandle;
  using S = std::string;
  explicit SpyStore(std::shared_ptr<DatabaseReference> inner) : in_(std::move(inner)) {}

  bool connected = true;
  bool failOpen = false;
  int calls = 0;  // every call but isConnected
  int open = 0;   // recordsets open now
  int mostOpenTogether = 0;
  std::vector<S> sql;  // every SQL text opened, in order

  bool isConnected() override { return connected; }
  H openRecordset(const S& text, int32_t cursor, int32_t lock, bool a, const S& n,
                  bool b) override {
    ++calls;
    sql.push_back(text);
    if (failOpen) throw RuntimeError(err::kStoreError, "no such table");
    H handle = in_->openRecordset(text, cursor, lock, a, n, b);
    mostOpenTogether = std::max(mostOpenTogether, ++open);
    return handle;
  }
  void closeRecordset(H h) override { ++calls, in_->closeRecordset(h), --open; }
  bool isRecordsetOpen(H h) override { return ++calls, in_->isRecordsetOpen(h); }
  bool isRecordsetEmpty(H h) override { return ++calls, in_->isRecordsetEmpty(h); }
  int32_t getRecordCount(H h) override { return ++calls, in_->getRecordCount(h); }
  bool moveFirstRecord(H h) override { return ++calls, in_->moveFirstRecord(h); }
  bool moveNextRecord(H h) override { return ++calls, in_->moveNextRecord(h); }
  bool isEndOfRecordset(H h) override { return ++calls, in_->isEndOfRecordset(h); }
  int16_t getRecordPosition(H h) override { return ++calls, in_->getRecordPosition(h); }
  bool setRecordPosition(H h, int16_t p) override { return ++calls, in_->setRecordPosition(h, p); }
  Variant getFieldValue(H h, const Variant& f) override {
    return ++calls, in_->getFieldValue(h, f);
  }
  bool updateFieldValue(H h, const S& f, const S& v, bool a, bool b) override {
    return ++calls, in_->updateFieldValue(h, f, v, a, b);
  }
  bool addNewRecord(H h) override { return ++calls, in_->addNewRecord(h); }
  bool setFieldValue(H h, const S& f, const S& v) override {
    return ++calls, in_->setFieldValue(h, f, v);
  }
  bool updateRecord(H h) override { return ++calls, in_->updateRecord(h); }
  bool findRecord(H h, const S& f, const S& v, const S& a, const S& b, const S& c,
                  const S& d) override {
    return ++calls, in_->findRecord(h, f, v, a, b, c, d);
  }

 private:
  std::shared_ptr<DatabaseReference> in_;
};

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
