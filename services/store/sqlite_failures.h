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

// The text for a SQLite result code on the database file at path ("" when
// not known): a locked database, a full disk, a read or write error (a
// network share that stopped answering), a damaged file, a file moved away
// while open, a file that may not be read or written. Any other failure gives
// context, ": " and SQLite's message. systemError is the errno behind it
// (0 when none).
std::string failureText(const std::string& path, int rc, int systemError, int busyTimeoutMs,
                        const std::string& context, const std::string& sqliteMessage);

}  // namespace qb::sqlite
