#pragma once
// The store's SQLite connection: opening a client database file (and only
// such a file), the caches of prepared statements, the tables met so far with
// a count of the writes made to each, and the write transaction.

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "services/store/sqlite_database.h"
#include "services/store/sqlite_lru_cache.h"
#include "services/store/sqlite_names.h"
#include "services/store/sqlite_sql_text.h"
#include "services/store/sqlite_statement.h"

namespace qb::sqlite {

struct QueryShape;

class Connection {
 public:
  // Opens the file; fails with a RuntimeError (kStoreError) when it is
  // missing (unless options.create), can't be opened or read, or is no
  // client database (empty, not SQLite, without the mark of the schema).
  // Only a file made here (options.create on a missing or empty file) gets
  // its journal chosen; an existing file is not changed by opening it.
  Connection(const std::string& path, const SqliteDatabase::Options& options);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  sqlite3* db() const { return db_; }
  const std::string& path() const { return path_; }
  const std::string& journalMode() const { return journalMode_; }
  int busyTimeoutMs() const { return busyTimeoutMs_; }
  bool readOnly() const { return readOnly_; }

  // Runs a script of statements. Every table counts as written.
  void executeScript(const std::string& sql);

  // The shape of a query, prepared once for each text with its keys taken
  // out and kept among the most recently used.
  std::shared_ptr<QueryShape> shapeOf(const std::string& textWithoutKeys);
  // A statement the store composes itself (a write, a re-read of one row),
  // prepared once for each text.
  sqlite3_stmt* statement(const std::string& sql);

  // Runs body inside BEGIN IMMEDIATE ... COMMIT; a failure of the body or of
  // the commit rolls back and passes the failure on. Fails at once on a
  // database open for reading only.
  template <typename Body>
  void writeTransaction(Body&& body) {
    beginWrite();
    try {
      body();
      commitWrite();
    } catch (...) {
      rollbackWrite();
      throw;
    }
  }

  // A table by its name, the same number for every spelling of it.
  int tableId(const std::string& name);
  // How many writes this connection has committed to the table.
  uint64_t version(int tableId) const { return versions_[tableId]; }
  void noteWrite(int tableId) { ++versions_[tableId]; }

 private:
  void beginWrite();
  void commitWrite();
  void rollbackWrite();
  void exec(const char* sql, const std::string& context);
  // The first column of the first row of a statement, as text.
  std::string textOf(const char* sql, const std::string& context);
  void checkMark();
  void setJournal(bool created);

  sqlite3* db_ = nullptr;
  std::string path_;
  std::string journalMode_;
  int busyTimeoutMs_ = 5000;
  bool readOnly_ = false;
  bool mayNotWrite_ = false;  // read-only because the user may not write the file
  struct FileId {
    bool known = false;
    uint64_t device = 0;
    uint64_t inode = 0;
  } fileId_;  // the file opened, to tell when its path names another
  LruCache<QueryShape> shapes_{256};
  LruCache<Statement> statements_{128};
  NameMap<int> tableIds_;  // by name in any case
  std::vector<uint64_t> versions_;
};

}  // namespace qb::sqlite
