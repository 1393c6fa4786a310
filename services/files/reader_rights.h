#pragma once
// ReaderRights: whether this process may read a file, told from the owner,
// group and permission bits that the file's one metadata call gave, so a
// share is not asked a second time (and a share that hangs is not asked at
// all). The owner's bits decide for the owner, the group's for a member of
// the file's group, the others' for everyone else; the superuser reads
// everything. Access control lists beyond the permission bits are not read.

#include <cstdint>
#include <vector>

#include "services/files/file_facts.h"

namespace qb {

class ReaderRights {
 public:
  // The rights of this process as they stand: its effective user and group
  // and its supplementary groups.
  static ReaderRights ofThisProcess();
  // Rights of a user with those groups (the first is the primary group).
  ReaderRights(uint32_t user, std::vector<uint32_t> groups);

  // True when the facts name a present file or folder whose permission bits
  // let this user read it.
  bool mayRead(const FileFacts& facts) const;

 private:
  uint32_t user_;
  std::vector<uint32_t> groups_;
};

}  // namespace qb
