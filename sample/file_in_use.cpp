#include "sample/file_in_use.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace qb::sample {

namespace {

namespace fs = std::filesystem;

std::string processName(long pid) {
  std::ifstream comm("/proc/" + std::to_string(pid) + "/comm");
  std::string name;
  std::getline(comm, name);
  return name.empty() ? "a program" : name;
}

std::string named(long pid) { return processName(pid) + " (process " + std::to_string(pid) + ")"; }

// A lock another process holds on any byte of the file: SQLite's locks on
// the database, and the read lock every connection keeps on a WAL index.
std::string lockHolder(const std::string& path) {
  int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return "";
  struct flock probe {};
  probe.l_type = F_WRLCK;
  probe.l_whence = SEEK_SET;
  probe.l_start = 0;
  probe.l_len = 0;  // the whole file
  std::string holder;
  if (fcntl(fd, F_GETLK, &probe) == 0 && probe.l_type != F_UNLCK) {
    holder = probe.l_pid > 0 && probe.l_pid != getpid() &&
                     fs::exists("/proc/" + std::to_string(probe.l_pid))
                 ? named(probe.l_pid)
                 : "another program or workstation";
  }
  close(fd);
  return holder;
}

// A process of this machine that has the file open, found by its open files.
std::string openerOf(const std::string& path) {
  struct stat target {};
  if (stat(path.c_str(), &target) != 0) return "";
  std::error_code error;
  for (const fs::directory_entry& process : fs::directory_iterator("/proc", error)) {
    const std::string pidText = process.path().filename().string();
    if (pidText.find_first_not_of("0123456789") != std::string::npos) continue;
    long pid = std::stol(pidText);
    if (pid == getpid()) continue;
    std::error_code fdError;
    for (const fs::directory_entry& fd : fs::directory_iterator(process.path() / "fd", fdError)) {
      struct stat opened {};
      if (stat(fd.path().c_str(), &opened) == 0 && opened.st_dev == target.st_dev &&
          opened.st_ino == target.st_ino) {
        return named(pid);
      }
    }
  }
  return "";
}

}  // namespace

std::string fileHolder(const std::string& path) {
  for (const std::string& file : {path, path + "-shm", path + "-journal"}) {
    std::string holder = lockHolder(file);
    if (!holder.empty()) return holder;
  }
  return openerOf(path);
}

}  // namespace qb::sample
