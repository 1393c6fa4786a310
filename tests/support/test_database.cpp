#include "tests/support/test_database.h"

#include <sqlite3.h>

#include <stdexcept>

#include "services/host/module_state.h"
#include "services/store/schema.h"

namespace qb::test {

TestDatabase::TestDatabase(bool installAsModuleState)
    : path_(folder_.file("client.db")),
      store_(std::make_shared<SqliteDatabase>()),
      errors_(std::make_shared<RecordingErrorObject>()),
      locale_(std::make_shared<FixedLocale>()) {
  SqliteDatabase::Options options;
  options.create = true;
  store_->open(path_, options);
  store_->executeScript(schemaSql());
  if (installAsModuleState) {
    resetModuleState();
    moduleState().databaseReference = store_;
    moduleState().errorClass = errors_;
    moduleState().localeReference = locale_;
  }
}

TestDatabase::~TestDatabase() {
  if (moduleState().databaseReference == store_) resetModuleState();
}

void TestDatabase::exec(const std::string& sql) { store_->executeScript(sql); }

std::string TestDatabase::scalar(const std::string& sql) {
  sqlite3* db = nullptr;
  if (sqlite3_open_v2(path_.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
    sqlite3_close(db);
    throw std::runtime_error("can't open " + path_);
  }
  sqlite3_busy_timeout(db, 5000);
  sqlite3_stmt* stmt = nullptr;
  std::string result;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
    std::string message = sqlite3_errmsg(db);
    sqlite3_close(db);
    throw std::runtime_error(message);
  }
  if (sqlite3_step(stmt) == SQLITE_ROW && sqlite3_column_type(stmt, 0) != SQLITE_NULL) {
    result = reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0));
  }
  sqlite3_finalize(stmt);
  sqlite3_close(db);
  return result;
}

}  // namespace qb::test
