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
  tree.setOLEDragMode(0);
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
  std::string typed = Left(combo.Text(), combo.SelStart());
  if (keyAscii == kBackspace) {
    if (!typed.empty()) typed = Left(typed, Len(typed) - 1);
  } else {
    typed += static_cast<char>(keyAscii);
  }
  for (int32_t i = 0; i < combo.ListCount(); ++i) {
    if (!equalsText(Left(combo.List(i), Len(typed)), typed)) continue;
    combo.setListIndex(i);
    combo.setSelStart(Len(typed));
    combo.setSelLength(Len(combo.Text()) - Len(typed));
    break;
  }
  return 0;
}

}  // namespace qb
