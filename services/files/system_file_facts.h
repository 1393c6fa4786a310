#pragma once
// SystemFileFacts: the file-facts backend over the kernel.
//
// query: one statx of the path (type, size, mode and the four time stamps).
// inUse: another program holds the file when
//   - an office suite's lock file stands beside it: ".~lock.NAME#" (left by
//     LibreOffice and OpenOffice while the document is open, also by another
//     workstation on a share) or an owner file "~$NAME", "~$AME", "~$ME" (left
//     by Microsoft Office and WPS Office, which shorten long names);
//   - a lock is held on it by another process, POSIX or flock, of this
//     machine (/proc/locks) or, on a share that forwards locks, of another
//     one (a test lock on the file);
//   - a process of this machine has it open for writing (/proc/PID/fdinfo).
// listFolder: one read of the folder; an entry whose type the file system
//   does not give, or a symbolic link, is asked with one fstatat.
// mounts: /proc/self/mountinfo.

#include "services/files/file_facts_backend.h"

namespace qb {

class SystemFileFacts : public FileFactsBackend {
 public:
  FileFacts query(const std::string& path) override;
  bool inUse(const std::string& path) override;
  FolderListing listFolder(const std::string& path) override;
  std::vector<MountPoint> mounts() override;

  // The three tests of inUse, each on its own.
  static bool hasOfficeLockFile(const std::string& path);
  static bool isLocked(const std::string& path);
  static bool isOpenForWritingByAnotherProcess(const std::string& path);
};

// The mounts listed in a text in the form of /proc/self/mountinfo (mount
// points unescaped: "\040" is a blank).
std::vector<MountPoint> parseMountInfo(const std::string& text);

}  // namespace qb
