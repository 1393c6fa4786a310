#include "services/files/system_file_facts.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string_view>

#include "services/runtime/strings.h"

namespace qb {

namespace {

FileTime timeOf(const struct statx_timestamp& stamp) {
  return FileTime{stamp.tv_sec, static_cast<int32_t>(stamp.tv_nsec)};
}

FileReach reachOfError(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
      return FileReach::missing;
    case EACCES:
    case EPERM:
      return FileReach::denied;
    default:  // EIO, ESTALE, ETIMEDOUT, EHOSTDOWN, ENOTCONN, ...
      return FileReach::unreachable;
  }
}

bool pathExists(const std::string& path) {
  struct stat st {};
  return lstat(path.c_str(), &st) == 0;
}

std::string folderOf(const std::string& path) {
  auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string nameOf(const std::string& path) {
  auto slash = path.rfind('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

// The text of a small file of /proc ("" when it can't be read).
std::string readProcFile(const std::string& path) {
  std::ifstream in(path);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// A mount point as mountinfo writes it, with its octal escapes undone.
std::string unescapeMountPath(std::string_view text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && i + 3 < text.size()) {
      const std::string_view digits = text.substr(i + 1, 3);
      if (digits.find_first_not_of("01234567") == std::string_view::npos) {
        out += static_cast<char>(std::strtol(std::string(digits).c_str(), nullptr, 8));
        i += 3;
        continue;
      }
    }
    out += text[i];
  }
  return out;
}

}  // namespace

bool isRemoteFileSystem(const std::string& type) {
  static const char* const kRemote[] = {
      "nfs",  "nfs4",    "cifs",      "smb3",     "smbfs",  "ncpfs",  "ncp",   "afs",
      "9p",   "ceph",    "glusterfs", "lustre",   "gpfs",   "davfs",  "coda",  "autofs",
      "fuse", "fuseblk", "sshfs",     "virtiofs", "vboxsf", "vmhgfs", "ocfs2", "gfs2"};
  if (type.rfind("fuse.", 0) == 0) return true;
  for (const char* remote : kRemote)
    if (type == remote) return true;
  return false;
}

FileFacts SystemFileFacts::query(const std::string& path) {
  if (path.empty()) return FileFacts::of(FileReach::missing);
  struct statx stx {};
  const unsigned mask = STATX_TYPE | STATX_MODE | STATX_UID | STATX_GID | STATX_SIZE | STATX_ATIME |
                        STATX_MTIME | STATX_CTIME | STATX_BTIME;
  if (statx(AT_FDCWD, path.c_str(), 0, mask, &stx) != 0) return FileFacts::of(reachOfError(errno));
  FileFacts facts = FileFacts::of(FileReach::present);
  facts.isFolder = S_ISDIR(stx.stx_mode);
  facts.size = stx.stx_size;
  facts.mode = stx.stx_mode & 07777;
  facts.owner = stx.stx_uid;
  facts.group = stx.stx_gid;
  facts.accessed = timeOf(stx.stx_atime);
  facts.modified = timeOf(stx.stx_mtime);
  facts.changed = timeOf(stx.stx_ctime);
  facts.hasBirth = (stx.stx_mask & STATX_BTIME) != 0;
  if (facts.hasBirth) facts.born = timeOf(stx.stx_btime);
  return facts;
}

FolderListing SystemFileFacts::listFolder(const std::string& path) {
  if (path.empty()) return FolderListing::of(FileReach::missing);
  DIR* folder = opendir(path.c_str());
  if (folder == nullptr) return FolderListing::of(reachOfError(errno));
  FolderListing listing = FolderListing::of(FileReach::present);
  const int descriptor = dirfd(folder);
  errno = 0;
  while (const dirent* entry = readdir(folder)) {
    const std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    FolderEntry item{name};
    unsigned char type = entry->d_type;
    if (type == DT_UNKNOWN || type == DT_LNK) {
      struct stat st {};
      type = fstatat(descriptor, entry->d_name, &st, 0) != 0 ? DT_UNKNOWN
             : S_ISREG(st.st_mode)                           ? DT_REG
             : S_ISDIR(st.st_mode)                           ? DT_DIR
                                                             : DT_UNKNOWN;
    }
    item.isFile = type == DT_REG;
    item.isFolder = type == DT_DIR;
    listing.entries.push_back(std::move(item));
    errno = 0;
  }
  // A read that broke off half-way (a share that failed) is the folder's
  // failure: nothing of it is used.
  if (errno != 0) listing = FolderListing::of(reachOfError(errno));
  closedir(folder);
  return listing;
}

bool SystemFileFacts::hasOfficeLockFile(const std::string& path) {
  const std::string folder = folderOf(path) + "/";
  const std::string name = nameOf(path);
  if (name.empty()) return false;
  if (pathExists(folder + ".~lock." + name + "#")) return true;
  if (pathExists(folder + "~$" + name)) return true;
  // Owner files of long names drop the first one or two characters.
  const auto dot = name.rfind('.');
  const int32_t baseLength = Len(dot == std::string::npos ? name : name.substr(0, dot));
  if (baseLength == 7 && pathExists(folder + "~$" + Mid(name, 2))) return true;
  if (baseLength >= 8 && pathExists(folder + "~$" + Mid(name, 3))) return true;
  return false;
}

bool SystemFileFacts::isLocked(const std::string& path) {
  struct stat target {};
  if (stat(path.c_str(), &target) != 0 || S_ISDIR(target.st_mode)) return false;

  // Locks of this machine's processes, POSIX and flock alike:
  // "1: POSIX  ADVISORY  WRITE 1234 08:02:131 0 EOF".
  std::istringstream locks(readProcFile("/proc/locks"));
  const std::string self = std::to_string(getpid());
  for (std::string line; std::getline(locks, line);) {
    std::istringstream fields(line);
    std::string id, kind, mode, access, pid, device;
    fields >> id >> kind;
    if (kind == "->") fields >> kind;  // a waiter on a lock
    fields >> mode >> access >> pid >> device;
    if (pid == self) continue;
    unsigned major = 0, minor = 0;
    unsigned long long inode = 0;
    if (std::sscanf(device.c_str(), "%x:%x:%llu", &major, &minor, &inode) != 3) continue;
    if (major == major(target.st_dev) && minor == minor(target.st_dev) && inode == target.st_ino)
      return true;
  }

  // A share that forwards locks answers for the other workstations too.
  int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (fd < 0) return false;
  struct flock probe {};
  probe.l_type = F_WRLCK;
  probe.l_whence = SEEK_SET;
  bool locked = fcntl(fd, F_GETLK, &probe) == 0 && probe.l_type != F_UNLCK;
  close(fd);
  return locked;
}

bool SystemFileFacts::isOpenForWritingByAnotherProcess(const std::string& path) {
  // Open files are compared by the path the kernel keeps for them, so that
  // no other process's file (on a share that may hang) is ever touched.
  char resolved[PATH_MAX];
  if (realpath(path.c_str(), resolved) == nullptr) return false;
  const std::string target = resolved;
  const std::string self = std::to_string(getpid());
  DIR* processes = opendir("/proc");
  if (processes == nullptr) return false;
  bool writing = false;
  while (!writing) {
    dirent* process = readdir(processes);
    if (process == nullptr) break;
    const std::string pid = process->d_name;
    if (pid.empty() || pid.find_first_not_of("0123456789") != std::string::npos || pid == self)
      continue;
    const std::string fdFolder = "/proc/" + pid + "/fd/";
    DIR* fds = opendir(fdFolder.c_str());
    if (fds == nullptr) continue;  // a process of another user, or gone
    while (dirent* fd = readdir(fds)) {
      if (fd->d_name[0] == '.') continue;
      char link[PATH_MAX];
      ssize_t length = readlink((fdFolder + fd->d_name).c_str(), link, sizeof link - 1);
      if (length <= 0 || std::string_view(link, length) != target) continue;
      // "flags:\t0100002": the access mode is the low two bits.
      std::istringstream info(readProcFile("/proc/" + pid + "/fdinfo/" + fd->d_name));
      for (std::string line; std::getline(info, line);) {
        if (line.rfind("flags:", 0) != 0) continue;
        const long flags = std::strtol(line.c_str() + 6, nullptr, 8);
        const long access = flags & O_ACCMODE;
        writing = access == O_WRONLY || access == O_RDWR;
        break;
      }
      if (writing) break;
    }
    closedir(fds);
  }
  closedir(processes);
  return writing;
}

bool SystemFileFacts::inUse(const std::string& path) {
  if (path.empty()) return false;
  return hasOfficeLockFile(path) || isLocked(path) || isOpenForWritingByAnotherProcess(path);
}

std::vector<MountPoint> parseMountInfo(const std::string& text) {
  // "36 35 98:0 /mnt1 /mnt2 rw,noatime master:1 - ext3 /dev/root rw,errors=continue"
  std::vector<MountPoint> mounts;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string id, parent, device, root, mountPoint, word;
    if (!(fields >> id >> parent >> device >> root >> mountPoint)) continue;
    while (fields >> word && word != "-") {
    }
    std::string type;
    if (!(fields >> type)) continue;
    MountPoint mount;
    mount.path = unescapeMountPath(mountPoint);
    mount.type = type;
    mount.remote = isRemoteFileSystem(type);
    mounts.push_back(std::move(mount));
  }
  return mounts;
}

std::vector<MountPoint> SystemFileFacts::mounts() {
  return parseMountInfo(readProcFile("/proc/self/mountinfo"));
}

}  // namespace qb
