#pragma once
// A prepared SQLite statement that finalizes itself, and the store's way of
// turning a SQLite failure into a RuntimeError.

#include <sqlite3.h>

#include <string>
#include <string_view>

namespace qb::sqlite {

class Statement {
 public:
  Statement() = default;
  // Prepares the SQL (one statement; a trailing ";" and blanks are allowed).
  // Fails with a RuntimeError carrying SQLite's message.
  Statement(sqlite3* db, std::string_view sql, int busyTimeoutMs);
  ~Statement();
  Statement(Statement&& other) noexcept : stmt_(other.stmt_) { other.stmt_ = nullptr; }
  Statement& operator=(Statement&& other) noexcept;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  sqlite3_stmt* get() const { return stmt_; }
  explicit operator bool() const { return stmt_ != nullptr; }

 private:
  sqlite3_stmt* stmt_ = nullptr;
};

// Resets a statement and clears its parameters when a use of it ends, also
// when the use fails half way.
class StatementUse {
 public:
  explicit StatementUse(sqlite3_stmt* stmt) : stmt_(stmt) {}
  ~StatementUse() {
    sqlite3_reset(stmt_);
    sqlite3_clear_bindings(stmt_);
  }
  StatementUse(const StatementUse&) = delete;
  StatementUse& operator=(const StatementUse&) = delete;

 private:
  sqlite3_stmt* stmt_;
};

// Throws the RuntimeError for a SQLite result code: a busy or locked database
// says so and how long it waited; anything else carries SQLite's message
// after the context ("Can't run the query", ...).
[[noreturn]] void fail(sqlite3* db, int rc, int busyTimeoutMs, const std::string& context);

// Steps a statement that returns no rows (or whose rows are not wanted) to
// its end; fails as fail() does.
void runToEnd(sqlite3* db, sqlite3_stmt* stmt, int busyTimeoutMs, const std::string& context);

}  // namespace qb::sqlite
