#pragma once
// Whether another program holds a database file: open in a process of this
// machine that we may look at, or locked (by a program here or, over a
// network share, on another workstation).

#include <string>

namespace qb::sample {

// "" when nobody else holds the file (or its WAL index); otherwise who does,
// as a phrase for a message: "quillbox-desk (process 4242)", or "another
// program or workstation" when the holder can't be named.
std::string fileHolder(const std::string& path);

}  // namespace qb::sample
