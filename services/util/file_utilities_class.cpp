#include "services/util/file_utilities_class.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <system_error>

#include "services/runtime/dates.h"

namespace qb {

namespace fs = std::filesystem;

namespace {

// Days between 30 December 1899 and 1 January 1970.
constexpr double kUnixEpochSerial = 25569.0;

bool isSeparator(char c) { return c == '/' || c == '\\'; }

std::string::size_type lastSeparator(const std::string& path) { return path.find_last_of("/\\"); }

// statx with every time stamp and the size; false when the path can't be
// reached.
bool readStatx(const std::string& path, struct statx& out) {
  if (path.empty()) return false;
  unsigned mask = STATX_TYPE | STATX_SIZE | STATX_ATIME | STATX_MTIME | STATX_CTIME | STATX_BTIME;
  return statx(AT_FDCWD, path.c_str(), 0, mask, &out) == 0;
}

bool isDirectory(const std::string& path) {
  struct stat st {};
  return !path.empty() && stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

double timestampToSerial(const struct statx_timestamp& ts, bool localTime) {
  if (localTime) return fromTimeT(static_cast<std::time_t>(ts.tv_sec));
  return kUnixEpochSerial + static_cast<double>(ts.tv_sec) / 86400.0;
}

bool earlier(const struct statx_timestamp& a, const struct statx_timestamp& b) {
  return a.tv_sec < b.tv_sec || (a.tv_sec == b.tv_sec && a.tv_nsec < b.tv_nsec);
}

}  // namespace

int32_t fileUtilitiesClass::getFileSize(const std::string& path) const {
  struct statx stx {};
  if (!readStatx(path, stx) || S_ISDIR(stx.stx_mode)) return 0;
  constexpr auto largest = static_cast<uint64_t>(std::numeric_limits<int32_t>::max());
  return static_cast<int32_t>(stx.stx_size > largest ? largest : stx.stx_size);
}

Variant fileUtilitiesClass::getFileDate(const std::string& path, int16_t kind,
                                        bool localTime) const {
  struct statx stx {};
  if (!readStatx(path, stx)) return Variant::null();
  switch (kind) {
    case fileDateCreated: {
      if (stx.stx_mask & STATX_BTIME)
        return Variant::date(timestampToSerial(stx.stx_btime, localTime));
      const auto& first = earlier(stx.stx_ctime, stx.stx_mtime) ? stx.stx_ctime : stx.stx_mtime;
      return Variant::date(timestampToSerial(first, localTime));
    }
    case fileDateLastAccessed:
      return Variant::date(timestampToSerial(stx.stx_atime, localTime));
    case fileDateLastModified:
      return Variant::date(timestampToSerial(stx.stx_mtime, localTime));
    default:
      return Variant::null();
  }
}

bool fileUtilitiesClass::fileExists(const std::string& path) const {
  struct stat st {};
  return !path.empty() && stat(path.c_str(), &st) == 0 && !S_ISDIR(st.st_mode);
}

bool fileUtilitiesClass::folderExists(const std::string& path) const { return isDirectory(path); }

FileAccessState fileUtilitiesClass::accessState(const std::string& path, bool* isFolder) const {
  if (isFolder != nullptr) *isFolder = false;
  if (path.empty()) return FileAccessState::missingFolder;
  struct stat st {};
  if (stat(path.c_str(), &st) == 0) {
    if (isFolder != nullptr) *isFolder = S_ISDIR(st.st_mode);
    return FileAccessState::reachable;
  }
  if (errno == EACCES) return FileAccessState::accessDenied;
  std::string parent = getFolderFromPath(path);
  const char* folder = parent.empty() ? "." : parent.c_str();
  if (stat(folder, &st) == 0) {
    if (!S_ISDIR(st.st_mode)) return FileAccessState::missingFolder;
    // The folder is there but may not be searched: the file can't be told.
    return access(folder, X_OK) == 0 ? FileAccessState::missingFile : FileAccessState::accessDenied;
  }
  return errno == EACCES ? FileAccessState::accessDenied : FileAccessState::missingFolder;
}

bool fileUtilitiesClass::isFileWritable(const std::string& path) const {
  struct stat st {};
  if (path.empty() || stat(path.c_str(), &st) != 0) return false;
  return (st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
}

bool fileUtilitiesClass::isFileInUse(const std::string& path) const {
  struct stat target {};
  if (path.empty() || stat(path.c_str(), &target) != 0 || S_ISDIR(target.st_mode)) return false;
  const std::string self = std::to_string(getpid());
  DIR* proc = opendir("/proc");
  if (proc == nullptr) return false;
  bool inUse = false;
  while (!inUse) {
    dirent* process = readdir(proc);
    if (process == nullptr) break;
    std::string pid = process->d_name;
    if (pid.empty() || pid.find_first_not_of("0123456789") != std::string::npos || pid == self)
      continue;
    std::string fdFolder = "/proc/" + pid + "/fd";
    DIR* fds = opendir(fdFolder.c_str());
    if (fds == nullptr) continue;  // a process of another user, or gone
    while (dirent* fd = readdir(fds)) {
      if (fd->d_name[0] == '.') continue;
      struct stat open {};
      std::string link = fdFolder + "/" + fd->d_name;
      if (stat(link.c_str(), &open) == 0 && open.st_dev == target.st_dev &&
          open.st_ino == target.st_ino) {
        inUse = true;
        break;
      }
    }
    closedir(fds);
  }
  closedir(proc);
  return inUse;
}

std::string fileUtilitiesClass::addTrailingBackslash(const std::string& folder) const {
  bool backslashes =
      folder.find('\\') != std::string::npos && folder.find('/') == std::string::npos;
  std::string result = folder;
  while (!result.empty() && isSeparator(result.back())) result.pop_back();
  return result + (backslashes ? '\\' : '/');
}

std::string fileUtilitiesClass::getFileExtension(const std::string& path) const {
  std::string name = getFileNameFromPath(path);
  auto dot = name.rfind('.');
  if (dot == std::string::npos || dot == 0) return "";
  return name.substr(dot);
}

std::string fileUtilitiesClass::getFolderFromPath(const std::string& path) const {
  auto pos = lastSeparator(path);
  if (pos == std::string::npos) return "";
  std::string folder = path.substr(0, pos);
  while (!folder.empty() && isSeparator(folder.back())) folder.pop_back();
  return folder.empty() ? path.substr(0, 1) : folder;
}

std::string fileUtilitiesClass::getFileNameFromPath(const std::string& path) const {
  auto pos = lastSeparator(path);
  return pos == std::string::npos ? path : path.substr(pos + 1);
}

std::string fileUtilitiesClass::normalizeFilePath(const std::string& path) const {
  if (path.empty()) return path;
  std::error_code ec;
  fs::path full = fs::absolute(path, ec);
  if (ec) full = path;
  std::string text = full.lexically_normal().string();
  if (text.size() > 1 && text.back() == '/') text.pop_back();
  return text;
}

std::string fileUtilitiesClass::getComputerName() const {
  char name[HOST_NAME_MAX + 1] = {};
  if (gethostname(name, sizeof name) != 0) return "";
  name[HOST_NAME_MAX] = '\0';
  return name;
}

std::string fileUtilitiesClass::getSpecialFolder(int64_t /*windowHandle*/,
                                                 int32_t folderNumber) const {
  const char* homeText = std::getenv("HOME");
  std::string home = homeText != nullptr ? homeText : "/";
  if (folderNumber != 5) return home;
  if (const char* documents = std::getenv("XDG_DOCUMENTS_DIR"); documents != nullptr && *documents)
    return documents;
  std::string documents = (fs::path(home) / "Documents").string();
  return isDirectory(documents) ? documents : home;
}

}  // namespace qb
