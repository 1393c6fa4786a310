#pragma once
// generalUtilitiesClass: small helpers the component uses on its controls
// and captions. It also keeps the error object the component hands it.

#include <memory>
#include <string>

namespace qb {

class ComboBox;
class ErrorObject;
class ListView;
class TreeView;

class generalUtilitiesClass {
 public:
  // Keeps the error object, in place of any kept before.
  void setErrorClass(const std::shared_ptr<ErrorObject>& errorObject);
  // The error object kept, or null when none was given.
  const std::shared_ptr<ErrorObject>& errorClass() const { return errorClass_; }

  // Sets the tree up for the category tree: its nodes can be dragged and
  // files from a file window dropped on it from the start (OLEDragMode 1,
  // automatic: a drag on a node raises OLEStartDrag, where the component
  // decides what the drag carries; OLEDropMode 1, manual), rows of 255
  // twips (a 16-pixel icon with its margin), scrolled to the top.
  void prepareTreeView(TreeView& tree) const;
  // The text for a heading caption: two blanks of indent, then the text on
  // one line (each line break or tab becomes a blank). "" gives "  ".
  std::string formatCaptionText(const std::string& text) const;
  // Leaves the list in list mode (View 2); nothing else changes.
  void setListViewListMode(ListView& list) const;
  // Type-ahead on a combo box, for its KeyPress: the key joins the part typed
  // so far (the text before the selection) and the first entry that begins
  // with it, ignoring case and the entry's indent (its leading blanks), is
  // chosen, with the rest of its text selected.
  // Backspace takes the last typed character back off. Returns the key left
  // for the combo: 0 when it was used (also when no entry begins so, which
  // leaves the choice as it was); other control keys (Enter, Escape, Tab)
  // unchanged.
  int16_t comboAutoComplete(ComboBox& combo, int16_t keyAscii) const;
  // Chooses the first entry of the combo whose ItemData is itemData. When no
  // entry has it, clearWhenMissing True leaves no entry chosen (ListIndex
  // -1); False leaves the choice as it was. True when an entry was chosen.
  bool selectComboItemByData(ComboBox& combo, int32_t itemData, bool clearWhenMissing) const;

 private:
  std::shared_ptr<ErrorObject> errorClass_;
};

}  // namespace qb
