#include "services/files/file_facts_service.h"

#include <unistd.h>

#include <algorithm>
#include <climits>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

#include "services/files/system_file_facts.h"

namespace qb {

namespace {

using Clock = std::chrono::steady_clock;

// The worker threads that run calls on remote mounts. A call that hangs keeps
// its thread; a new thread is started whenever no idle one is left, up to a
// limit, so a hanging share never holds up the calls on other mounts. Idle
// threads leave after a while. The pool lives for the whole process (the
// threads hold its state).
class WorkerPool {
 public:
  static WorkerPool& instance() {
    static WorkerPool* pool = new WorkerPool;  // never destroyed: hanging threads use it
    return *pool;
  }

  void submit(std::function<void()> task) {
    std::lock_guard<std::mutex> lock(state_->mutex);
    state_->tasks.push_back(std::move(task));
    // Each idle thread takes one task; start another when they are all spoken for.
    if (state_->tasks.size() > static_cast<size_t>(state_->idle) && state_->threads < kMaxThreads) {
      ++state_->threads;
      std::thread([state = state_] { run(state); }).detach();
    } else {
      state_->wake.notify_one();
    }
  }

 private:
  static constexpr int kMaxThreads = 64;
  static constexpr std::chrono::seconds kIdleLife{30};

  struct State {
    std::mutex mutex;
    std::condition_variable wake;
    std::deque<std::function<void()>> tasks;
    int idle = 0;
    int threads = 0;
  };

  static void run(std::shared_ptr<State> state) {
    std::unique_lock<std::mutex> lock(state->mutex);
    for (;;) {
      ++state->idle;
      const bool work =
          state->wake.wait_for(lock, kIdleLife, [&] { return !state->tasks.empty(); });
      --state->idle;
      if (!work) {
        --state->threads;
        return;
      }
      std::function<void()> task = std::move(state->tasks.front());
      state->tasks.pop_front();
      lock.unlock();
      task();
      lock.lock();
    }
  }

  std::shared_ptr<State> state_ = std::make_shared<State>();
};

// Whether a mount point holds the path: the same path, or a path below it
// (component-wise: "/srv/data" holds "/srv/data/a", not "/srv/database").
bool holds(const std::string& mountPath, const std::string& path) {
  if (mountPath == "/") return true;
  if (path.compare(0, mountPath.size(), mountPath) != 0) return false;
  return path.size() == mountPath.size() || path[mountPath.size()] == '/';
}

std::string absolutePath(const std::string& path) {
  if (path.empty() || path[0] == '/') return path;
  char cwd[PATH_MAX];
  if (getcwd(cwd, sizeof cwd) == nullptr) return "/" + path;
  return std::string(cwd) + "/" + path;
}

thread_local std::shared_ptr<FileFactsService> current;

}  // namespace

// One call on a worker: its answer, filled in by the worker.
struct FileFactsService::Pending {
  std::mutex mutex;
  std::condition_variable answered;
  bool done = false;
  FileFacts facts;
  bool inUse = false;
  FolderListing listing;
  Clock::time_point deadline;
};

FileFactsService::FileFactsService(std::shared_ptr<FileFactsBackend> backend,
                                   std::chrono::milliseconds wait)
    : backend_(std::move(backend)), wait_(wait) {}

FileFactsService::~FileFactsService() = default;

void FileFactsService::beginOperation() {
  if (depth_++ > 0) return;
  known_.clear();
  deadMounts_.clear();
  refreshMounts();
}

void FileFactsService::endOperation() {
  if (depth_ == 0 || --depth_ > 0) return;
  known_.clear();
  deadMounts_.clear();
}

void FileFactsService::refreshMounts() {
  // Mounts change seldom; the table is read again when it is two seconds old.
  if (mountsRead_ != Clock::time_point{} && Clock::now() - mountsRead_ < std::chrono::seconds(2))
    return;
  mounts_ = backend_->mounts();
  std::sort(mounts_.begin(), mounts_.end(),
            [](const MountPoint& a, const MountPoint& b) { return a.path.size() > b.path.size(); });
  mountsRead_ = Clock::now();
}

MountPoint FileFactsService::mountOf(const std::string& path) {
  refreshMounts();
  const std::string full = absolutePath(path);
  for (const MountPoint& mount : mounts_)
    if (holds(mount.path, full)) return mount;
  return MountPoint{"/", "", false};
}

bool FileFactsService::isDead(const MountPoint& mount) {
  if (deadMounts_.count(mount.path)) return true;
  auto hanging = outstanding_.find(mount.path);
  if (hanging != outstanding_.end() && hanging->second->load() > 0) {
    markDead(mount);
    return true;
  }
  return false;
}

std::shared_ptr<FileFactsService::Pending> FileFactsService::submit(const std::string& path,
                                                                    const MountPoint& mount,
                                                                    Call call) {
  auto pending = std::make_shared<Pending>();
  pending->deadline = Clock::now() + wait_;
  auto& counter = outstanding_[mount.path];
  if (!counter) counter = std::make_shared<std::atomic<int>>(0);
  ++*counter;
  ++(call == Call::inUse ? inUseCalls_ : call == Call::listing ? folderReads_ : metadataCalls_);
  WorkerPool::instance().submit([pending, counter, backend = backend_, path, call] {
    FileFacts facts;
    bool held = false;
    FolderListing listing;
    if (call == Call::inUse) {
      held = backend->inUse(path);
    } else if (call == Call::listing) {
      listing = backend->listFolder(path);
    } else {
      facts = backend->query(path);
    }
    --*counter;
    std::lock_guard<std::mutex> lock(pending->mutex);
    pending->facts = facts;
    pending->inUse = held;
    pending->listing = std::move(listing);
    pending->done = true;
    pending->answered.notify_all();
  });
  return pending;
}

bool FileFactsService::await(Pending& pending) {
  std::unique_lock<std::mutex> lock(pending.mutex);
  return pending.answered.wait_until(lock, pending.deadline, [&] { return pending.done; });
}

FileFacts FileFactsService::askRemote(const std::string& path, const MountPoint& mount) {
  if (isDead(mount)) return FileFacts::unreachableFacts(true);
  auto pending = submit(path, mount, Call::facts);
  if (!await(*pending)) {
    markDead(mount);
    return FileFacts::unreachableFacts(true);
  }
  return pending->facts;
}

FileFacts FileFactsService::facts(const std::string& path) {
  if (path.empty()) return FileFacts::of(FileReach::missing);
  FileFactsOperation operation(*this);
  if (auto known = known_.find(path); known != known_.end()) return known->second;
  const MountPoint mount = mountOf(path);
  FileFacts answer;
  if (mount.remote) {
    answer = askRemote(path, mount);
  } else {
    ++metadataCalls_;
    answer = backend_->query(path);
  }
  known_[path] = answer;
  return answer;
}

bool FileFactsService::inUse(const std::string& path) {
  if (path.empty()) return false;
  FileFactsOperation operation(*this);
  const MountPoint mount = mountOf(path);
  if (!mount.remote) {
    ++inUseCalls_;
    return backend_->inUse(path);
  }
  if (isDead(mount)) return false;
  auto pending = submit(path, mount, Call::inUse);
  if (!await(*pending)) {
    markDead(mount);
    return false;
  }
  return pending->inUse;
}

FolderListing FileFactsService::listFolder(const std::string& path) {
  if (path.empty()) return FolderListing::of(FileReach::missing);
  FileFactsOperation operation(*this);
  const MountPoint mount = mountOf(path);
  if (!mount.remote) {
    ++folderReads_;
    return backend_->listFolder(path);
  }
  if (isDead(mount)) return FolderListing::of(FileReach::unreachable, true);
  auto pending = submit(path, mount, Call::listing);
  if (!await(*pending)) {
    markDead(mount);
    return FolderListing::of(FileReach::unreachable, true);
  }
  return pending->listing;
}

void FileFactsService::prefetch(const std::vector<std::string>& paths) {
  FileFactsOperation operation(*this);
  // Local files are asked at once; remote ones gathered by mount.
  std::vector<std::pair<MountPoint, std::vector<std::string>>> remote;
  for (const std::string& path : paths) {
    if (path.empty() || known_.count(path)) continue;
    const MountPoint mount = mountOf(path);
    if (!mount.remote) {
      ++metadataCalls_;
      known_[path] = backend_->query(path);
      continue;
    }
    auto group = std::find_if(remote.begin(), remote.end(),
                              [&](const auto& entry) { return entry.first.path == mount.path; });
    if (group == remote.end()) {
      remote.push_back({mount, {}});
      group = remote.end() - 1;
    }
    known_[path] = FileFacts::unreachableFacts(true);  // until answered; also marks it asked
    group->second.push_back(path);
  }

  for (auto& [mount, group] : remote) {
    if (isDead(mount)) continue;  // every path stays unreachable
    // A window of calls side by side, taken in the order they were made.
    std::deque<std::pair<const std::string*, std::shared_ptr<Pending>>> inFlight;
    size_t next = 0;
    while (next < group.size() || !inFlight.empty()) {
      while (inFlight.size() < kCallsInFlightPerMount && next < group.size()) {
        inFlight.emplace_back(&group[next], submit(group[next], mount, Call::facts));
        ++next;
      }
      auto [path, pending] = inFlight.front();
      inFlight.pop_front();
      if (await(*pending)) {
        known_[*path] = pending->facts;
        continue;
      }
      // The share stopped answering: what came back is kept, the rest of
      // the mount stays unreachable.
      markDead(mount);
      for (auto& [other, call] : inFlight) {
        std::lock_guard<std::mutex> lock(call->mutex);
        if (call->done) known_[*other] = call->facts;
      }
      break;
    }
  }
}

FileFactsOperation::FileFactsOperation(FileFactsService& service) : service_(service) {
  service_.beginOperation();
}

FileFactsOperation::FileFactsOperation() : FileFactsOperation(fileFacts()) {}

FileFactsOperation::~FileFactsOperation() { service_.endOperation(); }

FileFactsService& fileFacts() {
  if (!current) current = std::make_shared<FileFactsService>(std::make_shared<SystemFileFacts>());
  return *current;
}

void installFileFacts(std::shared_ptr<FileFactsService> service) { current = std::move(service); }

}  // namespace qb
