#include "render/rtf_text.h"

#include "services/runtime/strings.h"

namespace qb::rtf {

std::string storedText(const std::string& value) {
  std::string escaped;
  escaped.reserve(value.size());
  for (char c : value) {
    if (c == '\\' || c == '{' || c == '}') escaped += '\\';
    escaped += c;
  }
  return toRtfEscapes(escaped);
}

}  // namespace qb::rtf
