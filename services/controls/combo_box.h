#pragma once
// ComboBox: a drop-down list with an edit part. The list is 0-based as the
// platform counts it; each entry carries an ItemData number. ListIndex -1
// means no entry is chosen. Click is raised when ListIndex changes.

#include <cstdint>
#include <string>
#include <vector>

#include "services/controls/control.h"

namespace qb {

class ComboBox : public Control {
 public:
  using Control::Control;

  const std::string& Text() const { return text_; }
  // Sets the edit text; ListIndex follows the entry with that exact text, or
  // becomes -1 when none has it.
  void setText(std::string value);
  bool Locked() const { return locked_; }
  void setLocked(bool value);
  // The selected part of the edit text: its start (characters before it)
  // and length. A new Text or choice leaves nothing selected, the caret at
  // the end.
  int32_t SelStart() const { return selStart_; }
  int32_t SelLength() const { return selLength_; }
  void select(int32_t start, int32_t length);
  // A user's key on the combo: KeyPress (the form's first when it previews
  // keys); returns what is left of the key (0 when a handler used it up).
  int16_t typeKey(int16_t keyAscii);

  // Appends an entry, or inserts it at index (0-based) when index >= 0. An
  // index past ListCount is refused with err::kInvalidCall.
  void AddItem(const std::string& text, int32_t index = -1);
  // Removes the entry at index; an index out of range is refused with
  // err::kInvalidCall.
  void RemoveItem(int32_t index);
  void Clear();
  int32_t ListCount() const { return static_cast<int32_t>(entries_.size()); }
  // The entry's text; an index out of range is refused with err::kInvalidCall.
  const std::string& List(int32_t index) const;
  int32_t ItemData(int32_t index) const;
  void setItemData(int32_t index, int32_t value);
  int32_t NewIndex() const { return newIndex_; }  // index of the last entry added

  int32_t ListIndex() const { return listIndex_; }
  // Chooses an entry (its text becomes Text) or none with -1; other values are
  // refused with RuntimeError(err::kInvalidProperty, "Invalid property value").
  void setListIndex(int32_t value);

  Event<void()> Change;

 private:
  struct Entry {
    std::string text;
    int32_t itemData = 0;
  };
  const Entry& entry(int32_t index) const;

  std::string text_;
  bool locked_ = false;
  std::vector<Entry> entries_;
  int32_t listIndex_ = -1;
  int32_t newIndex_ = -1;
  int32_t selStart_ = 0;
  int32_t selLength_ = 0;
};

}  // namespace qb
