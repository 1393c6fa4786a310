#include "services/util/file_utilities_class.h"

#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <system_error>

#include "services/files/file_facts_service.h"
#include "services/files/reader_rights.h"
#include "services/runtime/dates.h"

namespace qb {

namespace fs = std::filesystem;

namespace {

// Days between 30 December 1899 and 1 January 1970.
constexpr double kUnixEpochSerial = 25569.0;

double timeToSerial(const FileTime& time, bool localTime) {
  if (localTime) return fromTimeT(static_cast<std::time_t>(time.seconds));
  return kUnixEpochSerial + static_cast<double>(time.seconds) / 86400.0;
}

std::string homeFolder() {
  const char* home = std::getenv("HOME");
  return home != nullptr && *home ? home : "/";
}

// XDG_DOCUMENTS_DIR as user-dirs.dirs writes it: XDG_DOCUMENTS_DIR="$HOME/Documents",
// or an absolute path; "" when the file does not name it.
std::string documentsFolderFromUserDirs(const std::string& home) {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  const std::string file =
      (config != nullptr && *config ? std::string(config) : home + "/.config") + "/user-dirs.dirs";
  std::ifstream in(file);
  const std::string key = "XDG_DOCUMENTS_DIR=";
  for (std::string line; std::getline(in, line);) {
    if (line.rfind(key, 0) != 0) continue;
    std::string value = line.substr(key.size());
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
      value = value.substr(1, value.size() - 2);
    if (value.rfind("$HOME", 0) == 0) value = home + value.substr(5);
    return value.empty() || value[0] != '/' ? "" : value;
  }
  return "";
}

}  // namespace

int32_t fileUtilitiesClass::getFileSize(const std::string& path) const {
  FileFacts facts = fileFacts().facts(path);
  if (!facts.isFile()) return 0;
  constexpr auto largest = static_cast<uint64_t>(std::numeric_limits<int32_t>::max());
  return static_cast<int32_t>(facts.size > largest ? largest : facts.size);
}

Variant fileUtilitiesClass::getFileDate(const std::string& path, int16_t kind,
                                        bool localTime) const {
  FileFacts facts = fileFacts().facts(path);
  if (!facts.present()) return Variant::null();
  switch (kind) {
    case fileDateCreated:
      return Variant::date(timeToSerial(facts.created(), localTime));
    case fileDateLastAccessed:
      return Variant::date(timeToSerial(facts.accessed, localTime));
    case fileDateLastModified:
      return Variant::date(timeToSerial(facts.modified, localTime));
    default:
      return Variant::null();
  }
}

bool fileUtilitiesClass::fileExists(const std::string& path) const {
  return fileFacts().facts(path).isFile();
}

bool fileUtilitiesClass::folderExists(const std::string& path) const {
  FileFacts facts = fileFacts().facts(path);
  return facts.present() && facts.isFolder;
}

FileAccessState fileUtilitiesClass::accessState(const std::string& path, bool* isFolder) const {
  if (isFolder != nullptr) *isFolder = false;
  if (path.empty()) return FileAccessState::missingFolder;
  // A path that is not there as such: denied, unreachable, or missing.
  auto notThere = [](FileReach reach, FileAccessState missing) {
    if (reach == FileReach::denied) return FileAccessState::accessDenied;
    if (reach == FileReach::unreachable) return FileAccessState::unreachable;
    return missing;
  };
  FileFacts facts = fileFacts().facts(path);
  if (facts.present()) {
    if (isFolder != nullptr) *isFolder = facts.isFolder;
    // A file is there but can't be opened by this user: told by its bits,
    // from the same query.
    if (!facts.isFolder && !ReaderRights::ofThisProcess().mayRead(facts))
      return FileAccessState::accessDenied;
    return FileAccessState::reachable;
  }
  if (facts.reach != FileReach::missing)
    return notThere(facts.reach, FileAccessState::missingFolder);
  // Missing: the folder that should hold it tells which kind. (The file could
  // be looked for, so its folder was searchable.)
  std::string parent = getFolderFromPath(path);
  FileFacts folder = fileFacts().facts(parent.empty() ? "." : parent);
  if (folder.present())
    return folder.isFolder ? FileAccessState::missingFile : FileAccessState::missingFolder;
  return notThere(folder.reach, FileAccessState::missingFolder);
}

bool fileUtilitiesClass::isFileWritable(const std::string& path) const {
  FileFacts facts = fileFacts().facts(path);
  return facts.present() && (facts.mode & 0222) != 0;
}

bool fileUtilitiesClass::isFileInUse(const std::string& path) const {
  if (!fileFacts().facts(path).isFile()) return false;
  return fileFacts().inUse(path);
}

std::string fileUtilitiesClass::addTrailingBackslash(const std::string& folder) const {
  std::string result = folder;
  while (!result.empty() && result.back() == '/') result.pop_back();
  return result + '/';
}

std::string fileUtilitiesClass::getFileExtension(const std::string& path) const {
  std::string name = getFileNameFromPath(path);
  auto dot = name.rfind('.');
  if (dot == std::string::npos || dot == 0) return "";
  return name.substr(dot);
}

std::string fileUtilitiesClass::getFolderFromPath(const std::string& path) const {
  auto pos = path.rfind('/');
  if (pos == std::string::npos) return "";
  std::string folder = path.substr(0, pos);
  while (!folder.empty() && folder.back() == '/') folder.pop_back();
  return folder.empty() ? "/" : folder;
}

std::string fileUtilitiesClass::getFileNameFromPath(const std::string& path) const {
  auto pos = path.rfind('/');
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
  const std::string home = homeFolder();
  if (folderNumber != 5) return home;
  if (const char* documents = std::getenv("XDG_DOCUMENTS_DIR"); documents != nullptr && *documents)
    return documents;
  if (std::string named = documentsFolderFromUserDirs(home); !named.empty()) return named;
  std::string documents = (fs::path(home) / "Documents").string();
  return folderExists(documents) ? documents : home;
}

}  // namespace qb
