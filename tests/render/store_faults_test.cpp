// Faults of the disk under the store, in the manner of SQLite's own I/O-error
// tests: the nth read, write or sync fails (or the disk is full at the nth
// write), for every n until the operation meets no fault. After each run the
// database is whole, every value is the old or the new one, and the failure
// reached the user through the error convention with a clear first line.

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "render/mod_database_client_functions.h"
#include "render/mod_format_addresses.h"
#include "sample/sample_firm.h"
#include "services/errors/recording_error_object.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/store/sqlite_database.h"
#include "tests/support/faulty_vfs.h"
#include "tests/support/temp_folder.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;

// Every row of every table, by table and rowid, each cell as text ("<null>"
// for Null): what the file holds, read past the store.
using Rows = std::map<int64_t, std::vector<std::string>>;
using Snapshot = std::map<std::string, Rows>;

std::vector<std::vector<std::string>> query(sqlite3* db, const std::string& sql) {
  sqlite3_stmt* stmt = nullptr;
  std::vector<std::vector<std::string>> rows;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
    ADD_FAILURE() << sqlite3_errmsg(db) << " in " << sql;
    return rows;
  }
  while (sqlite3_step(stmt) == SQLITE_ROW) {
    std::vector<std::string> row;
    for (int c = 0; c < sqlite3_column_count(stmt); ++c) {
      const unsigned char* text = sqlite3_column_text(stmt, c);
      row.emplace_back(text != nullptr ? reinterpret_cast<const char*>(text) : "<null>");
    }
    rows.push_back(std::move(row));
  }
  sqlite3_finalize(stmt);
  return rows;
}

struct FileState {
  std::string integrity;
  Snapshot snapshot;
};

FileState stateOf(const std::string& path) {
  sqlite3* db = nullptr;
  sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
  FileState state;
  auto check = query(db, "PRAGMA integrity_check;");
  state.integrity = check.empty() ? "" : check.front().front();
  for (const auto& table : query(db, "SELECT name FROM sqlite_master WHERE type = 'table';")) {
    for (auto& row : query(db, "SELECT rowid, * FROM \"" + table.front() + "\";")) {
      int64_t rowid = std::stoll(row.front());
      row.erase(row.begin());
      state.snapshot[table.front()][rowid] = std::move(row);
    }
  }
  sqlite3_close(db);
  return state;
}

// Each cell holds its old or its new value; a row is there only if it was
// there before or after.
void expectOldOrNew(const Snapshot& old, const Snapshot& now, const Snapshot& after,
                    const std::string& run) {
  auto rowOf = [](const Snapshot& snapshot, const std::string& table,
                  int64_t rowid) -> const std::vector<std::string>* {
    auto t = snapshot.find(table);
    if (t == snapshot.end()) return nullptr;
    auto r = t->second.find(rowid);
    return r == t->second.end() ? nullptr : &r->second;
  };
  std::set<std::pair<std::string, int64_t>> keys;
  for (const Snapshot* s : {&old, &now, &after}) {
    for (const auto& [table, rows] : *s) {
      for (const auto& entry : rows) keys.insert({table, entry.first});
    }
  }
  for (const auto& [table, rowid] : keys) {
    const auto* before = rowOf(old, table, rowid);
    const auto* wanted = rowOf(now, table, rowid);
    const auto* found = rowOf(after, table, rowid);
    if (found == nullptr) {
      EXPECT_TRUE(before == nullptr || wanted == nullptr)
          << run << ": " << table << " row " << rowid << " lost";
      continue;
    }
    ASSERT_TRUE(before != nullptr || wanted != nullptr)
        << run << ": " << table << " row " << rowid << " came from nowhere";
    for (size_t c = 0; c < found->size(); ++c) {
      bool isOld = before != nullptr && (*before)[c] == (*found)[c];
      bool isNew = wanted != nullptr && (*wanted)[c] == (*found)[c];
      // A row that comes into being is written field by field: a field not
      // written yet holds its default.
      bool isDefault = before == nullptr && (*found)[c] == "<null>";
      EXPECT_TRUE(isOld || isNew || isDefault)
          << run << ": " << table << " row " << rowid << " column " << c << " holds "
          << (*found)[c].substr(0, 80);
    }
  }
}

// A first line that says what happened to the database and what to do.
bool isClearMessage(const std::string& description, const std::string& path) {
  std::string first = description.substr(0, description.find('\n'));
  bool saysWhat = first.rfind("The database \"" + path + "\"", 0) == 0 ||
                  first.rfind("The disk is full: \"" + path + "\"", 0) == 0;
  bool saysWhatToDo = first.find("try again") != std::string::npos ||
                      first.find("Try again") != std::string::npos ||
                      first.find("backup") != std::string::npos;
  return saysWhat && saysWhatToDo;
}

class StoreFaultsTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = new TempFolder();
    pristine_ = folder_->file("pristine.db");
    createDatabase(pristine_);
    fillSampleFirm(pristine_, folder_->file("files"));
    sqlite3* db = nullptr;
    sqlite3_open(pristine_.c_str(), &db);
    // Company 3's links lose their default, for the repair to make one.
    sqlite3_exec(db, "UPDATE ContactLinks SET DefaultContact = 0 WHERE CompanyNum = 3;", nullptr,
                 nullptr, nullptr);
    sqlite3_close(db);
  }
  static void TearDownTestSuite() {
    delete folder_;
    folder_ = nullptr;
  }

  // A fresh copy of the pristine database, opened through the faulty VFS and
  // installed as the module's store with a recording error object.
  void openCopy() {
    fs::copy_file(pristine_, work_, fs::copy_options::overwrite_existing);
    store_ = std::make_shared<SqliteDatabase>();
    SqliteDatabase::Options options;
    options.vfs = vfs_.name();
    store_->open(work_, options);
    errors_ = std::make_shared<RecordingErrorObject>();
    resetModuleState();
    moduleState().databaseReference = store_;
    moduleState().errorClass = errors_;
    moduleState().localeReference = std::make_shared<FixedLocale>();
  }

  void closeCopy() {
    resetModuleState();
    store_.reset();
  }

  // Runs the operation once without faults for the new state, then with the
  // nth operation of the kind failing for n = 1, 2, ... until a run meets no
  // fault. Returns the number of runs that met a fault.
  int stepFaults(const std::string& name, const std::function<void()>& operation,
                 FaultyVfs::Kind kind, int rc = 0) {
    const Snapshot old = stateOf(pristine_).snapshot;
    openCopy();
    operation();
    EXPECT_TRUE(errors_->failures.empty()) << name << " fails without a fault";
    closeCopy();
    const Snapshot now = stateOf(work_).snapshot;
    EXPECT_NE(old, now) << name << " changes nothing";

    int faults = 0;
    for (int n = 1; n < 2000; ++n) {
      std::string run = name + " with fault " + std::to_string(n);
      openCopy();
      vfs_.arm(kind, n, rc);
      operation();
      bool fired = vfs_.fired();
      vfs_.disarm();
      std::vector<RecordingErrorObject::Failure> failures = errors_->failures;
      closeCopy();
      FileState after = stateOf(work_);
      EXPECT_EQ(after.integrity, "ok") << run;
      expectOldOrNew(old, now, after.snapshot, run);
      if (!fired) {
        EXPECT_EQ(after.snapshot, now) << run << ": no fault, yet not the new state";
        break;
      }
      ++faults;
      if (after.snapshot != now) {
        // Something was not saved: the user must have been told.
        EXPECT_FALSE(failures.empty()) << run << ": a change was lost without a word";
      }
      for (const auto& failure : failures) {
        if (failure.number != err::kStoreError) continue;
        EXPECT_TRUE(isClearMessage(failure.description, work_))
            << run << ": " << failure.description;
      }
      if (HasFailure()) break;
    }
    return faults;
  }

  static TempFolder* folder_;
  static std::string pristine_;
  FaultyVfs vfs_;
  std::string work_ = folder_->file("work.db");
  std::shared_ptr<SqliteDatabase> store_;
  std::shared_ptr<RecordingErrorObject> errors_;
};

TempFolder* StoreFaultsTest::folder_ = nullptr;
std::string StoreFaultsTest::pristine_;

void companySummary() { modFormatAddresses::saveCompanyContactRTF(2, 10); }

void defaultContactRepair() { modDatabaseClientFunctions::getDefaultContactIDFromCompanyID(3); }

void categoryDelete() {
  docQuillboxCategoryClass category;
  category.setCategoryID(3);
  bool includeSubCategories = true;
  bool deleted = false;
  category.deleteCategory(includeSubCategories, deleted);
}

TEST_F(StoreFaultsTest, ASummaryKeepsTheDatabaseWholeAtEveryFault) {
  EXPECT_GT(stepFaults("summary, write", companySummary, FaultyVfs::Kind::Write), 0);
  EXPECT_GT(stepFaults("summary, full disk", companySummary, FaultyVfs::Kind::Write, SQLITE_FULL),
            0);
  EXPECT_GT(stepFaults("summary, read", companySummary, FaultyVfs::Kind::Read), 0);
  stepFaults("summary, sync", companySummary, FaultyVfs::Kind::Sync);
}

TEST_F(StoreFaultsTest, ADefaultContactRepairKeepsTheDatabaseWholeAtEveryFault) {
  EXPECT_GT(stepFaults("repair, write", defaultContactRepair, FaultyVfs::Kind::Write), 0);
  EXPECT_GT(stepFaults("repair, read", defaultContactRepair, FaultyVfs::Kind::Read), 0);
  stepFaults("repair, sync", defaultContactRepair, FaultyVfs::Kind::Sync);
}

TEST_F(StoreFaultsTest, ACategoryDeleteKeepsTheDatabaseWholeAtEveryFault) {
  EXPECT_GT(stepFaults("delete, write", categoryDelete, FaultyVfs::Kind::Write), 0);
  EXPECT_GT(stepFaults("delete, read", categoryDelete, FaultyVfs::Kind::Read), 0);
  stepFaults("delete, sync", categoryDelete, FaultyVfs::Kind::Sync);
}

}  // namespace
}  // namespace qb::test
