#pragma once
// File sizes as the list and the properties dialog show them: the byte count
// in megabytes of 1048576 bytes, rounded to two decimals (half to even),
// written as the run-time writes a number ("1.5", "0", "12.25").

#include <cstdint>
#include <string>

namespace qb {

std::string megabytesText(int32_t bytes);

}  // namespace qb
