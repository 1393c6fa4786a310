// The store against raw SQLite: a point look-up through DatabaseReference
// (open, moveFirstRecord, getFieldValue, close) and the same query through a
// cached raw prepared statement; and findRecord on large recordsets.

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>

#include "services/runtime/conversions.h"
#include "services/store/schema.h"
#include "services/store/sqlite_database.h"

namespace {

// A database file of `rows` companies, made once per size and kept for the run.
std::string companiesFile(int rows) {
  std::string path =
      (std::filesystem::temp_directory_path() /
       ("qb-bench-companies-" + std::to_string(rows) + "-" + std::to_string(getpid()) + ".db"))
          .string();
  if (std::filesystem::exists(path)) return path;
  qb::SqliteDatabase db;
  qb::SqliteDatabase::Options options;
  options.create = true;
  db.open(path, options);
  db.executeScript(
      "CREATE TABLE Companies (CompanyID INTEGER PRIMARY KEY, CompanyName TEXT, City TEXT);"
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
      std::to_string(rows) +
      ") INSERT INTO Companies SELECT i, 'Company ' || i, 'Ottawa' FROM n;"
      // The mark of a client database, without which the store refuses the file.
      "PRAGMA application_id=" +
      std::to_string(qb::kClientDatabaseApplicationId) +
      ";"
      "PRAGMA user_version=" +
      std::to_string(qb::kClientDatabaseSchemaVersion) + ";");
  std::atexit([] {
    for (auto& entry : std::filesystem::directory_iterator(std::filesystem::temp_directory_path()))
      if (entry.path().filename().string().find("qb-bench-companies-") == 0 &&
          entry.path().string().find(std::to_string(getpid())) != std::string::npos)
        std::filesystem::remove(entry.path());
  });
  return path;
}

void BM_StorePointLookup(benchmark::State& state) {
  qb::SqliteDatabase db;
  db.open(companiesFile(10000));
  std::mt19937 random(7);
  std::string name;
  for (auto _ : state) {
    int id = static_cast<int>(random() % 10000) + 1;
    qb::RecordsetHandle rs = db.openRecordset(
        "SELECT Companies.CompanyID, Companies.CompanyName FROM Companies WHERE CompanyID=" +
            std::to_string(id) + ";",
        1, 1);
    if (db.moveFirstRecord(rs)) name = qb::toText(db.getFieldValue(rs, "CompanyName"));
    db.closeRecordset(rs);
    benchmark::DoNotOptimize(name);
  }
}
BENCHMARK(BM_StorePointLookup);

void BM_RawSqlitePointLookup(benchmark::State& state) {
  sqlite3* db = nullptr;
  sqlite3_open(companiesFile(10000).c_str(), &db);
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(
      db, "SELECT Companies.CompanyID, Companies.CompanyName FROM Companies WHERE CompanyID=?;", -1,
      &statement, nullptr);
  std::mt19937 random(7);
  std::string name;
  for (auto _ : state) {
    sqlite3_bind_int(statement, 1, static_cast<int>(random() % 10000) + 1);
    if (sqlite3_step(statement) == SQLITE_ROW)
      name = reinterpret_cast<const char*>(sqlite3_column_text(statement, 1));
    sqlite3_reset(statement);
    benchmark::DoNotOptimize(name);
  }
  sqlite3_finalize(statement);
  sqlite3_close(db);
}
BENCHMARK(BM_RawSqlitePointLookup);

// findRecord on an open recordset of N rows: the first find builds the index,
// every later one is a hash look-up, so the cost per find does not grow with N.
void BM_FindRecord(benchmark::State& state) {
  int rows = static_cast<int>(state.range(0));
  qb::SqliteDatabase db;
  db.open(companiesFile(rows));
  qb::RecordsetHandle rs = db.openRecordset("SELECT Companies.* FROM Companies;", 1, 1);
  std::mt19937 random(11);
  for (auto _ : state) {
    bool found = db.findRecord(rs, "CompanyID", std::to_string(random() % rows + 1));
    benchmark::DoNotOptimize(found);
  }
  db.closeRecordset(rs);
}
BENCHMARK(BM_FindRecord)->Arg(1000)->Arg(10000)->Arg(100000);

}  // namespace
