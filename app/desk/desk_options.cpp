#include "app/desk/desk_options.h"

#include <charconv>

namespace qb::desk {

void parseClient(const std::string& text, DeskOptions& options) {
  const size_t colon = text.find(':');
  const std::string kind = text.substr(0, colon);
  if (colon == std::string::npos || (kind != "company" && kind != "contact")) {
    throw OptionsError("--client takes company:ID or contact:ID, not '" + text + "'");
  }
  const std::string number = text.substr(colon + 1);
  int32_t id = -1;
  auto [end, ec] = std::from_chars(number.data(), number.data() + number.size(), id);
  if (ec != std::errc() || end != number.data() + number.size() || id < 0) {
    throw OptionsError("--client needs a whole number after the colon, not '" + number + "'");
  }
  options.clientIsCompany = kind == "company";
  options.clientID = id;
}

}  // namespace qb::desk
