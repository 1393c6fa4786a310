#include "tests/support/temp_folder.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace qb::test {

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "qbtest-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  path_ = pattern;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  // Read-only files the tests made must not keep the folder alive.
  for (auto& entry : std::filesystem::recursive_directory_iterator(path_, ignored)) {
    std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
  }
  std::filesystem::remove_all(path_, ignored);
}

std::string TempFolder::writeFile(const std::string& name, const std::string& content) const {
  std::filesystem::path full = path_ / name;
  std::filesystem::create_directories(full.parent_path());
  std::ofstream out(full, std::ios::binary);
  out << content;
  return full.string();
}

std::string TempFolder::writeFileOfSize(const std::string& name, std::size_t bytes) const {
  return writeFile(name, std::string(bytes, 'x'));
}

}  // namespace qb::test
