#pragma once
// FileFactsBackend: the file system the file-facts service asks. The real one
// (SystemFileFacts) asks the kernel; tests stand in slow, hanging or failing
// file systems. Every operation may block for as long as the file system
// does: the service decides how long to wait.

#include <string>
#include <vector>

#include "services/files/file_facts.h"

namespace qb {

// A mounted file system. remote: a share or a user-space file system, one
// that can stop answering (the service then waits on it with a bound).
struct MountPoint {
  std::string path;  // where it is mounted, "/" for the root
  std::string type;  // the file system type ("ext4", "nfs4", "cifs", "fuse.sshfs")
  bool remote = false;
};

class FileFactsBackend {
 public:
  virtual ~FileFactsBackend() = default;
  // One metadata call: all the facts of the path. A symbolic link is
  // followed.
  virtual FileFacts query(const std::string& path) = 0;
  // True when another program holds the file (see SystemFileFacts).
  virtual bool inUse(const std::string& path) = 0;
  // The entries of a folder. A path that is no folder answers missing.
  virtual FolderListing listFolder(const std::string& path) = 0;
  // The machine's mounts as they stand; read without touching any mounted
  // file system, so it never blocks on a dead share.
  virtual std::vector<MountPoint> mounts() = 0;
};

// True for the file system types that live across a network or in a user
// process, which can hang: NFS, SMB/CIFS, AFS, 9p, Ceph, GlusterFS, Lustre,
// WebDAV, every FUSE file system (sshfs, the desktop's network places) and
// automount points.
bool isRemoteFileSystem(const std::string& type);

}  // namespace qb
