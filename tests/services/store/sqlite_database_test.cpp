// The SQLite store's semantics and failures, on real database files.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>
#include <string>

#include "services/errors/runtime_error.h"
#include "services/runtime/conversions.h"
#include "services/store/sqlite_database.h"
#include "tests/support/temp_folder.h"

namespace qb {
namespace {

class StoreTest : public ::testing::Test {
 protected:
  void SetUp() override {
    path = folder.file("store.db");
    SqliteDatabase::Options options;
    options.create = true;
    store.open(path, options);
    store.executeScript(
        "CREATE TABLE Companies (CompanyID INTEGER PRIMARY KEY, CompanyName TEXT, Active BOOLEAN,"
        " Balance CURRENCY, Founded DATE);"
        "CREATE TABLE ClientData (ClientDataID INTEGER PRIMARY KEY, CompanyIDNum INTEGER,"
        " ShowThisClient BOOLEAN, Notes TEXT);"
        "INSERT INTO Companies VALUES (1, 'Acme', 1, 10.5, '2001-02-03'), (2, 'Bolt', 0, NULL, NULL),"
        " (3, 'Côté & Fils', 1, 0, NULL);"
        "INSERT INTO ClientData VALUES (10, 1, 1, 'first'), (20, 2, 0, NULL), (30, 3, 1, 'third');");
  }

  // A value read straight from the file, bypassing the store.
  std::string direct(const std::string& sql) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(db, sql.c_str(), -1, &statement, nullptr);
    std::string result = "<none>";
    if (sqlite3_step(statement) == SQLITE_ROW) {
      const unsigned char* text = sqlite3_column_text(statement, 0);
      result = text ? reinterpret_cast<const char*>(text) : "<null>";
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return result;
  }

  int32_t errorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }

  test::TempFolder folder;
  std::string path;
  SqliteDatabase store;
};

TEST_F(StoreTest, ReadsTypedValuesWalksAndRefusesWritesWhenReadOnly) {
  EXPECT_EQ(store.journalMode(), "wal");
  RecordsetHandle rs = store.openRecordset(
      "SELECT Companies.CompanyID, Companies.CompanyName, Companies.Active, Companies.Balance, "
      "Companies.Founded FROM Companies WHERE CompanyID = 1;", 1, 1);
  ASSERT_TRUE(store.moveFirstRecord(rs));
  EXPECT_EQ(store.getFieldValue(rs, "companyname"), Variant("Acme"));
  EXPECT_EQ(store.getFieldValue(rs, "CompanyID"), Variant(int32_t{1}));
  EXPECT_EQ(store.getFieldValue(rs, "Active"), Variant(true));
  EXPECT_EQ(store.getFieldValue(rs, "Balance"), Variant(10.5));
  EXPECT_TRUE(store.getFieldValue(rs, "Founded").isDate());
  EXPECT_EQ(errorOf([&] { store.updateFieldValue(rs, "CompanyName", "X"); }), err::kReadOnly);
  EXPECT_EQ(errorOf([&] { store.getFieldValue(rs, "NoSuchField"); }), err::kItemNotFound);
  store.closeRecordset(rs);
  EXPECT_EQ(direct("SELECT CompanyName FROM Companies WHERE CompanyID=1"), "Acme");

  // The system's own dialect: nested joins, "= True", "Not ... Is Null".
  rs = store.openRecordset(
      "SELECT Companies.*, ClientData.* FROM (Companies INNER JOIN ClientData ON "
      "Companies.CompanyID = ClientData.CompanyIDNum) WHERE ClientData.ShowThisClient = True AND "
      "Not ClientData.Notes Is Null ORDER BY Companies.CompanyName;", 1, 1);
  EXPECT_EQ(store.getRecordCount(rs), 2);
  std::string names;
  for (store.moveFirstRecord(rs); !store.isEndOfRecordset(rs); store.moveNextRecord(rs))
    names += toText(store.getFieldValue(rs, "CompanyName")) + ";";
  EXPECT_EQ(names, "Acme;Côté & Fils;");
  EXPECT_EQ(errorOf([&] { store.getFieldValue(rs, "CompanyName"); }), err::kNoCurrentRecord);
  store.closeRecordset(rs);

  rs = store.openRecordset("SELECT Companies.Balance FROM Companies WHERE CompanyID=2;", 1, 1);
  ASSERT_TRUE(store.moveFirstRecord(rs));
  EXPECT_TRUE(store.getFieldValue(rs, "Balance").isNull());
  store.closeRecordset(rs);
  rs = store.openRecordset("SELECT Companies.CompanyID FROM Companies WHERE CompanyID=99;", 1, 1);
  EXPECT_FALSE(store.moveFirstRecord(rs));
  EXPECT_TRUE(store.isEndOfRecordset(rs));
  EXPECT_TRUE(store.isRecordsetEmpty(rs));
  store.closeRecordset(rs);
  EXPECT_EQ(store.openRecordsetCount(), 0);
}

TEST_F(StoreTest, WritesGoToTheRightRowOfTheRightTableAndReadBackEverywhere) {
  const char* join =
      "SELECT Companies.CompanyName, ClientData.Notes, ClientData.ShowThisClient FROM Companies "
      "INNER JOIN ClientData ON Companies.CompanyID = ClientData.CompanyIDNum ORDER BY CompanyID;";
  RecordsetHandle rs = store.openRecordset(join, 1, 3);
  RecordsetHandle other = store.openRecordset("SELECT ClientData.* FROM ClientData;", 1, 1);
  store.moveFirstRecord(rs);
  store.moveNextRecord(rs);  // Bolt
  EXPECT_TRUE(store.updateFieldValue(rs, "Notes", "second"));
  EXPECT_TRUE(store.updateFieldValue(rs, "ShowThisClient", "True"));
  EXPECT_TRUE(store.updateFieldValue(rs, "CompanyName", "Bolt Ltd"));
  EXPECT_EQ(store.getFieldValue(rs, "Notes"), Variant("second"));
  EXPECT_EQ(store.getFieldValue(rs, "ShowThisClient"), Variant(true));
  EXPECT_EQ(direct("SELECT Notes FROM ClientData WHERE ClientDataID=20"), "second");
  EXPECT_EQ(direct("SELECT ShowThisClient FROM ClientData WHERE ClientDataID=20"), "1");
  EXPECT_EQ(direct("SELECT CompanyName FROM Companies WHERE CompanyID=2"), "Bolt Ltd");
  EXPECT_EQ(direct("SELECT Notes FROM ClientData WHERE ClientDataID=10"), "first");
  // Another recordset open on the same row reads the new value.
  ASSERT_TRUE(store.findRecord(other, "ClientDataID", "20"));
  EXPECT_EQ(store.getFieldValue(other, "Notes"), Variant("second"));
  EXPECT_EQ(errorOf([&] { store.updateFieldValue(rs, "ShowThisClient", "perhaps"); }), err::kTypeMismatch);
  store.closeRecordset(rs);
  store.closeRecordset(other);
}

TEST_F(StoreTest, AddsRowsFindsRecordsAndKeepsPositionsAcrossNestedReads) {
  RecordsetHandle rs = store.openRecordset("SELECT Companies.* FROM Companies;", 1, 3);
  ASSERT_TRUE(store.addNewRecord(rs));
  store.setFieldValue(rs, "CompanyName", "Dune");
  store.setFieldValue(rs, "Founded", "2020-05-06");
  ASSERT_TRUE(store.updateRecord(rs));
  EXPECT_EQ(store.getFieldValue(rs, "CompanyID"), Variant(int32_t{4}));
  EXPECT_EQ(store.getRecordCount(rs), 4);
  EXPECT_EQ(direct("SELECT Founded FROM Companies WHERE CompanyName='Dune'"), "2020-05-06");

  EXPECT_TRUE(store.findRecord(rs, "CompanyName", "bolt"));
  EXPECT_EQ(store.getFieldValue(rs, "CompanyID"), Variant(int32_t{2}));
  EXPECT_TRUE(store.findRecord(rs, "CompanyID", "4"));
  EXPECT_EQ(store.getFieldValue(rs, "CompanyName"), Variant("Dune"));
  EXPECT_FALSE(store.findRecord(rs, "CompanyID", "42"));
  EXPECT_TRUE(store.isEndOfRecordset(rs));
  store.moveFirstRecord(rs);
  store.updateFieldValue(rs, "CompanyName", "Zenith");  // the index follows writes
  EXPECT_TRUE(store.findRecord(rs, "CompanyName", "ZENITH"));
  EXPECT_FALSE(store.findRecord(rs, "CompanyName", "Acme"));

  store.moveFirstRecord(rs);
  store.moveNextRecord(rs);
  int16_t saved = store.getRecordPosition(rs);
  for (store.moveFirstRecord(rs); !store.isEndOfRecordset(rs); store.moveNextRecord(rs)) {
  }
  EXPECT_TRUE(store.setRecordPosition(rs, saved));
  EXPECT_EQ(store.getFieldValue(rs, "CompanyID"), Variant(int32_t{2}));
  ASSERT_TRUE(store.deleteRecord(rs));
  EXPECT_EQ(errorOf([&] { store.getFieldValue(rs, "CompanyID"); }), err::kNoCurrentRecord);
  store.moveNextRecord(rs);
  EXPECT_EQ(store.getFieldValue(rs, "CompanyName"), Variant("Côté & Fils"));
  EXPECT_EQ(direct("SELECT count(*) FROM Companies"), "3");
  store.closeRecordset(rs);
}

TEST_F(StoreTest, FailuresAreRuntimeErrorsNeverCrashes) {
  EXPECT_EQ(errorOf([&] { store.openRecordset("SELEKT nonsense;", 1, 1); }), err::kStoreError);
  EXPECT_EQ(errorOf([&] { store.openRecordset("SELECT Nope.* FROM Nope;", 1, 1); }), err::kStoreError);
  RecordsetHandle rs = store.openRecordset("SELECT Companies.* FROM Companies;", 1, 1);
  store.closeRecordset(rs);
  EXPECT_FALSE(store.isRecordsetOpen(rs));
  EXPECT_EQ(errorOf([&] { store.moveFirstRecord(rs); }), err::kBadHandle);
  EXPECT_EQ(errorOf([&] { store.closeRecordset(12345); }), err::kBadHandle);

  SqliteDatabase missing;
  EXPECT_FALSE(missing.isConnected());
  EXPECT_EQ(errorOf([&] { missing.openRecordset("SELECT 1;", 1, 1); }), err::kStoreError);
  EXPECT_EQ(errorOf([&] { missing.open(folder.file("absent.db")); }), err::kStoreError);
  EXPECT_FALSE(missing.isConnected());
  folder.writeFile("junk.db", std::string(4096, 'j'));
  EXPECT_EQ(errorOf([&] { missing.open(folder.file("junk.db")); }), err::kStoreError);

  SqliteDatabase reader;
  SqliteDatabase::Options readOnly;
  readOnly.readOnly = true;
  reader.open(path, readOnly);
  rs = reader.openRecordset("SELECT Companies.* FROM Companies WHERE CompanyID=1;", 1, 3);
  reader.moveFirstRecord(rs);
  EXPECT_EQ(errorOf([&] { reader.updateFieldValue(rs, "CompanyName", "X"); }), err::kStoreError);
  EXPECT_EQ(direct("SELECT CompanyName FROM Companies WHERE CompanyID=1"), "Acme");
}

TEST_F(StoreTest, ABusyDatabaseIsReportedAndTwoProcessesLoseNoWrite) {
  // A second connection holds the write lock: the write waits, then fails.
  sqlite3* holder = nullptr;
  sqlite3_open(path.c_str(), &holder);
  sqlite3_exec(holder, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
  SqliteDatabase impatient;
  SqliteDatabase::Options quick;
  quick.busyTimeoutMs = 50;
  impatient.open(path, quick);
  RecordsetHandle rs = impatient.openRecordset("SELECT Companies.* FROM Companies;", 1, 3);
  impatient.moveFirstRecord(rs);
  EXPECT_EQ(errorOf([&] { impatient.updateFieldValue(rs, "CompanyName", "Late"); }), err::kStoreError);
  sqlite3_exec(holder, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(holder);
  impatient.close();
  store.close();

  // Two processes add rows at once; every row arrives.
  const int perChild = 150;
  pid_t children[2];
  for (int c = 0; c < 2; ++c) {
    children[c] = fork();
    if (children[c] == 0) {
      SqliteDatabase writer;
      writer.open(path);
      RecordsetHandle h = writer.openRecordset("SELECT ClientData.* FROM ClientData;", 1, 3);
      for (int i = 0; i < perChild; ++i) {
        writer.addNewRecord(h);
        writer.setFieldValue(h, "Notes", "child " + std::to_string(c));
        writer.updateRecord(h);
      }
      _exit(0);
    }
  }
  for (pid_t child : children) {
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  EXPECT_EQ(direct("SELECT count(*) FROM ClientData"), std::to_string(3 + 2 * perChild));
}

}  // namespace
}  // namespace qb
