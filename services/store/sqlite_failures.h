#pragma once
// What a SQLite failure means to the user of a client database. The first
// line of each text says what happened and what to do; SQLite's own words
// follow on the next line for whoever looks after the firm's files.

#include <sqlite3.h>

#include <string>

namespace qb::sqlite {

// True for the file system types on which WAL can't work and whose failures
// are a server's: NFS, SMB, CIFS, SMB2 and FUSE (sshfs and its kind).
bool isNetworkFileSystem(const std::string& path);

// What went wrong, as SQLite and the system tell it.
struct Failure {
  std::string path;             // the database file; "" when not known
  int rc = 0;                   // SQLite's (extended) result code
  int systemError = 0;          // the errno behind it; 0 when none
  bool onNetworkShare = false;  // the file lies on a network file system
  int busyTimeoutMs = 0;        // how long a busy database was waited on
  std::string context;          // what the store was doing ("Can't run the query")
  std::string sqliteMessage;    // SQLite's own words
};

// The text for a failure: a locked database, a full disk, a read or write
// error (on a network share: the share stopped answering), a damaged file, a
// file moved away while open, a file that may not be read or written, a
// table missing. Any other failure gives the context, ": " and SQLite's
// message.
std::string failureText(const Failure& failure);

// The text for a database file that was moved or deleted while it was open.
std::string movedWhileOpen(const std::string& path);

// The failure of the last call on db that returned rc.
Failure failureOf(sqlite3* db, int rc, int busyTimeoutMs, const std::string& context);

}  // namespace qb::sqlite
