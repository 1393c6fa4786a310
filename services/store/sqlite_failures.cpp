#include "services/store/sqlite_failures.h"

#include <sys/statfs.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "services/errors/runtime_error.h"
#include "services/store/sqlite_statement.h"

namespace qb::sqlite {

namespace {

std::string systemReason(int systemError) {
  return systemError != 0 ? std::string(std::strerror(systemError)) : std::string();
}

bool startsWith(const std::string& text, const char* prefix) { return text.rfind(prefix, 0) == 0; }

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

std::string movedWhileOpen(const std::string& path) {
  return (path.empty() ? "The database" : "The database \"" + path + "\"") +
         " was moved or deleted while it was open; the change was not saved. Put the file back "
         "where it was and open it again.";
}

std::string failureText(const Failure& failure) {
  const std::string& path = failure.path;
  const int rc = failure.rc;
  const int systemError = failure.systemError;
  const std::string& sqliteMessage = failure.sqliteMessage;
  const std::string& context = failure.context;
  const std::string database = path.empty() ? "The database" : "The database \"" + path + "\"";
  const std::string detail = "\n" + context + ": " + sqliteMessage;
  switch (rc & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      // Who holds the lock is not knowable from here.
      return database + " is locked by another user or program (waited " +
             std::to_string(failure.busyTimeoutMs) + " ms). Try again in a moment.";
    case SQLITE_FULL:
      return "The disk is full: " + (path.empty() ? "the database" : "\"" + path + "\"") +
             " can't grow, and the change was not saved. Free some space on the disk and try "
             "again." +
             detail;
    case SQLITE_IOERR:
      if (rc == SQLITE_IOERR_NOMEM) break;
      if (failure.onNetworkShare) {
        return database +
               " could not be read or written: the network share it lies on does not answer. "
               "Check the connection to the server and try again." +
               detail;
      }
      return database + " could not be read or written" +
             (systemError != 0 ? " (" + systemReason(systemError) + ")" : std::string()) +
             ". Check the disk and try again; if it keeps failing, restore the database from "
             "its last backup." +
             detail;
    case SQLITE_CORRUPT:
      return database + " is damaged and can't be read. Restore it from its last backup." + detail;
    case SQLITE_NOTADB:
      return database +
             " is not a client database: it is not a SQLite database file. Choose the "
             "firm's client database file." +
             detail;
    case SQLITE_READONLY:
      if (rc == SQLITE_READONLY_DBMOVED) return movedWhileOpen(path) + detail;
      return database +
             " may not be written (the file or its folder is read-only for you); the change was "
             "not saved. Ask for write access to it, or copy it where you may write." +
             detail;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      if (systemError == EACCES || systemError == EPERM || (rc & 0xff) != SQLITE_CANTOPEN) {
        return database +
               " may not be read or written by you (permission denied). Ask for "
               "access to it, or copy it where you may read and write." +
               detail;
      }
      if (systemError == ENOENT) {
        return database + " is gone: it was moved or deleted. Open it from where it is now." +
               detail;
      }
      return database + " can't be opened" +
             (systemError != 0 ? " (" + systemReason(systemError) + ")" : std::string()) +
             ". Check that the disk or network share that holds it is there, and try again." +
             detail;
    case SQLITE_ERROR:
      if (startsWith(sqliteMessage, "no such table") ||
          startsWith(sqliteMessage, "no such column")) {
        return database +
               " lacks a table or column this program needs: it is not a complete client "
               "database, or comes from another version." +
               detail;
      }
      break;
    default:
      break;
  }
  if ((rc & 0xff) == SQLITE_NOMEM || rc == SQLITE_IOERR_NOMEM) {
    return "There is not enough memory to work on the database. Close other programs and try "
           "again." +
           detail;
  }
  return context + ": " + sqliteMessage;
}

Failure failureOf(sqlite3* db, int rc, int busyTimeoutMs, const std::string& context) {
  Failure failure;
  const char* name = db != nullptr ? sqlite3_db_filename(db, "main") : nullptr;
  failure.path = name != nullptr ? name : "";
  failure.rc = rc;
  failure.systemError = db != nullptr ? sqlite3_system_errno(db) : 0;
  failure.onNetworkShare =
      (rc & 0xff) == SQLITE_IOERR && !failure.path.empty() && isNetworkFileSystem(failure.path);
  failure.busyTimeoutMs = busyTimeoutMs;
  failure.context = context;
  failure.sqliteMessage = db != nullptr ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
  return failure;
}

void fail(sqlite3* db, int rc, int busyTimeoutMs, const std::string& context) {
  throw RuntimeError(err::kStoreError, failureText(failureOf(db, rc, busyTimeoutMs, context)));
}

}  // namespace qb::sqlite
