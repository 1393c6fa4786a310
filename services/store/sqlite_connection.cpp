#include "services/store/sqlite_connection.h"

#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "services/errors/runtime_error.h"
#include "services/store/sqlite_query_shape.h"

namespace qb::sqlite {

namespace {

[[noreturn]] void storeError(const std::string& message) {
  throw RuntimeError(err::kStoreError, message);
}

}  // namespace

bool isNetworkFileSystem(const std::string& path) {
  struct statfs info {};
  std::string where = path;
  if (statfs(where.c_str(), &info) != 0) {
    where = std::filesystem::path(path).parent_path().string();
    if (where.empty()) where = ".";
    if (statfs(where.c_str(), &info) != 0) return false;
  }
  switch (static_cast<unsigned long>(info.f_type) & 0xffffffffUL) {
    case 0x6969UL:      // NFS
    case 0x517BUL:      // SMB
    case 0xFF534D42UL:  // CIFS
    case 0xFE534D42UL:  // SMB2
    case 0x65735546UL:  // FUSE (sshfs)
      return true;
    default:
      return false;
  }
}

Connection::Connection(const std::string& path, const SqliteDatabase::Options& options)
    : path_(path), busyTimeoutMs_(options.busyTimeoutMs) {
  struct stat info {};
  bool exists = stat(path.c_str(), &info) == 0;
  if (!exists && !options.create) storeError("The database file \"" + path + "\" does not exist.");
  if (exists && S_ISDIR(info.st_mode)) {
    storeError("\"" + path + "\" is a folder, not a database file.");
  }
  // A file the user may not write opens for reading, so that reads still work
  // and every write fails with a clear message.
  readOnly_ = options.readOnly || (exists && access(path.c_str(), W_OK) != 0);
  int flags = SQLITE_OPEN_NOMUTEX |
              (readOnly_ ? SQLITE_OPEN_READONLY
                         : SQLITE_OPEN_READWRITE | (options.create ? SQLITE_OPEN_CREATE : 0));
  int rc = sqlite3_open_v2(path.c_str(), &db_, flags, nullptr);
  try {
    if (rc != SQLITE_OK) {
      storeError("The database file \"" + path + "\" can't be opened: " +
                 (db_ != nullptr ? sqlite3_errmsg(db_) : sqlite3_errstr(rc)));
    }
    sqlite3_busy_timeout(db_, busyTimeoutMs_);
    rc = sqlite3_exec(db_, "SELECT count(*) FROM sqlite_master;", nullptr, nullptr, nullptr);
    if (rc == SQLITE_NOTADB) storeError("The file \"" + path + "\" is not a database.");
    if (rc != SQLITE_OK) fail(db_, rc, busyTimeoutMs_, "Can't read the database \"" + path + "\"");
    // The system's data relies on no foreign key rule.
    exec("PRAGMA foreign_keys=OFF;", "Can't set up the database");
    setJournal(path);
  } catch (...) {
    sqlite3_close_v2(db_);
    db_ = nullptr;
    throw;
  }
}

Connection::~Connection() {
  shapes_.clear();
  statements_.clear();
  sqlite3_close_v2(db_);
}

// WAL with synchronous=NORMAL on a local disk: every field write commits at
// once, and a commit then costs no flush to disk. WAL can't work on a network
// share, so a file there keeps the rollback journal.
void Connection::setJournal(const std::string& path) {
  const char* pragma = "PRAGMA journal_mode;";
  if (!readOnly_) {
    pragma = isNetworkFileSystem(path) ? "PRAGMA journal_mode=DELETE;" : "PRAGMA journal_mode=WAL;";
  }
  Statement journal(db_, pragma, busyTimeoutMs_);
  StatementUse use(journal.get());
  int rc = sqlite3_step(journal.get());
  if (rc != SQLITE_ROW) fail(db_, rc, busyTimeoutMs_, "Can't set the journal of the database");
  const unsigned char* mode = sqlite3_column_text(journal.get(), 0);
  journalMode_ = mode != nullptr ? reinterpret_cast<const char*>(mode) : "";
  std::transform(journalMode_.begin(), journalMode_.end(), journalMode_.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (journalMode_ == "wal" && !readOnly_) {
    exec("PRAGMA synchronous=NORMAL;", "Can't set up the database");
  }
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
  std::string text = message != nullptr ? message : sqlite3_errstr(rc);
  sqlite3_free(message);
  if (!sqlite3_get_autocommit(db_)) sqlite3_exec(db_, "ROLLBACK;", nullptr, nullptr, nullptr);
  int primary = rc & 0xff;
  if (primary == SQLITE_BUSY || primary == SQLITE_LOCKED) fail(db_, rc, busyTimeoutMs_, "");
  storeError("Can't run the script: " + text);
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
    storeError("The database \"" + path_ +
               "\" is open for reading only; the change was not saved.");
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
