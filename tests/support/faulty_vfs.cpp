#include "tests/support/faulty_vfs.h"

#include <cstring>
#include <stdexcept>

namespace qb::test {

namespace {

// One VFS of this kind exists at a time; its state is shared by its files.
struct FaultState {
  sqlite3_vfs* real = nullptr;
  FaultyVfs::Kind kind = FaultyVfs::Kind::Write;
  int remaining = 0;  // 0: not armed
  int rc = 0;
  bool fired = false;
  int counts[3] = {0, 0, 0};
  bool wasDefault = false;
};
FaultState state;

// A file of the VFS: the real file behind it, opened by the real VFS in the
// space that follows.
struct FaultyFile {
  sqlite3_file base;
  sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

FaultyFile* faulty(sqlite3_file* file) { return reinterpret_cast<FaultyFile*>(file); }

// Counts an operation of the kind; true when it is to fail.
bool failsNow(FaultyVfs::Kind kind) {
  ++state.counts[static_cast<int>(kind)];
  if (state.remaining == 0 || state.kind != kind) return false;
  if (--state.remaining > 0) return false;
  state.fired = true;
  return true;
}

int defaultCode(FaultyVfs::Kind kind) {
  switch (kind) {
    case FaultyVfs::Kind::Read:
      return SQLITE_IOERR_READ;
    case FaultyVfs::Kind::Write:
      return SQLITE_IOERR_WRITE;
    case FaultyVfs::Kind::Sync:
      return SQLITE_IOERR_FSYNC;
  }
  return SQLITE_IOERR;
}

int failure(FaultyVfs::Kind kind) { return state.rc != 0 ? state.rc : defaultCode(kind); }

int xClose(sqlite3_file* file) {
  sqlite3_file* real = faulty(file)->real();
  int rc = real->pMethods != nullptr ? real->pMethods->xClose(real) : SQLITE_OK;
  return rc;
}
int xRead(sqlite3_file* file, void* buffer, int amount, sqlite3_int64 offset) {
  if (failsNow(FaultyVfs::Kind::Read)) return failure(FaultyVfs::Kind::Read);
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xRead(real, buffer, amount, offset);
}
int xWrite(sqlite3_file* file, const void* buffer, int amount, sqlite3_int64 offset) {
  if (failsNow(FaultyVfs::Kind::Write)) return failure(FaultyVfs::Kind::Write);
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xWrite(real, buffer, amount, offset);
}
int xTruncate(sqlite3_file* file, sqlite3_int64 size) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xTruncate(real, size);
}
int xSync(sqlite3_file* file, int flags) {
  if (failsNow(FaultyVfs::Kind::Sync)) return failure(FaultyVfs::Kind::Sync);
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xSync(real, flags);
}
int xFileSize(sqlite3_file* file, sqlite3_int64* size) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xFileSize(real, size);
}
int xLock(sqlite3_file* file, int level) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xLock(real, level);
}
int xUnlock(sqlite3_file* file, int level) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xUnlock(real, level);
}
int xCheckReservedLock(sqlite3_file* file, int* result) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xCheckReservedLock(real, result);
}
int xFileControl(sqlite3_file* file, int op, void* argument) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xFileControl(real, op, argument);
}
int xSectorSize(sqlite3_file* file) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xSectorSize(real);
}
int xDeviceCharacteristics(sqlite3_file* file) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xDeviceCharacteristics(real);
}
int xShmMap(sqlite3_file* file, int region, int size, int extend, void volatile** memory) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xShmMap(real, region, size, extend, memory);
}
int xShmLock(sqlite3_file* file, int offset, int n, int flags) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xShmLock(real, offset, n, flags);
}
void xShmBarrier(sqlite3_file* file) {
  sqlite3_file* real = faulty(file)->real();
  real->pMethods->xShmBarrier(real);
}
int xShmUnmap(sqlite3_file* file, int deleteFlag) {
  sqlite3_file* real = faulty(file)->real();
  return real->pMethods->xShmUnmap(real, deleteFlag);
}

// Version 2: no memory-mapped reads, so that every read is counted.
const sqlite3_io_methods kMethods = {2,
                                     xClose,
                                     xRead,
                                     xWrite,
                                     xTruncate,
                                     xSync,
                                     xFileSize,
                                     xLock,
                                     xUnlock,
                                     xCheckReservedLock,
                                     xFileControl,
                                     xSectorSize,
                                     xDeviceCharacteristics,
                                     xShmMap,
                                     xShmLock,
                                     xShmBarrier,
                                     xShmUnmap,
                                     nullptr,
                                     nullptr};

int xOpen(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags) {
  FaultyFile* wrapper = faulty(file);
  wrapper->base.pMethods = nullptr;
  sqlite3_file* real = wrapper->real();
  std::memset(real, 0, state.real->szOsFile);
  int rc = state.real->xOpen(state.real, name, real, flags, outFlags);
  if (real->pMethods != nullptr) wrapper->base.pMethods = &kMethods;
  return rc;
}
int xDelete(sqlite3_vfs*, const char* name, int syncDir) {
  return state.real->xDelete(state.real, name, syncDir);
}
int xAccess(sqlite3_vfs*, const char* name, int flags, int* result) {
  return state.real->xAccess(state.real, name, flags, result);
}
int xFullPathname(sqlite3_vfs*, const char* name, int size, char* out) {
  return state.real->xFullPathname(state.real, name, size, out);
}
void* xDlOpen(sqlite3_vfs*, const char* name) { return state.real->xDlOpen(state.real, name); }
void xDlError(sqlite3_vfs*, int size, char* out) { state.real->xDlError(state.real, size, out); }
void (*xDlSym(sqlite3_vfs*, void* handle, const char* symbol))(void) {
  return state.real->xDlSym(state.real, handle, symbol);
}
void xDlClose(sqlite3_vfs*, void* handle) { state.real->xDlClose(state.real, handle); }
int xRandomness(sqlite3_vfs*, int size, char* out) {
  return state.real->xRandomness(state.real, size, out);
}
int xSleep(sqlite3_vfs*, int microseconds) { return state.real->xSleep(state.real, microseconds); }
int xCurrentTime(sqlite3_vfs*, double* now) { return state.real->xCurrentTime(state.real, now); }
int xGetLastError(sqlite3_vfs*, int size, char* out) {
  return state.real->xGetLastError(state.real, size, out);
}
int xCurrentTimeInt64(sqlite3_vfs*, sqlite3_int64* now) {
  return state.real->xCurrentTimeInt64(state.real, now);
}

}  // namespace

FaultyVfs::FaultyVfs() {
  if (state.real != nullptr) throw std::logic_error("one FaultyVfs at a time");
  sqlite3_initialize();
  state = FaultState{};
  state.real = sqlite3_vfs_find(nullptr);
  vfs_.iVersion = 2;
  vfs_.szOsFile = static_cast<int>(sizeof(FaultyFile)) + state.real->szOsFile;
  vfs_.mxPathname = state.real->mxPathname;
  vfs_.zName = name();
  vfs_.xOpen = xOpen;
  vfs_.xDelete = xDelete;
  vfs_.xAccess = xAccess;
  vfs_.xFullPathname = xFullPathname;
  vfs_.xDlOpen = xDlOpen;
  vfs_.xDlError = xDlError;
  vfs_.xDlSym = xDlSym;
  vfs_.xDlClose = xDlClose;
  vfs_.xRandomness = xRandomness;
  vfs_.xSleep = xSleep;
  vfs_.xCurrentTime = xCurrentTime;
  vfs_.xGetLastError = xGetLastError;
  vfs_.xCurrentTimeInt64 = xCurrentTimeInt64;
  sqlite3_vfs_register(&vfs_, 0);
}

FaultyVfs::~FaultyVfs() {
  sqlite3_vfs_unregister(&vfs_);
  if (state.wasDefault) sqlite3_vfs_register(state.real, 1);
  state = FaultState{};
}

void FaultyVfs::makeDefault() {
  sqlite3_vfs_register(&vfs_, 1);
  state.wasDefault = true;
}

void FaultyVfs::arm(Kind kind, int n, int rc) {
  state.kind = kind;
  state.remaining = n;
  state.rc = rc;
  state.fired = false;
  for (int& count : state.counts) count = 0;
}

void FaultyVfs::disarm() { state.remaining = 0; }

bool FaultyVfs::fired() const { return state.fired; }

int FaultyVfs::count(Kind kind) const { return state.counts[static_cast<int>(kind)]; }

}  // namespace qb::test
