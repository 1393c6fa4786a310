#pragma once
// The category and document library's access to its service objects and its
// way with recordsets over DocCategories and Documents: SQL as constant text,
// the key in decimal and ";"; reads with lock 1, writes through writable
// recordsets; a column that can be Null is tested blank before it is
// converted.

#include <cstdint>
#include <string>

#include "services/store/database_reference.h"

namespace qb {

class LocaleReference;
class WorkingFolderReference;

namespace quillboxLibrary {

// The store kept by docQuillboxReferencesClass, else the module's. Fails
// with err::kObjectRequired when there is none.
DatabaseReference& database();
// The locale kept by docQuillboxReferencesClass, else the module's; null
// when there is none.
LocaleReference* locale();
// The working folder kept by docQuillboxReferencesClass, else the module's;
// null when there is none.
WorkingFolderReference* workingFolder();

// "<text><key>;": a statement on one key, as the store's texts are built.
std::string keyedSql(const std::string& text, int32_t key);
// A key as the text a write takes: decimal, or "" (stored as Null) for a
// negative key, which means none.
std::string keyText(int32_t key);
// A date serial as the text a write takes: "yyyy-mm-dd hh:nn:ss".
std::string dateText(double serial);

// Field reads of the current row. A key column gives -1 when blank, a number
// column 0, a text column "" for Null, a date column a Date Variant or Null.
int32_t readId(DatabaseReference& db, RecordsetHandle handle, const char* field);
int32_t readNumber(DatabaseReference& db, RecordsetHandle handle, const char* field);
std::string readText(DatabaseReference& db, RecordsetHandle handle, const char* field);
Variant readDate(DatabaseReference& db, RecordsetHandle handle, const char* field);

// An open recordset, closed when it goes out of scope (also on a failure).
class Recordset {
 public:
  Recordset(DatabaseReference& db, const std::string& sql, int32_t lockType);
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  RecordsetHandle handle() const { return handle_; }
  bool moveFirst() { return db_.moveFirstRecord(handle_); }
  bool moveNext() { return db_.moveNextRecord(handle_); }
  bool isEnd() { return db_.isEndOfRecordset(handle_); }
  int32_t id(const char* field) { return readId(db_, handle_, field); }
  std::string text(const char* field) { return readText(db_, handle_, field); }
  void update(const char* field, const std::string& value) {
    db_.updateFieldValue(handle_, field, value, false, false);
  }
  void set(const char* field, const std::string& value) {
    db_.setFieldValue(handle_, field, value);
  }
  // Closes now; the destructor then does nothing.
  void close();

 private:
  DatabaseReference& db_;
  RecordsetHandle handle_;
  bool open_ = true;
};

}  // namespace quillboxLibrary
}  // namespace qb
