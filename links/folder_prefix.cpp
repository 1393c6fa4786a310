#include "links/folder_prefix.h"

#include <filesystem>

#include "services/files/file_facts_service.h"
#include "services/files/reader_rights.h"

namespace qb::links {

namespace {

// "." and ".." resolved, doubled and ending separators removed.
std::string normalForm(const std::filesystem::path& path) {
  std::string normal = path.lexically_normal().string();
  while (normal.size() > 1 && normal.back() == '/') normal.pop_back();
  return normal;
}

}  // namespace

bool normalizePrefix(const std::string& text, std::string& prefix, std::string& error) {
  if (text.empty()) {
    error = "a folder is needed, not an empty text";
    return false;
  }
  if (text.front() != '/') {
    error = "'" + text + "' is a relative path: give the whole path from '/'";
    return false;
  }
  prefix = normalForm(text);
  return true;
}

bool isUnderPrefix(const std::string& path, const std::string& prefix) {
  if (prefix == "/") return !path.empty() && path.front() == '/';
  if (path.compare(0, prefix.size(), prefix) != 0) return false;
  return path.size() == prefix.size() || path[prefix.size()] == '/';
}

std::string replacePrefix(const std::string& path, const std::string& from, const std::string& to) {
  std::string rest = from == "/" ? path.substr(1) : path.substr(from.size());
  if (!rest.empty() && rest.front() == '/') rest.erase(0, 1);
  if (rest.empty()) return to;
  return to == "/" ? "/" + rest : to + "/" + rest;
}

bool checkFolderReachable(std::string& folder, std::string& error) {
  if (folder.empty()) {
    error = "a folder is needed, not an empty text";
    return false;
  }
  std::error_code failed;
  std::filesystem::path absolute = std::filesystem::absolute(folder, failed);
  if (failed) absolute = folder;
  const std::string normal = normalForm(absolute);
  const FileFacts facts = fileFacts().facts(normal);
  switch (facts.reach) {
    case FileReach::present:
      if (!facts.isFolder) {
        error = "'" + normal + "' is a file, not a folder";
        return false;
      }
      if (!ReaderRights::ofThisProcess().mayRead(facts)) {
        error = "this user may not read the folder '" + normal + "'";
        return false;
      }
      folder = normal;
      return true;
    case FileReach::missing:
      error = "there is no folder '" + normal + "'";
      return false;
    case FileReach::denied:
      error = "this user may not reach the folder '" + normal + "'";
      return false;
    case FileReach::unreachable:
      error = "the folder '" + normal + "' did not answer: its disk or share can't be reached";
      return false;
  }
  return false;
}

}  // namespace qb::links
