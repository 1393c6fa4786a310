// Opening a client database: the checks that the file is one before anything
// touches it, reading without writing, and the journal chosen once.

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "services/errors/runtime_error.h"
#include "services/store/schema.h"
#include "services/store/sqlite_connection.h"
#include "services/store/sqlite_failures.h"

namespace qb::sqlite {

namespace {

[[noreturn]] void storeError(const std::string& message) {
  throw RuntimeError(err::kStoreError, message);
}

std::string inQuotes(const std::string& path) { return "\"" + path + "\""; }

// SQLite reads a WAL database in a folder it may not write only when the
// files beside the database are there, or when it takes the file as it
// stands. Taking it as it stands is right when no write-ahead log holds
// changes that are not in the file yet.
bool readableOnlyAsItStands(const std::string& path) {
  std::filesystem::path file(path);
  std::string folder = file.parent_path().empty() ? "." : file.parent_path().string();
  if (access(folder.c_str(), W_OK) == 0) return false;
  struct stat wal {};
  bool walHoldsChanges = stat((path + "-wal").c_str(), &wal) == 0 && wal.st_size > 0;
  return !walHoldsChanges && access((path + "-shm").c_str(), F_OK) != 0;
}

// The file's URI for SQLite with "immutable=1": read as it stands.
std::string immutableUri(const std::string& path) {
  static const char* kHex = "0123456789ABCDEF";
  std::string uri = "file:";
  for (char c : std::filesystem::absolute(path).string()) {
    if (c == '%' || c == '?' || c == '#') {
      uri += '%';
      uri += kHex[(static_cast<unsigned char>(c) >> 4) & 0xF];
      uri += kHex[static_cast<unsigned char>(c) & 0xF];
    } else {
      uri += c;
    }
  }
  return uri + "?immutable=1";
}

}  // namespace

Connection::Connection(const std::string& path, const SqliteDatabase::Options& options)
    : path_(path), busyTimeoutMs_(options.busyTimeoutMs) {
  struct stat info {};
  bool exists = stat(path.c_str(), &info) == 0;
  if (!exists && !options.create) {
    storeError("There is no database file at " + inQuotes(path) +
               ". Check the path; the file may have been moved or deleted.");
  }
  if (exists && S_ISDIR(info.st_mode)) {
    storeError(inQuotes(path) +
               " is a folder, not a database file. Choose the client database file.");
  }
  if (exists && access(path.c_str(), R_OK) != 0) {
    storeError("The database " + inQuotes(path) +
               " may not be read by you (permission denied). Ask for access to it, or copy it "
               "where you may read it.");
  }
  // Only a file that is new to the store (absent, or of no bytes) is made a
  // client database here; any other must be one already.
  bool created = options.create && (!exists || info.st_size == 0);
  if (exists && info.st_size == 0 && !created) {
    storeError("The file " + inQuotes(path) +
               " is empty: it is not a client database. Choose the firm's client database file; "
               "this one was left as it is.");
  }
  // A file the user may not write opens for reading, so that reads still work
  // and every write fails with a clear message.
  mayNotWrite_ = exists && access(path.c_str(), W_OK) != 0;
  readOnly_ = options.readOnly || mayNotWrite_;
  bool asItStands = readOnly_ && exists && readableOnlyAsItStands(path);
  int flags = SQLITE_OPEN_NOMUTEX | (asItStands ? SQLITE_OPEN_URI : 0) |
              (readOnly_ ? SQLITE_OPEN_READONLY
                         : SQLITE_OPEN_READWRITE | (options.create ? SQLITE_OPEN_CREATE : 0));
  std::string name = asItStands ? immutableUri(path) : path;
  int rc = sqlite3_open_v2(name.c_str(), &db_, flags,
                           options.vfs.empty() ? nullptr : options.vfs.c_str());
  try {
    if (rc != SQLITE_OK) fail(db_, rc, busyTimeoutMs_, "Can't open the database");
    sqlite3_extended_result_codes(db_, 1);
    sqlite3_busy_timeout(db_, busyTimeoutMs_);
    rc = sqlite3_exec(db_, "SELECT count(*) FROM sqlite_master;", nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK) fail(db_, rc, busyTimeoutMs_, "Can't read the database");
    if (!created) checkMark();
    struct stat opened {};
    if (stat(path.c_str(), &opened) == 0) {
      fileId_ = {true, static_cast<uint64_t>(opened.st_dev), static_cast<uint64_t>(opened.st_ino)};
    }
    // The system's data relies on no foreign key rule.
    exec("PRAGMA foreign_keys=OFF;", "Can't set up the database");
    setJournal(created);
  } catch (...) {
    sqlite3_close_v2(db_);
    db_ = nullptr;
    throw;
  }
}

// A client database carries the mark its schema set. Anything else (another
// program's SQLite file, a file of a newer schema) is refused as it is.
void Connection::checkMark() {
  int64_t applicationId = std::stoll(textOf("PRAGMA application_id;", "Can't read the database"));
  int64_t version = std::stoll(textOf("PRAGMA user_version;", "Can't read the database"));
  if (applicationId != kClientDatabaseApplicationId) {
    storeError("The file " + inQuotes(path_) +
               " is not a client database: it is a SQLite database of another program. Choose "
               "the firm's client database file; this one was left as it is.");
  }
  if (version > kClientDatabaseSchemaVersion) {
    storeError("The client database " + inQuotes(path_) + " was made by a newer version (schema " +
               std::to_string(version) + "; this program reads schema " +
               std::to_string(kClientDatabaseSchemaVersion) +
               "). Update this program to open it; the file was left as it is.");
  }
  if (version < 1) {
    storeError("The client database " + inQuotes(path_) +
               " has no schema version: it was not finished when it was made. Make it again; the "
               "file was left as it is.");
  }
}

// The journal is chosen once, when the file is made: WAL with
// synchronous=NORMAL on a local disk (every field write commits at once, and a
// commit then costs no flush to disk), the rollback journal on a network
// share, where WAL can't work. Every later open leaves it as it is.
void Connection::setJournal(bool created) {
  const char* pragma = "PRAGMA journal_mode;";
  if (created) {
    pragma =
        isNetworkFileSystem(path_) ? "PRAGMA journal_mode=DELETE;" : "PRAGMA journal_mode=WAL;";
  }
  journalMode_ = textOf(pragma, "Can't set the journal of the database");
  std::transform(journalMode_.begin(), journalMode_.end(), journalMode_.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (journalMode_ == "wal" && !readOnly_) {
    exec("PRAGMA synchronous=NORMAL;", "Can't set up the database");
  }
}

std::string Connection::textOf(const char* sql, const std::string& context) {
  Statement statement(db_, sql, busyTimeoutMs_);
  StatementUse use(statement.get());
  int rc = sqlite3_step(statement.get());
  if (rc != SQLITE_ROW) fail(db_, rc, busyTimeoutMs_, context);
  const unsigned char* text = sqlite3_column_text(statement.get(), 0);
  return text != nullptr ? reinterpret_cast<const char*>(text) : "";
}

}  // namespace qb::sqlite
