#include "services/controls/text_selection.h"

#include <algorithm>

#include "services/controls/control_failures.h"
#include "services/runtime/strings.h"

namespace qb {

void TextSelection::place(int32_t value, const std::string& text) {
  if (value < 0) control_failures::invalidProperty();
  start = std::min(value, Len(text));
  length = 0;
}

void TextSelection::extend(int32_t value, const std::string& text) {
  if (value < 0) control_failures::invalidProperty();
  length = std::min(value, Len(text) - start);
}

void TextSelection::atEnd(const std::string& text) {
  start = Len(text);
  length = 0;
}

}  // namespace qb
