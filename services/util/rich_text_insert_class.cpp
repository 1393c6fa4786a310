#include "services/util/rich_text_insert_class.h"

#include <algorithm>

#include "services/controls/rich_text_box.h"

namespace qb {

Variant RichTextInsertClass::insertTextAtPosition(RichTextBox& box, const std::string& text,
                                                  int32_t position) {
  box.setSelStart(std::max(position, 0));
  box.setSelText(text);
  return Variant(!text.empty());
}

}  // namespace qb
