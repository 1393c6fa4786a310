#include "services/util/file_size_text.h"

#include "services/runtime/conversions.h"

namespace qb {

std::string megabytesText(int32_t bytes) {
  constexpr double kBytesPerMegabyte = 1048576.0;
  return numberToText(Round(bytes / kBytesPerMegabyte, 2));
}

}  // namespace qb
