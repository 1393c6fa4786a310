#pragma once
// A folder of the local disk seen as a share where every metadata call costs
// 200 microseconds: the file-facts service then asks it on its workers, side
// by side, with the bounded wait.

#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "services/files/system_file_facts.h"

namespace qb::bench {

class SlowShare : public SystemFileFacts {
 public:
  explicit SlowShare(std::string folder) : folder_(std::move(folder)) {}
  FileFacts query(const std::string& path) override {
    std::this_thread::sleep_for(std::chrono::microseconds(200));
    return SystemFileFacts::query(path);
  }
  std::vector<MountPoint> mounts() override {
    std::vector<MountPoint> all = SystemFileFacts::mounts();
    all.push_back({folder_, "cifs", true});
    return all;
  }

 private:
  std::string folder_;
};

}  // namespace qb::bench
