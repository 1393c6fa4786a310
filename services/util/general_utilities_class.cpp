#include "services/util/general_utilities_class.h"

#include "services/controls/combo_box.h"
#include "services/controls/list_view.h"
#include "services/controls/tree_view.h"
#include "services/runtime/strings.h"

namespace qb {

void generalUtilitiesClass::setErrorClass(const std::shared_ptr<ErrorObject>& errorObject) {
  errorClass_ = errorObject;
}

void generalUtilitiesClass::prepareTreeView(TreeView& tree) const {
  tree.setOLEDragMode(1);
  tree.setOLEDropMode(1);
  tree.setRowHeight(255);
  tree.setScrollTop(0);
}

std::string generalUtilitiesClass::formatCaptionText(const std::string& text) const {
  std::string caption = "  ";
  caption.reserve(text.size() + 2);
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;  // CR LF: one blank
    caption += (c == '\r' || c == '\n' || c == '\t') ? ' ' : c;
  }
  return caption;
}

void generalUtilitiesClass::setListViewListMode(ListView& list) const { list.setView(lvwList); }

int16_t generalUtilitiesClass::comboAutoComplete(ComboBox& combo, int16_t keyAscii) const {
  constexpr int16_t kBackspace = 8;
  if (keyAscii < 32 && keyAscii != kBackspace) return keyAscii;
  // An entry's indent (leading blanks) is no part of what is typed.
  std::string typed = LTrim(Left(combo.Text(), combo.SelStart()));
  if (keyAscii == kBackspace) {
    if (!typed.empty()) typed = Left(typed, Len(typed) - 1);
  } else {
    typed += static_cast<char>(keyAscii);
  }
  for (int32_t i = 0; i < combo.ListCount(); ++i) {
    const std::string entry = combo.List(i);
    const std::string bare = LTrim(entry);
    if (!equalsText(Left(bare, Len(typed)), typed)) continue;
    const int32_t indent = Len(entry) - Len(bare);
    combo.setListIndex(i);
    combo.setSelStart(indent + Len(typed));
    combo.setSelLength(Len(combo.Text()) - indent - Len(typed));
    break;
  }
  return 0;
}

bool generalUtilitiesClass::selectComboItemByData(ComboBox& combo, int32_t itemData,
                                                  bool clearWhenMissing) const {
  for (int32_t i = 0; i < combo.ListCount(); ++i) {
    if (combo.ItemData(i) != itemData) continue;
    combo.setListIndex(i);
    return true;
  }
  if (clearWhenMissing) combo.setListIndex(-1);
  return false;
}

}  // namespace qb
