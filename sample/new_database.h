#pragma once
// Making a client database file safely: it is built under a temporary name
// beside the target and moved into place only when it is complete, so a
// failure half way leaves nothing behind and an existing file is replaced
// whole or not at all.

#include <cstdint>
#include <string>

#include "sample/sample_firm.h"

namespace qb {

// A generated firm is limited to this many client companies (about 400 MB of
// database): more than any firm holds, and the generator's time stays in
// minutes.
constexpr int32_t kMaxGeneratedClients = 100000;

struct NewDatabase {
  enum class Content { Empty, Sample, Generated };
  Content content = Content::Empty;
  int32_t clients = 0;      // the generated firm's client companies
  std::string filesFolder;  // where the sample or generated files go
  bool replace = false;     // an existing file may be replaced
};

// Makes a client database at path with the whole schema, the mark and the
// journal that suits where it lies, filled as options.content says. Throws
// std::runtime_error whose text says what is wrong and what to do, and leaves
// the target as it was, when: path is a folder; the file exists and replace
// is false; the file is open in another program or locked; the number of
// clients is out of range; the disk has not room enough for a generated
// firm; or anything fails while the database is made (the temporary file is
// removed then). The folders on the way are created.
FirmSummary makeDatabase(const std::string& path, const NewDatabase& options);

}  // namespace qb
