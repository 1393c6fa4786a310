#pragma once
// FileFactsService: the one way the system asks about files. Every question
// (exists, folder, size, the three dates, writable, in use) is answered from
// one metadata call of the backend, and a share that stops answering never
// freezes the caller:
//
// - Files on a local disk are asked directly. Files on a remote or user-space
//   file system (isRemoteFileSystem) are asked on a worker thread, and the
//   caller waits at most `wait` (about a second). A call that has not
//   answered by then is abandoned to its thread: the file counts as
//   unreachable, and so does every later file under the same mount for the
//   rest of the operation. While an abandoned call is still hanging, the
//   mount counts as unreachable at once in later operations too.
// - Within an operation (a fill, a walk, a dialog's fill) each path is asked
//   once: later questions about it are answered from what the first call
//   told. Outside an operation every question asks afresh.
//
// Operations nest: an operation begun while one is open joins it. Each
// thread has its service (fileFacts()); tests install one over a backend of
// their own.

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "services/files/file_facts.h"
#include "services/files/file_facts_backend.h"

namespace qb {

class FileFactsService {
 public:
  static constexpr std::chrono::milliseconds kDefaultWait{1000};
  // How many calls run at once on one remote mount while a list is fetched.
  static constexpr size_t kCallsInFlightPerMount = 8;

  explicit FileFactsService(std::shared_ptr<FileFactsBackend> backend,
                            std::chrono::milliseconds wait = kDefaultWait);
  ~FileFactsService();
  FileFactsService(const FileFactsService&) = delete;
  FileFactsService& operator=(const FileFactsService&) = delete;

  // The facts of a path. An empty path is missing, asked of no one.
  FileFacts facts(const std::string& path);
  // Whether another program holds the file (see SystemFileFacts). A file
  // that can't be reached, or does not answer in time, is not in use.
  bool inUse(const std::string& path);
  // The entries of a folder, read once, with the same bounded wait on a
  // share as facts: a folder on a share that does not answer in time is
  // unreachable (timedOut), and so is its mount for the rest of the
  // operation. Listings are not kept: each call reads the folder afresh.
  FolderListing listFolder(const std::string& path);
  // Asks for the facts of many paths at once, so that the questions that
  // follow within the operation are answered at once: on a share several
  // calls run side by side. Paths asked before in the operation are not
  // asked again.
  void prefetch(const std::vector<std::string>& paths);

  void beginOperation();
  void endOperation();
  bool inOperation() const { return depth_ > 0; }

  // Calls handed to the backend so far (metadata queries, in-use tests and
  // folder reads).
  int64_t metadataCalls() const { return metadataCalls_; }
  int64_t inUseCalls() const { return inUseCalls_; }
  int64_t folderReads() const { return folderReads_; }
  // The mount a path lies under ("/" when none is longer).
  MountPoint mountOf(const std::string& path);

  FileFactsBackend& backend() { return *backend_; }

 private:
  struct Pending;
  // What a call on a worker asks.
  enum class Call { facts, inUse, listing };
  // The facts of one remote path, asked on a worker with the bounded wait.
  FileFacts askRemote(const std::string& path, const MountPoint& mount);
  std::shared_ptr<Pending> submit(const std::string& path, const MountPoint& mount, Call call);
  // Waits for a call until its deadline; false when it did not answer.
  static bool await(Pending& pending);
  // True when the mount is found dead in this operation, or a call on it
  // from before is still hanging.
  bool isDead(const MountPoint& mount);
  void markDead(const MountPoint& mount) { deadMounts_.insert(mount.path); }
  void refreshMounts();

  std::shared_ptr<FileFactsBackend> backend_;
  std::chrono::milliseconds wait_;
  int depth_ = 0;
  std::unordered_map<std::string, FileFacts> known_;
  std::unordered_set<std::string> deadMounts_;
  std::vector<MountPoint> mounts_;  // longest path first
  std::chrono::steady_clock::time_point mountsRead_{};
  // Per remote mount: its calls that have not come back yet (shared with
  // the workers, which count down as they return).
  std::unordered_map<std::string, std::shared_ptr<std::atomic<int>>> outstanding_;
  int64_t metadataCalls_ = 0;
  int64_t inUseCalls_ = 0;
  int64_t folderReads_ = 0;
};

// Begins an operation of a service at construction and ends it at
// destruction.
class FileFactsOperation {
 public:
  explicit FileFactsOperation(FileFactsService& service);
  FileFactsOperation();  // on this thread's service
  ~FileFactsOperation();
  FileFactsOperation(const FileFactsOperation&) = delete;
  FileFactsOperation& operator=(const FileFactsOperation&) = delete;

 private:
  FileFactsService& service_;
};

// This thread's service: the one installed, else one over SystemFileFacts.
FileFactsService& fileFacts();
// Installs a service for this thread; null goes back to the system's.
void installFileFacts(std::shared_ptr<FileFactsService> service);

}  // namespace qb
