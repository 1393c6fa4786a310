#pragma once
// FaultyVfs: a SQLite VFS over the system's own that fails on demand, in the
// manner of SQLite's own I/O-error tests. Every read, write and sync of every
// file opened through it (the database, its journal, its write-ahead log) is
// counted by kind; arm(kind, n) makes the nth one from then on fail once,
// with the result code given (an I/O error, or a full disk for a write).
//
//   FaultyVfs vfs;                         // registered as "faulty"
//   options.vfs = vfs.name();              // or vfs.makeDefault()
//   vfs.arm(FaultyVfs::Kind::Write, 3);
//   ... run the operation ...
//   EXPECT_TRUE(vfs.fired());

#include <sqlite3.h>

#include <string>

namespace qb::test {

class FaultyVfs {
 public:
  enum class Kind { Read, Write, Sync };

  FaultyVfs();
  // Unregisters the VFS (and gives the default back when it was made the
  // default).
  ~FaultyVfs();
  FaultyVfs(const FaultyVfs&) = delete;
  FaultyVfs& operator=(const FaultyVfs&) = delete;

  const char* name() const { return "faulty"; }
  // Every connection opened from now on without a VFS name uses this one.
  void makeDefault();

  // The nth operation of the kind from now on fails with rc (0: an I/O error
  // of that kind; SQLITE_FULL for a full disk). Counting starts afresh.
  void arm(Kind kind, int n, int rc = 0);
  // No more failures.
  void disarm();
  // True once the armed failure happened.
  bool fired() const;
  // Operations of the kind counted since the last arm().
  int count(Kind kind) const;

 private:
  sqlite3_vfs vfs_{};
};

}  // namespace qb::test
