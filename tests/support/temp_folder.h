#pragma once
// A fresh temporary folder for one test, removed with everything in it when
// the fixture ends. Tests create real files in it.

#include <filesystem>
#include <string>

namespace qb::test {

class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  // Full path of a name inside the folder.
  std::string file(const std::string& name) const { return (path_ / name).string(); }
  // Writes a file of the given content (creating folders on the way) and
  // returns its full path.
  std::string writeFile(const std::string& name, const std::string& content) const;
  // Writes a file of the given size in bytes.
  std::string writeFileOfSize(const std::string& name, std::size_t bytes) const;

 private:
  std::filesystem::path path_;
};

}  // namespace qb::test
