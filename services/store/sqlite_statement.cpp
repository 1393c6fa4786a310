#include "services/store/sqlite_statement.h"

#include "services/errors/runtime_error.h"

namespace qb::sqlite {

namespace {

bool onlyBlanksOrSemicolons(const char* from, const char* to) {
  for (; from < to; ++from) {
    char c = *from;
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r' && c != ';') return false;
  }
  return true;
}

}  // namespace

Statement::Statement(sqlite3* db, std::string_view sql, int busyTimeoutMs) {
  const char* tail = nullptr;
  int rc = sqlite3_prepare_v3(db, sql.data(), static_cast<int>(sql.size()),
                              SQLITE_PREPARE_PERSISTENT, &stmt_, &tail);
  if (rc != SQLITE_OK) fail(db, rc, busyTimeoutMs, "Can't prepare the SQL");
  if (stmt_ == nullptr) {
    throw RuntimeError(err::kStoreError, "The SQL text holds no statement.");
  }
  if (tail != nullptr && !onlyBlanksOrSemicolons(tail, sql.data() + sql.size())) {
    sqlite3_finalize(stmt_);
    stmt_ = nullptr;
    throw RuntimeError(err::kStoreError, "The SQL text holds more than one statement.");
  }
}

Statement::~Statement() { sqlite3_finalize(stmt_); }

Statement& Statement::operator=(Statement&& other) noexcept {
  if (this != &other) {
    sqlite3_finalize(stmt_);
    stmt_ = other.stmt_;
    other.stmt_ = nullptr;
  }
  return *this;
}

void runToEnd(sqlite3* db, sqlite3_stmt* stmt, int busyTimeoutMs, const std::string& context) {
  StatementUse use(stmt);
  int rc;
  while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
  }
  if (rc != SQLITE_DONE) fail(db, rc, busyTimeoutMs, context);
}

}  // namespace qb::sqlite
