#include "services/store/sqlite_connection.h"

#include <sys/stat.h>

#include "services/errors/runtime_error.h"
#include "services/store/sqlite_failures.h"
#include "services/store/sqlite_query_shape.h"

namespace qb::sqlite {

Connection::~Connection() {
  shapes_.clear();
  statements_.clear();
  sqlite3_close_v2(db_);
}

void Connection::exec(const char* sql, const std::string& context) {
  int rc = sqlite3_exec(db_, sql, nullptr, nullptr, nullptr);
  if (rc != SQLITE_OK) fail(db_, rc, busyTimeoutMs_, context);
}

void Connection::executeScript(const std::string& sql) {
  // Cached shapes may describe tables the script changes; every table counts
  // as written, so open recordsets read their rows afresh.
  shapes_.clear();
  statements_.clear();
  for (uint64_t& version : versions_) ++version;
  char* message = nullptr;
  int rc = sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &message);
  if (rc == SQLITE_OK) return;
  sqlite::Failure failure = failureOf(db_, rc, busyTimeoutMs_, "Can't run the script");
  if (message != nullptr) failure.sqliteMessage = message;
  sqlite3_free(message);
  if (!sqlite3_get_autocommit(db_)) sqlite3_exec(db_, "ROLLBACK;", nullptr, nullptr, nullptr);
  throw RuntimeError(err::kStoreError, failureText(failure));
}

std::shared_ptr<QueryShape> Connection::shapeOf(const std::string& textWithoutKeys) {
  if (auto shape = shapes_.find(textWithoutKeys)) return shape;
  auto shape = QueryShape::prepare(*this, textWithoutKeys);
  shapes_.insert(textWithoutKeys, shape);
  return shape;
}

sqlite3_stmt* Connection::statement(const std::string& sql) {
  if (auto found = statements_.find(sql)) return found->get();
  auto made = std::make_shared<Statement>(db_, sql, busyTimeoutMs_);
  sqlite3_stmt* stmt = made->get();
  statements_.insert(sql, std::move(made));
  return stmt;
}

void Connection::beginWrite() {
  if (readOnly_) {
    throw RuntimeError(
        err::kStoreError,
        mayNotWrite_
            ? "The database \"" + path_ +
                  "\" may not be written by you (the file or its folder is read-only); "
                  "the change was not saved. Ask for write access to it, or copy it "
                  "where you may write."
            : "The database \"" + path_ + "\" is open for reading only; the change was not saved.");
  }
  // A file moved away keeps working through its open handle while its
  // write-ahead log stays under the old name: a write now would be found by
  // nobody who opens the file where it is.
  struct stat now {};
  if (fileId_.known && (stat(path_.c_str(), &now) != 0 || now.st_dev != fileId_.device ||
                        now.st_ino != fileId_.inode)) {
    throw RuntimeError(err::kStoreError, movedWhileOpen(path_));
  }
  runToEnd(db_, statement("BEGIN IMMEDIATE;"), busyTimeoutMs_, "Can't begin the write");
}

void Connection::commitWrite() {
  runToEnd(db_, statement("COMMIT;"), busyTimeoutMs_, "Can't commit the write");
}

void Connection::rollbackWrite() {
  if (!sqlite3_get_autocommit(db_)) sqlite3_exec(db_, "ROLLBACK;", nullptr, nullptr, nullptr);
}

int Connection::tableId(const std::string& name) {
  auto [found, added] = tableIds_.try_emplace(name, static_cast<int>(versions_.size()));
  if (added) versions_.push_back(0);
  return found->second;
}

}  // namespace qb::sqlite
