#include "services/files/reader_rights.h"

#include <unistd.h>

#include <algorithm>

namespace qb {

ReaderRights ReaderRights::ofThisProcess() {
  std::vector<uint32_t> groups{static_cast<uint32_t>(getegid())};
  const int count = getgroups(0, nullptr);
  if (count > 0) {
    std::vector<gid_t> more(static_cast<size_t>(count));
    const int read = getgroups(count, more.data());
    for (int i = 0; i < read; ++i) groups.push_back(static_cast<uint32_t>(more[i]));
  }
  return ReaderRights(static_cast<uint32_t>(geteuid()), std::move(groups));
}

ReaderRights::ReaderRights(uint32_t user, std::vector<uint32_t> groups)
    : user_(user), groups_(std::move(groups)) {}

bool ReaderRights::mayRead(const FileFacts& facts) const {
  if (!facts.present()) return false;
  if (user_ == 0) return true;
  if (facts.owner == user_) return (facts.mode & 0400) != 0;
  if (std::find(groups_.begin(), groups_.end(), facts.group) != groups_.end())
    return (facts.mode & 0040) != 0;
  return (facts.mode & 0004) != 0;
}

}  // namespace qb
