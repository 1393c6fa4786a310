// The store's SQL path under libFuzzer: any SQL text, as the system hands it
// to openRecordset (keys taken out as parameters, the shape prepared and
// cached, every row read), then the recordset operations the input's first
// bytes choose. A failure must come as a RuntimeError; whatever SQLite itself
// reads as one query that reads rows, the store must read too, with the same
// number of rows (taking keys out must not change what a text means).
//
// Input: one byte of operations count N, N operation bytes, then the SQL.

#include <sqlite3.h>

#include <climits>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "sample/sample_firm.h"
#include "services/errors/runtime_error.h"
#include "services/store/sqlite_database.h"

namespace {

qb::SqliteDatabase* store = nullptr;
sqlite3* direct = nullptr;

// A text whose rows change from one run to the next can't be compared.
bool variesByRun(const std::string& sql) {
  std::string lower;
  for (char c : sql) lower += static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
  return lower.find("random") != std::string::npos;
}

// SQLite runs a query past this many steps of its machine only for a text
// that makes any SQL engine work without end (a recursive query, a join of
// many tables): such a text is not the store's to answer.
constexpr int kStepBudget = 2000;  // in thousands of steps
int stepsLeft = 0;
int countSteps(void*) { return --stepsLeft <= 0 ? 1 : 0; }

constexpr int64_t kNotOneQuery = -1;
constexpr int64_t kTooLong = -2;

// The rows SQLite itself gives for a text that is one query that reads rows;
// kNotOneQuery for any other text, kTooLong past the budget.
int64_t directRows(const std::string& sql) {
  sqlite3_stmt* stmt = nullptr;
  const char* tail = nullptr;
  if (sqlite3_prepare_v2(direct, sql.c_str(), static_cast<int>(sql.size()), &stmt, &tail) !=
          SQLITE_OK ||
      stmt == nullptr) {
    return kNotOneQuery;
  }
  for (const char* rest = tail; rest < sql.c_str() + sql.size(); ++rest) {
    if (*rest != ' ' && *rest != ';' && *rest != '\n' && *rest != '\r' && *rest != '\t') {
      sqlite3_finalize(stmt);
      return kNotOneQuery;
    }
  }
  int64_t rows = kNotOneQuery;
  if (sqlite3_stmt_readonly(stmt) && sqlite3_column_count(stmt) > 0) {
    rows = 0;
    stepsLeft = kStepBudget;
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) ++rows;
    if (rc == SQLITE_INTERRUPT)
      rows = kTooLong;
    else if (rc != SQLITE_DONE)
      rows = kNotOneQuery;
  }
  sqlite3_finalize(stmt);
  return rows;
}

const char* const kFields[] = {"CompanyID",      "CompanyName", "ContactID",
                               "DisplayName",    "name",        "CategoryNum",
                               "DefaultContact", "x",           ""};

void operate(qb::RecordsetHandle handle, uint8_t op) {
  using qb::Variant;
  switch (op % 9) {
    case 0:
      store->moveFirstRecord(handle);
      break;
    case 1:
      store->moveNextRecord(handle);
      break;
    case 2:
      store->getFieldValue(handle, Variant(std::string(kFields[(op >> 4) % 9])));
      break;
    case 3:
      store->getFieldValue(handle, Variant(static_cast<int32_t>(op >> 4)));
      break;
    case 4:
      store->setRecordPosition(handle, static_cast<int16_t>((op >> 4) - 2));
      break;
    case 5:
      store->findRecord(handle, kFields[(op >> 4) % 9], std::to_string(op >> 5));
      break;
    case 6:
      store->getRecordPosition(handle);
      break;
    case 7:
      store->isEndOfRecordset(handle);
      break;
    default:
      store->getRecordCount(handle);
      break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  // A small client database of the sample firm, made once.
  std::string folder = std::filesystem::temp_directory_path() / "qb-fuzz-store-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) std::abort();
  std::string path = folder + "/firm.db";
  qb::createDatabase(path);
  qb::fillSampleFirm(path, folder + "/files");
  sqlite3_hard_heap_limit64(32 << 20);
  store = new qb::SqliteDatabase();
  qb::SqliteDatabase::Options reading;
  reading.readOnly = true;
  store->open(path, reading);
  sqlite3_open_v2(path.c_str(), &direct, SQLITE_OPEN_READONLY, nullptr);
  sqlite3_progress_handler(direct, 1000, countSteps, nullptr);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  size_t count = data[0] % 16;
  if (size < 1 + count) return 0;
  const uint8_t* ops = data + 1;
  std::string sql(reinterpret_cast<const char*>(data + 1 + count), size - 1 - count);
  if (sql.size() > 4096 || variesByRun(sql)) return 0;
  int64_t expected = directRows(sql);
  if (expected == kTooLong) return 0;

  qb::RecordsetHandle handle = 0;
  try {
    handle = store->openRecordset(sql, qb::adOpenKeyset, qb::adLockReadOnly);
  } catch (const qb::RuntimeError&) {
    // A refusal comes as a RuntimeError with its reason (the text is no
    // query, a key is out of range, memory ran short).
    return 0;
  }
  if (expected >= 0 && expected <= INT32_MAX && store->getRecordCount(handle) != expected) {
    __builtin_trap();  // taking the keys out changed what the text means
  }
  for (size_t i = 0; i < count; ++i) {
    try {
      operate(handle, ops[i]);
    } catch (const qb::RuntimeError&) {
    }
  }
  store->closeRecordset(handle);
  return 0;
}
