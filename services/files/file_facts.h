#pragma once
// FileFacts: everything the system asks about one file, as one metadata call
// of the file system answers it: whether it can be reached, whether it is a
// folder, its size, permission bits and dates.

#include <cstdint>
#include <string>
#include <vector>

namespace qb {

// How a path answered.
enum class FileReach {
  present,      // the path names an existing file or folder
  missing,      // no such file or folder (or a part of the path is no folder)
  denied,       // a folder on the way may not be searched
  unreachable,  // the file system failed or did not answer in time
};

// A point in time as the file system keeps it: seconds and nanoseconds since
// 1 January 1970 UTC.
struct FileTime {
  int64_t seconds = 0;
  int32_t nanoseconds = 0;
  bool operator<(const FileTime& other) const {
    return seconds < other.seconds || (seconds == other.seconds && nanoseconds < other.nanoseconds);
  }
};

struct FileFacts {
  FileReach reach = FileReach::unreachable;
  bool isFolder = false;
  uint64_t size = 0;
  uint32_t mode = 0;   // permission bits (0777)
  uint32_t owner = 0;  // the owning user's id
  uint32_t group = 0;  // the owning group's id
  FileTime accessed, modified, changed, born;
  bool hasBirth = false;  // the file system keeps a birth time
  // True when the answer came from a share that stopped answering: the call
  // was abandoned, or the share had already been found dead.
  bool timedOut = false;

  bool present() const { return reach == FileReach::present; }
  bool isFile() const { return present() && !isFolder; }
  // The birth time where the file system keeps one, else the earliest of the
  // status-change and modification times.
  FileTime created() const {
    if (hasBirth) return born;
    return changed < modified ? changed : modified;
  }

  static FileFacts unreachableFacts(bool timedOut) {
    FileFacts facts;
    facts.timedOut = timedOut;
    return facts;
  }
  static FileFacts of(FileReach reach) {
    FileFacts facts;
    facts.reach = reach;
    return facts;
  }
};

// One entry of a folder: its name, and what it is once a symbolic link is
// followed (neither for a link that leads nowhere, a device or a pipe).
struct FolderEntry {
  std::string name;
  bool isFile = false;
  bool isFolder = false;
};

// What one read of a folder gave: how the folder answered and, when it is
// present, its entries ("." and ".." left out) in the order the file system
// gave them.
struct FolderListing {
  FileReach reach = FileReach::unreachable;
  std::vector<FolderEntry> entries;
  // True when the share stopped answering (see FileFacts::timedOut).
  bool timedOut = false;

  bool present() const { return reach == FileReach::present; }
  static FolderListing of(FileReach reach, bool timedOut = false) {
    FolderListing listing;
    listing.reach = reach;
    listing.timedOut = timedOut;
    return listing;
  }
};

}  // namespace qb
