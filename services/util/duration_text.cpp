#include "services/util/duration_text.h"

namespace qb {

std::string minutesToDurationText(int32_t minutes) {
  int64_t size = minutes < 0 ? -static_cast<int64_t>(minutes) : minutes;
  const int64_t hours = size / 60;
  const int64_t rest = size % 60;
  std::string text = minutes < 0 ? "-" : "";
  if (hours > 0) text += std::to_string(hours) + " hr";
  if (hours > 0 && rest > 0) text += " ";
  if (hours == 0 || rest > 0) text += std::to_string(rest) + " min";
  return text;
}

}  // namespace qb
