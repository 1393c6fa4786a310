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

void fail(sqlite3* db, int rc, int busyTimeoutMs, const std::string& context) {
  int primary = rc & 0xff;
  if (primary == SQLITE_BUSY || primary == SQLITE_LOCKED) {
    throw RuntimeError(err::kStoreError,
                       "The database is locked by another user or process (waited " +
                           std::to_string(busyTimeoutMs) + " ms). Try again in a moment.");
  }
  std::string message = db != nullptr ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
  throw RuntimeError(err::kStoreError, context + ": " + message);
}

void runToEnd(sqlite3* db, sqlite3_stmt* stmt, int busyTimeoutMs, const std::string& context) {
  StatementUse use(stmt);
  int rc;
  while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
  }
  if (rc != SQLITE_DONE) fail(db, rc, busyTimeoutMs, context);
}

}  // namespace qb::sqlite
