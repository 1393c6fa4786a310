#include "sample/sample_writer.h"

#include <sqlite3.h>

#include <stdexcept>

namespace qb::sample {

SampleWriter::SampleWriter(const std::string& path) {
  if (sqlite3_open_v2(path.c_str(), &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
    std::string message = db_ != nullptr ? sqlite3_errmsg(db_) : "out of memory";
    sqlite3_close(db_);
    db_ = nullptr;
    throw std::runtime_error("can't open " + path + ": " + message);
  }
  sqlite3_busy_timeout(db_, 5000);
}

SampleWriter::~SampleWriter() {
  for (auto& entry : statements_) sqlite3_finalize(entry.second);
  if (inTransaction_) sqlite3_exec(db_, "ROLLBACK;", nullptr, nullptr, nullptr);
  sqlite3_close(db_);
}

void SampleWriter::execute(const char* sql) {
  char* error = nullptr;
  if (sqlite3_exec(db_, sql, nullptr, nullptr, &error) != SQLITE_OK) {
    std::string message = error != nullptr ? error : "unknown error";
    sqlite3_free(error);
    throw std::runtime_error(message);
  }
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
  if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
    throw std::runtime_error(std::string(sqlite3_errmsg(db_)) + " in " + sql);
  }
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
  if (rc != SQLITE_DONE) {
    throw std::runtime_error(std::string(sqlite3_errmsg(db_)) + " inserting into " + table);
  }
}

void SampleWriter::commit() {
  if (!inTransaction_) return;
  execute("COMMIT;");
  inTransaction_ = false;
}

}  // namespace qb::sample
