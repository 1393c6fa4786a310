#pragma once
// A store for tests that passes every call on to a real store and counts
// them. It can pretend to be disconnected, or make every open fail as a
// missing table does.

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "services/errors/runtime_error.h"
#include "services/store/database_reference.h"

namespace qb::test {

class SpyStore : public DatabaseReference {
 public:
  explicit SpyStore(std::shared_ptr<DatabaseReference> inner) : inner_(std::move(inner)) {}

  bool connected = true;
  bool failOpen = false;
  int calls = 0;              // every call but isConnected
  int open = 0;               // recordsets open now
  int mostOpenTogether = 0;
  std::vector<std::string> sql;  // every SQL text opened, in order

  bool isConnected() override { return connected; }
  RecordsetHandle openRecordset(const std::string& sqlText, int32_t cursorType, int32_t lockType,
                                bool flagOne, const std::string& note, bool flagTwo) override {
    count();
    sql.push_back(sqlText);
    if (failOpen) throw RuntimeError(err::kStoreError, "no such table");
    RecordsetHandle handle =
        inner_->openRecordset(sqlText, cursorType, lockType, flagOne, note, flagTwo);
    mostOpenTogether = std::max(mostOpenTogether, ++open);
    return handle;
  }
  void closeRecordset(RecordsetHandle h) override {
    count();
    inner_->closeRecordset(h);
    --open;
  }
  bool isRecordsetOpen(RecordsetHandle h) override { return count(), inner_->isRecordsetOpen(h); }
  bool isRecordsetEmpty(RecordsetHandle h) override { return count(), inner_->isRecordsetEmpty(h); }
  int32_t getRecordCount(RecordsetHandle h) override { return count(), inner_->getRecordCount(h); }
  bool moveFirstRecord(RecordsetHandle h) override { return count(), inner_->moveFirstRecord(h); }
  bool moveNextRecord(RecordsetHandle h) override { return count(), inner_->moveNextRecord(h); }
  bool isEndOfRecordset(RecordsetHandle h) override { return count(), inner_->isEndOfRecordset(h); }
  int16_t getRecordPosition(RecordsetHandle h) override {
    return count(), inner_->getRecordPosition(h);
  }
  bool setRecordPosition(RecordsetHandle h, int16_t p) override {
    return count(), inner_->setRecordPosition(h, p);
  }
  Variant getFieldValue(RecordsetHandle h, const Variant& f) override {
    return count(), inner_->getFieldValue(h, f);
  }
  bool updateFieldValue(RecordsetHandle h, const std::string& f, const std::string& v, bool a,
                        bool b) override {
    return count(), inner_->updateFieldValue(h, f, v, a, b);
  }
  bool addNewRecord(RecordsetHandle h) override { return count(), inner_->addNewRecord(h); }
  bool setFieldValue(RecordsetHandle h, const std::string& f, const std::string& v) override {
    return count(), inner_->setFieldValue(h, f, v);
  }
  bool updateRecord(RecordsetHandle h) override { return count(), inner_->updateRecord(h); }
  bool findRecord(RecordsetHandle h, const std::string& f, const std::string& v,
                  const std::string& a, const std::string& b, const std::string& c,
                  const std::string& d) override {
    return count(), inner_->findRecord(h, f, v, a, b, c, d);
  }

 private:
  void count() { ++calls; }
  std::shared_ptr<DatabaseReference> inner_;
};

}  // namespace qb::test
