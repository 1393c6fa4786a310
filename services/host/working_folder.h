#pragma once
// The folder object the host hands in (WorkingFolderReference).

#include <string>

namespace qb {

class WorkingFolderReference {
 public:
  virtual ~WorkingFolderReference() = default;
  // Base working folder of the firm's data.
  virtual std::string getDataFolder() = 0;
};

class FixedWorkingFolder : public WorkingFolderReference {
 public:
  explicit FixedWorkingFolder(std::string folder) : folder_(std::move(folder)) {}
  std::string getDataFolder() override { return folder_; }

 private:
  std::string folder_;
};

}  // namespace qb
