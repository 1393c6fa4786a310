// The SQLite store's semantics and failures, on real database files.

#include "services/store/sqlite_database.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>

#include "services/errors/runtime_error.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/store/schema.h"
#include "services/store/sqlite_failures.h"
#include "services/store/sqlite_sql_text.h"
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
        "INSERT INTO Companies VALUES (1, 'Acme', 1, 10.5, '2001-02-03'), (2, 'Bolt', 0, NULL, "
        "NULL),"
        " (3, 'Côté & Fils', 1, 0, NULL);"
        "INSERT INTO ClientData VALUES (10, 1, 1, 'first'), (20, 2, 0, NULL), (30, 3, 1, "
        "'third');" +
        markSql());
  }

  // The statements that mark a file as a client database.
  static std::string markSql() {
    return "PRAGMA application_id=" + std::to_string(kClientDatabaseApplicationId) +
           "; PRAGMA user_version=" + std::to_string(kClientDatabaseSchemaVersion) + ";";
  }

  // A value read straight from the file, bypassing the store.
  std::string direct(const std::string& sql) { return scalarOf(path, sql); }

  // Runs SQL straight on the file.
  void execDirect(const std::string& sql) {
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr);
    sqlite3_close(db);
  }

  static std::string fileBytes(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
  }

  static std::string scalarOf(const std::string& file, const std::string& sql) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
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

  std::string messageOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.description();
    }
    return "";
  }

  test::TempFolder folder;
  std::string path;
  SqliteDatabase store;
};

TEST_F(StoreTest, ReadsTypedValuesWalksAndRefusesWritesWhenReadOnly) {
  EXPECT_EQ(store.journalMode(), "wal");
  RecordsetHandle rs = store.openRecordset(
      "SELECT Companies.CompanyID, Companies.CompanyName, Companies.Active, Companies.Balance, "
      "Companies.Founded FROM Companies WHERE CompanyID = 1;",
      1, 1);
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
      "Not ClientData.Notes Is Null ORDER BY Companies.CompanyName;",
      1, 1);
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
  EXPECT_EQ(errorOf([&] { store.updateFieldValue(rs, "ShowThisClient", "perhaps"); }),
            err::kTypeMismatch);
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
  EXPECT_EQ(errorOf([&] { store.openRecordset("SELECT Nope.* FROM Nope;", 1, 1); }),
            err::kStoreError);
  RecordsetHandle rs = store.openRecordset("SELECT Companies.* FROM Companies;", 1, 1);
  store.closeRecordset(rs);
  EXPECT_FALSE(store.isRecordsetOpen(rs));
  EXPECT_EQ(errorOf([&] { store.moveFirstRecord(rs); }), err::kBadHandle);
  EXPECT_EQ(errorOf([&] { store.closeRecordset(12345); }), err::kBadHandle);

  // Nothing open: every operation fails cleanly and no file appears.
  SqliteDatabase missing;
  EXPECT_FALSE(missing.isConnected());
  EXPECT_EQ(errorOf([&] { missing.openRecordset("SELECT 1;", 1, 1); }), err::kStoreError);
  EXPECT_EQ(errorOf([&] { missing.executeScript("CREATE TABLE T (A);"); }), err::kStoreError);
  EXPECT_EQ(errorOf([&] { missing.getFieldValue(1, "A"); }), err::kBadHandle);
  EXPECT_FALSE(missing.isRecordsetOpen(1));
  EXPECT_EQ(messageOf([&] { missing.open(folder.file("absent.db")); }),
            "There is no database file at \"" + folder.file("absent.db") +
                "\". Check the path; the file may have been moved or deleted.");
  EXPECT_FALSE(std::filesystem::exists(folder.file("absent.db")));
  EXPECT_FALSE(missing.isConnected());
  folder.writeFile("junk.db", std::string(4096, 'j'));
  EXPECT_EQ(messageOf([&] { missing.open(folder.file("junk.db")); }),
            "The database \"" + folder.file("junk.db") +
                "\" is not a client database: it is not a SQLite database file. Choose the firm's "
                "client database file.\nCan't read the database: file is not a database");
  EXPECT_NE(messageOf([&] { store.openRecordset("SELEKT nonsense;", 1, 1); }).find("syntax error"),
            std::string::npos);

  SqliteDatabase reader;
  SqliteDatabase::Options readOnly;
  readOnly.readOnly = true;
  reader.open(path, readOnly);
  EXPECT_TRUE(reader.isReadOnly());
  rs = reader.openRecordset("SELECT Companies.* FROM Companies WHERE CompanyID=1;", 1, 3);
  reader.moveFirstRecord(rs);
  EXPECT_NE(
      messageOf([&] { reader.updateFieldValue(rs, "CompanyName", "X"); }).find("reading only"),
      std::string::npos);
  EXPECT_EQ(reader.getFieldValue(rs, "CompanyName"), Variant("Acme"));
  EXPECT_EQ(direct("SELECT CompanyName FROM Companies WHERE CompanyID=1"), "Acme");
}

TEST_F(StoreTest, AFileThatMayNotBeWrittenOpensForReading) {
  store.close();
  namespace fs = std::filesystem;
  fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  auto check = [&]() -> int {  // 0 when all holds
    SqliteDatabase reader;
    reader.open(path);
    if (!reader.isReadOnly()) return 1;
    RecordsetHandle rs = reader.openRecordset("SELECT Companies.* FROM Companies;", 1, 3);
    if (reader.getRecordCount(rs) != 3) return 2;
    return errorOf([&] { reader.updateFieldValue(rs, "CompanyName", "X"); }) == err::kStoreError
               ? 0
               : 3;
  };
  if (geteuid() != 0) {
    EXPECT_EQ(check(), 0);
    return;
  }
  // Every file is writable to root: the check runs as an unprivileged user.
  fs::permissions(folder.path(), fs::perms::all);
  pid_t child = fork();
  if (child == 0) _exit(setgid(65534) == 0 && setuid(65534) == 0 ? check() : 9);
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
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
  impatient.moveFirstRecord(rs);  // reading goes on beside the writer
  try {
    impatient.updateFieldValue(rs, "CompanyName", "Late");
    ADD_FAILURE() << "the write went through a held lock";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), err::kStoreError);
    EXPECT_NE(error.description().find(
                  "is locked by another user or program (waited 50 ms). Try again in a moment."),
              std::string::npos);
  }
  EXPECT_EQ(impatient.getFieldValue(rs, "CompanyName"), Variant("Acme"));
  sqlite3_exec(holder, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(holder);
  impatient.close();
  store.close();

  // Two processes add rows and count up a field of a row each, at once, with
  // a short busy timeout; every row and every count arrives.
  const int perChild = 150;
  pid_t children[2];
  for (int c = 0; c < 2; ++c) {
    children[c] = fork();
    if (children[c] == 0) {
      SqliteDatabase writer;
      SqliteDatabase::Options options;
      options.busyTimeoutMs = 2000;
      writer.open(path, options);
      RecordsetHandle h = writer.openRecordset("SELECT ClientData.* FROM ClientData;", 1, 3);
      RecordsetHandle own = writer.openRecordset(
          "SELECT Companies.CompanyID, Companies.Balance FROM Companies WHERE CompanyID=" +
              std::to_string(c + 1) + ";",
          1, 3);
      writer.moveFirstRecord(own);
      writer.updateFieldValue(own, "Balance", "0");
      for (int i = 0; i < perChild; ++i) {
        writer.addNewRecord(h);
        writer.setFieldValue(h, "Notes", "child " + std::to_string(c));
        writer.updateRecord(h);
        writer.updateFieldValue(own, "Balance",
                                std::to_string(CLng(writer.getFieldValue(own, "Balance")) + 1));
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
  EXPECT_EQ(direct("SELECT group_concat(Balance) FROM Companies WHERE CompanyID<3"), "150,150");
}

TEST_F(StoreTest, ValuesFollowTheDeclaredTypes) {
  store.executeScript(
      "CREATE TABLE Ledger (LedgerID INTEGER PRIMARY KEY, Big INTEGER, Flag BOOLEAN, Amount REAL,"
      " Posted DATETIME, Memo TEXT);"
      "INSERT INTO Ledger VALUES (1, 5000000000, 1, 2.5, '2026-11-23 14:05:00', '12');");
  RecordsetHandle rs = store.openRecordset(
      "SELECT Ledger.*, Ledger.Amount * 2 AS Twice, 7 AS Seven FROM Ledger WHERE LedgerID=1;", 1,
      3);
  EXPECT_EQ(store.getFieldValue(rs, "Big"), Variant(5000000000.0));
  EXPECT_EQ(store.getFieldValue(rs, "Posted"),
            Variant::date(DateSerial(2026, 11, 23) + TimeSerial(14, 5, 0)));
  EXPECT_EQ(store.getFieldValue(rs, "Memo"), Variant("12"));
  EXPECT_EQ(store.getFieldValue(rs, "twice"), Variant(5.0));
  EXPECT_EQ(store.getFieldValue(rs, "Seven"), Variant(int32_t{7}));
  EXPECT_EQ(store.getFieldValue(rs, Variant(int32_t{1})), Variant(5000000000.0));  // by ordinal

  store.updateFieldValue(rs, "Flag", "-1");
  EXPECT_EQ(direct("SELECT Flag FROM Ledger"), "1");
  store.updateFieldValue(rs, "Flag", "FALSE");
  EXPECT_EQ(store.getFieldValue(rs, "Flag"), Variant(false));
  store.updateFieldValue(rs, "Posted", "Nov 2, 2026");
  EXPECT_EQ(direct("SELECT Posted FROM Ledger"), "2026-11-02");
  EXPECT_EQ(store.getFieldValue(rs, "Posted"), Variant::date(DateSerial(2026, 11, 2)));
  store.updateFieldValue(rs, "Big", "41.5");  // whole-number columns round half to even
  EXPECT_EQ(store.getFieldValue(rs, "Big"), Variant(int32_t{42}));
  store.updateFieldValue(rs, "Amount", "");
  EXPECT_TRUE(store.getFieldValue(rs, "Amount").isNull());
  EXPECT_EQ(direct("SELECT typeof(Amount) FROM Ledger"), "null");
  store.updateFieldValue(rs, "Memo", "");
  EXPECT_EQ(direct("SELECT typeof(Memo) FROM Ledger"), "text");
  EXPECT_EQ(errorOf([&] { store.updateFieldValue(rs, "Amount", "lots"); }), err::kTypeMismatch);
  EXPECT_EQ(errorOf([&] { store.updateFieldValue(rs, "Posted", "someday"); }), err::kTypeMismatch);
  EXPECT_EQ(errorOf([&] { store.updateFieldValue(rs, "Twice", "1"); }), err::kReadOnly);
  EXPECT_EQ(direct("SELECT Amount IS NULL FROM Ledger"), "1");
}

TEST_F(StoreTest, KeysInTheSqlTextBecomeParametersOfOneStatement) {
  auto keyed = sqlite::takeOutKeys(
      "SELECT T.A FROM T WHERE T.Custom1=5 AND B <> -12 AND C='x=3' AND D=1.5 -- E=7\n"
      "AND F IN (1, 2) ORDER BY 1;");
  EXPECT_EQ(keyed.text,
            "SELECT T.A FROM T WHERE T.Custom1=? AND B <> ? AND C='x=3' AND D=1.5 -- E=7\n"
            "AND F IN (1, 2) ORDER BY 1;");
  EXPECT_EQ(keyed.keys, (std::vector<int64_t>{5, -12}));
  // A text with parameters of its own, in any of SQLite's spellings, keeps
  // its numbers (found by fuzzing: "#name" is one).
  for (const char* own : {"?", "?1", ":a", "@a", "$a", "#a"}) {
    std::string sql = std::string("SELECT A FROM T WHERE A=") + own + " AND B=2;";
    EXPECT_EQ(sqlite::takeOutKeys(sql).text, sql);
    EXPECT_EQ(sqlite::takeOutKeys(sql).keys.size(), 0u) << own;
  }

  // One statement serves every key, and each open reads its own row.
  const std::string lookup = "SELECT Companies.CompanyName FROM Companies WHERE CompanyID=";
  RecordsetHandle first = store.openRecordset(lookup + "1;", 1, 1);
  RecordsetHandle third = store.openRecordset(lookup + "3;", 1, 1);
  RecordsetHandle none = store.openRecordset(lookup + "-1;", 1, 1);
  EXPECT_GT(first, 0);
  EXPECT_NE(first, third);
  EXPECT_EQ(store.getFieldValue(first, "CompanyName"), Variant("Acme"));
  EXPECT_EQ(store.getFieldValue(third, "CompanyName"), Variant("Côté & Fils"));
  EXPECT_TRUE(store.isRecordsetEmpty(none));
  EXPECT_EQ(store.openRecordsetCount(), 3);

  // The rows of a recordset are fixed when it opens.
  store.executeScript("INSERT INTO Companies (CompanyID, CompanyName) VALUES (9, 'Late');");
  RecordsetHandle all = store.openRecordset("SELECT Companies.CompanyID FROM Companies;", 1, 1);
  store.executeScript("INSERT INTO Companies (CompanyID, CompanyName) VALUES (10, 'Later');");
  EXPECT_EQ(store.getRecordCount(all), 4);
}

TEST_F(StoreTest, NewRowsGoToTheTableOfTheirFields) {
  store.executeScript(
      "CREATE TABLE CompaniesNotes (CompaniesNotesID INTEGER PRIMARY KEY, CompanyNum INTEGER,"
      " CompanyName TEXT, BusinessNotes TEXT DEFAULT 'none');"
      "INSERT INTO CompaniesNotes VALUES (50, 1, 'shadow', 'n');");
  // Two result columns of one name: the first wins.
  RecordsetHandle both = store.openRecordset(
      "SELECT Companies.*, CompaniesNotes.* FROM Companies INNER JOIN CompaniesNotes ON "
      "Companies.CompanyID = CompaniesNotes.CompanyNum;",
      1, 3);
  EXPECT_EQ(store.getFieldValue(both, "CompanyName"), Variant("Acme"));
  store.addNewRecord(both);
  store.setFieldValue(both, "BusinessNotes", "x");
  EXPECT_EQ(errorOf([&] { store.setFieldValue(both, "Founded", "2020-01-01"); }), err::kStoreError);
  store.closeRecordset(both);

  // No field set: a row of defaults in the one table, its key read back.
  RecordsetHandle notes =
      store.openRecordset("SELECT CompaniesNotes.* FROM CompaniesNotes WHERE CompanyNum=2;", 1, 3);
  ASSERT_TRUE(store.isRecordsetEmpty(notes));
  store.addNewRecord(notes);
  store.updateRecord(notes);
  ASSERT_TRUE(store.moveFirstRecord(notes));
  EXPECT_EQ(store.getFieldValue(notes, "CompaniesNotesID"), Variant(int32_t{51}));
  EXPECT_EQ(store.getFieldValue(notes, "BusinessNotes"), Variant("none"));
  store.updateFieldValue(notes, "CompanyNum", "2");
  EXPECT_EQ(direct("SELECT CompanyNum FROM CompaniesNotes WHERE CompaniesNotesID=51"), "2");
  EXPECT_EQ(direct("SELECT count(*) FROM CompaniesNotes"), "2");

  // Positions count to 32767 and no further.
  store.executeScript(
      "WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 40100)"
      " INSERT INTO CompaniesNotes (CompaniesNotesID) SELECT i FROM n;");
  RecordsetHandle many = store.openRecordset("SELECT CompaniesNotes.* FROM CompaniesNotes;", 1, 1);
  ASSERT_TRUE(store.setRecordPosition(many, 32767));
  EXPECT_EQ(store.getRecordPosition(many), 32767);
  store.moveNextRecord(many);
  EXPECT_EQ(errorOf([&] { store.getRecordPosition(many); }), err::kOverflow);
}

TEST_F(StoreTest, FindRecordComparesByValueAndSeesWritesOfOtherRecordsets) {
  RecordsetHandle rs = store.openRecordset("SELECT Companies.* FROM Companies;", 1, 1);
  EXPECT_TRUE(store.findRecord(rs, "Balance", "10.50"));
  EXPECT_EQ(store.getFieldValue(rs, "CompanyName"), Variant("Acme"));
  EXPECT_TRUE(store.findRecord(rs, "Balance", "0"));
  EXPECT_EQ(store.getFieldValue(rs, "CompanyID"), Variant(int32_t{3}));
  EXPECT_TRUE(store.findRecord(rs, "Founded", "Feb 3, 2001"));
  EXPECT_TRUE(store.findRecord(rs, "CompanyName", "CÔTÉ & FILS"));
  EXPECT_FALSE(store.findRecord(rs, "Balance", "abc"));
  EXPECT_EQ(errorOf([&] { store.findRecord(rs, "Nope", "1"); }), err::kItemNotFound);

  // A write through another recordset reaches this one's values and finds.
  RecordsetHandle writer = store.openRecordset(
      "SELECT Companies.CompanyID, Companies.CompanyName FROM Companies WHERE CompanyID=1;", 1, 3);
  store.updateFieldValue(writer, "CompanyName", "Apex");
  EXPECT_FALSE(store.findRecord(rs, "CompanyName", "Acme"));
  ASSERT_TRUE(store.findRecord(rs, "CompanyName", "apex"));
  EXPECT_EQ(store.getFieldValue(rs, "CompanyID"), Variant(int32_t{1}));
  store.moveNextRecord(rs);
  EXPECT_EQ(store.getFieldValue(rs, "CompanyName"), Variant("Bolt"));
}

}  // namespace
}  // namespace qb

namespace qb::sqlite {
namespace {

TEST(StoreFailures, EachSaysWhatHappenedAndWhatToDo) {
  auto text = [](int rc, int systemError = 0, bool onNetworkShare = false) {
    Failure failure{"/data/firm.db", rc, systemError, onNetworkShare, 5000, "Can't run the query",
                    "sqlite's words"};
    return failureText(failure);
  };
  EXPECT_EQ(text(SQLITE_BUSY),
            "The database \"/data/firm.db\" is locked by another user or program (waited 5000 "
            "ms). Try again in a moment.");
  EXPECT_EQ(text(SQLITE_FULL),
            "The disk is full: \"/data/firm.db\" can't grow, and the change was not saved. Free "
            "some space on the disk and try again.\nCan't run the query: sqlite's words");
  EXPECT_EQ(text(SQLITE_IOERR_READ, EIO),
            "The database \"/data/firm.db\" could not be read or written (Input/output error). "
            "Check the disk and try again; if it keeps failing, restore the database from its "
            "last backup.\nCan't run the query: sqlite's words");
  EXPECT_EQ(text(SQLITE_IOERR_WRITE, EIO, true),
            "The database \"/data/firm.db\" could not be read or written: the network share it "
            "lies on does not answer. Check the connection to the server and try again.\nCan't "
            "run the query: sqlite's words");
  EXPECT_EQ(text(SQLITE_READONLY_DBMOVED),
            "The database \"/data/firm.db\" was moved or deleted while it was open; the change "
            "was not saved. Put the file back where it was and open it again.\nCan't run the "
            "query: sqlite's words");
  EXPECT_EQ(text(SQLITE_CANTOPEN, ENOENT).substr(0, 81),
            "The database \"/data/firm.db\" is gone: it was moved or deleted. Open it from where");
  EXPECT_EQ(text(SQLITE_CANTOPEN, EACCES).substr(0, 71),
            "The database \"/data/firm.db\" may not be read or written by you (permiss");
  EXPECT_EQ(text(SQLITE_CORRUPT).substr(0, 81),
            "The database \"/data/firm.db\" is damaged and can't be read. Restore it from its la");
  Failure missingTable{
      "/data/firm.db",          SQLITE_ERROR, 0, false, 5000, "Can't prepare the SQL",
      "no such table: Contacts"};
  EXPECT_EQ(failureText(missingTable),
            "The database \"/data/firm.db\" lacks a table or column this program needs: it is not "
            "a complete client database, or comes from another version.\nCan't prepare the SQL: "
            "no such table: Contacts");
  // Anything else keeps SQLite's words after what the store was doing.
  EXPECT_EQ(text(SQLITE_CONSTRAINT), "Can't run the query: sqlite's words");
}

}  // namespace
}  // namespace qb::sqlite

namespace qb {
namespace {

TEST_F(StoreTest, OnlyAClientDatabaseOpensAndOpeningChangesNothing) {
  store.close();
  // Opening for writing leaves the journal and the bytes as they were.
  execDirect("PRAGMA journal_mode=DELETE;");
  std::string bytes = fileBytes(path);
  store.open(path);
  EXPECT_EQ(store.journalMode(), "delete");
  store.close();
  EXPECT_EQ(fileBytes(path), bytes);

  execDirect("PRAGMA user_version=" + std::to_string(kClientDatabaseSchemaVersion + 1) + ";");
  EXPECT_EQ(messageOf([&] { store.open(path); }),
            "The client database \"" + path + "\" was made by a newer version (schema " +
                std::to_string(kClientDatabaseSchemaVersion + 1) + "; this program reads schema " +
                std::to_string(kClientDatabaseSchemaVersion) +
                "). Update this program to open it; the file was left as it is.");
  execDirect("PRAGMA user_version=0; PRAGMA application_id=0;");
  EXPECT_NE(messageOf([&] { store.open(path); }).find("a SQLite database of another program"),
            std::string::npos);
  EXPECT_FALSE(store.isConnected());

  // A new file gets the journal that suits where it lies.
  SqliteDatabase fresh;
  SqliteDatabase::Options create;
  create.create = true;
  fresh.open(folder.file("fresh.db"), create);
  EXPECT_EQ(fresh.journalMode(), "wal");
}

TEST_F(StoreTest, AFileMovedAwayWhileOpenKeepsItsData) {
  RecordsetHandle rs =
      store.openRecordset("SELECT Companies.* FROM Companies WHERE CompanyID=1;", 1, 3);
  store.moveFirstRecord(rs);
  std::filesystem::rename(path, folder.file("moved.db"));
  EXPECT_EQ(messageOf([&] { store.updateFieldValue(rs, "CompanyName", "Moved"); }),
            "The database \"" + path +
                "\" was moved or deleted while it was open; the change was not saved. Put the "
                "file back where it was and open it again.");
  EXPECT_EQ(store.getFieldValue(rs, "CompanyName"), Variant("Acme"));
  store.close();
  // Put back, it holds everything written before the move.
  std::filesystem::rename(folder.file("moved.db"), path);
  EXPECT_EQ(direct("SELECT CompanyName FROM Companies WHERE CompanyID=3"), "Côté & Fils");
}

}  // namespace
}  // namespace qb
