#pragma once
// A fresh database file with the whole schema, in its own temporary folder,
// made the store of this thread's module state for the test's duration
// together with a recording error object and a fixed locale.
//
//   TestDatabase db;
//   db.exec("INSERT INTO Companies (CompanyID, CompanyName) VALUES (1, 'Acme');");
//   EXPECT_EQ(modDatabaseFunctions::getCompanyNameFromCompanyID(1), "Acme");

#include <memory>
#include <string>

#include "services/errors/recording_error_object.h"
#include "services/host/locale_reference.h"
#include "services/store/sqlite_database.h"
#include "tests/support/temp_folder.h"

namespace qb::test {

class TestDatabase {
 public:
  // installAsModuleState: make the store, error object and locale the module's.
  explicit TestDatabase(bool installAsModuleState = true);
  ~TestDatabase();

  // Runs set-up SQL directly on the file (not through the system's store path).
  void exec(const std::string& sql);
  // One value of a query run directly on the file, as text ("" for Null):
  // to check what the system wrote.
  std::string scalar(const std::string& sql);

  SqliteDatabase& store() { return *store_; }
  std::shared_ptr<SqliteDatabase> storePtr() { return store_; }
  RecordingErrorObject& errors() { return *errors_; }
  FixedLocale& locale() { return *locale_; }
  TempFolder& folder() { return folder_; }
  std::string path() const { return path_; }

 private:
  TempFolder folder_;
  std::string path_;
  std::shared_ptr<SqliteDatabase> store_;
  std::shared_ptr<RecordingErrorObject> errors_;
  std::shared_ptr<FixedLocale> locale_;
};

}  // namespace qb::test
