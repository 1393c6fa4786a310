#include "services/util/general_utilities_class.h"

#include "services/controls/list_view.h"
#include "services/controls/tree_view.h"

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

}  // namespace qb
