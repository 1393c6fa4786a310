#include "sample/sample_writer.h"

#include <sqlite3.h>

#include <stdexcept>

#include "services/store/sqlite_failures.h"

namespace qb::sample {

namespace {

constexpr int kBusyTimeoutMs = 5000;

// The store's text for a failure: what happened (a full disk, a locked file)
// and what to do, then SQLite's own words.
[[noreturn]] void writeFailed(sqlite3* db, int rc, const std::string& context) {
  throw std::runtime_error(sqlite::failureText(sqlite::failureOf(db, rc, kBusyTimeoutMs, context)));
}

}  // namespace

SampleWriter::SampleWriter(const std::string& path) {
  int rc = sqlite3_open_v2(path.c_str(), &db_, SQLITE_OPEN_READWRITE, nullptr);
  if (rc != SQLITE_OK) {
    sqlite::Failure failure = sqlite::failureOf(db_, rc, kBusyTimeoutMs, "Can't open the database");
    failure.path = path;
    sqlite3_close(db_);
    db_ = nullptr;
    throw std::runtime_error(sqlite::failureText(failure));
  }
  sqlite3_extended_result_codes(db_, 1);
  sqlite3_busy_timeout(db_, kBusyTimeoutMs);
}

SampleWriter::~SampleWriter() {
  for (auto& entry : statements_) sqlite3_finalize(entry.second);
  if (inTransaction_) sqlite3_exec(db_, "ROLLBACK;", nullptr, nullptr, nullptr);
  sqlite3_close(db_);
}

void SampleWriter::execute(const char* sql) {
  int rc = sqlite3_exec(db_, sql, nullptr, nullptr, nullptr);
  if (rc != SQLITE_OK) writeFailed(db_, rc, std::string("Can't run ") + sql);
}

sqlite3_stmt* SampleWriter::statement(const std::string& table, const Field* begin,
                                      const Field* end) {
  std::string columns;
  std::string marks;
  for (const Field* field = begin; field != end; ++field) {
    if (!columns.empty()) {
      columns += ", ";
      marks += ", ";
    }
    columns += field->name;
    marks += "?";
  }
  std::string sql = "INSERT INTO " + table + " (" + columns + ") VALUES (" + marks + ");";
  auto found = statements_.find(sql);
  if (found != statements_.end()) return found->second;
  sqlite3_stmt* stmt = nullptr;
  int rc = sqlite3_prepare_v2(db_, sql.c_str(), -1, &stmt, nullptr);
  if (rc != SQLITE_OK) writeFailed(db_, rc, "Can't prepare " + sql);
  statements_.emplace(sql, stmt);
  return stmt;
}

void SampleWriter::insert(const std::string& table, std::initializer_list<Field> fields) {
  insertRange(table, fields.begin(), fields.end());
}

void SampleWriter::insert(const std::string& table, const std::vector<Field>& fields) {
  insertRange(table, fields.data(), fields.data() + fields.size());
}

void SampleWriter::insertRange(const std::string& table, const Field* begin, const Field* end) {
  if (!inTransaction_) {
    execute("BEGIN IMMEDIATE;");
    inTransaction_ = true;
  }
  sqlite3_stmt* stmt = statement(table, begin, end);
  int index = 1;
  for (const Field* field = begin; field != end; ++field, ++index) {
    if (const auto* number = std::get_if<int64_t>(&field->value)) {
      sqlite3_bind_int64(stmt, index, *number);
    } else if (const auto* real = std::get_if<double>(&field->value)) {
      sqlite3_bind_double(stmt, index, *real);
    } else if (const auto* text = std::get_if<std::string>(&field->value)) {
      sqlite3_bind_text(stmt, index, text->c_str(), static_cast<int>(text->size()),
                        SQLITE_TRANSIENT);
    } else {
      sqlite3_bind_null(stmt, index);
    }
  }
  int rc = sqlite3_step(stmt);
  sqlite3_reset(stmt);
  sqlite3_clear_bindings(stmt);
  if (rc != SQLITE_DONE) writeFailed(db_, rc, "Can't insert into " + table);
}

void SampleWriter::commit() {
  if (!inTransaction_) return;
  execute("COMMIT;");
  inTransaction_ = false;
}

}  // namespace qb::sample
