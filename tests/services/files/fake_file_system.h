#pragma once
// FakeFileSystem: a file-facts backend for tests. Paths are files unless
// listed as folders or as missing; a local root "/" and a remote share
// "/share" (CIFS) are mounted. Calls under a prefix set to hang block until
// release(); every call can be made to take a delay. It counts the calls,
// the calls running at once, and those that came back.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "services/files/file_facts_backend.h"

namespace qb::test {

class FakeFileSystem : public FileFactsBackend {
 public:
  std::vector<MountPoint> mountList = {{"/", "ext4", false}, {"/share", "cifs", true}};
  std::set<std::string> folders;
  std::set<std::string> missing;
  std::set<std::string> held;  // in use
  // The entries of folders; a folder of `folders` not listed here is empty.
  std::map<std::string, std::vector<FolderEntry>> listings;
  std::chrono::microseconds delay{0};

  std::atomic<int> queries{0};
  std::atomic<int> inUseQueries{0};
  std::atomic<int> returned{0};
  std::atomic<int> running{0};
  std::atomic<int> mostRunning{0};

  void hangUnder(const std::string& prefix) {
    std::lock_guard<std::mutex> lock(mutex_);
    hanging_.insert(prefix);
  }
  // Lets every hanging call return.
  void release() {
    std::lock_guard<std::mutex> lock(mutex_);
    hanging_.clear();
    wake_.notify_all();
  }
  // Waits (a bounded while) until count calls have come back.
  bool waitReturned(int count) {
    for (int i = 0; i < 500 && returned < count; ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return returned >= count;
  }

  FileFacts query(const std::string& path) override {
    ++queries;
    enter(path);
    FileFacts facts = FileFacts::of(FileReach::present);
    if (missing.count(path)) facts = FileFacts::of(FileReach::missing);
    facts.isFolder = folders.count(path) > 0;
    facts.size = path.size();
    facts.mode = 0644;
    facts.modified = FileTime{1700000000, 0};
    leave();
    return facts;
  }
  bool inUse(const std::string& path) override {
    ++inUseQueries;
    enter(path);
    bool result = held.count(path) > 0;
    leave();
    return result;
  }
  FolderListing listFolder(const std::string& path) override {
    ++queries;
    enter(path);
    FolderListing listing = FolderListing::of(FileReach::missing);
    auto listed = listings.find(path);
    if (listed != listings.end() || folders.count(path)) {
      listing = FolderListing::of(FileReach::present);
      if (listed != listings.end()) listing.entries = listed->second;
    }
    leave();
    return listing;
  }
  std::vector<MountPoint> mounts() override { return mountList; }

 private:
  void enter(const std::string& path) {
    int now = ++running;
    int most = mostRunning;
    while (now > most && !mostRunning.compare_exchange_weak(most, now)) {
    }
    if (delay.count() > 0) std::this_thread::sleep_for(delay);
    std::unique_lock<std::mutex> lock(mutex_);
    wake_.wait(lock, [&] {
      return std::none_of(hanging_.begin(), hanging_.end(),
                          [&](const std::string& prefix) { return path.rfind(prefix, 0) == 0; });
    });
  }
  void leave() {
    --running;
    ++returned;
  }

  std::mutex mutex_;
  std::condition_variable wake_;
  std::set<std::string> hanging_;
};

}  // namespace qb::test
