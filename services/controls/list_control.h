#pragma once
// ListControl: the list part that list boxes and combo boxes share. Entries
// are 0-based as the platform counts them; each carries an ItemData number.
// ListIndex -1 means no entry is chosen; choosing one raises Click.

#include <cstdint>
#include <string>
#include <vector>

#include "services/controls/control.h"

namespace qb {

class ListControl : public Control {
 public:
  using Control::Control;

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
  // Chooses an entry or none with -1; other values are refused with
  // RuntimeError(err::kInvalidProperty, "Invalid property value").
  void setListIndex(int32_t value);

 protected:
  // Called when an entry was chosen by setListIndex, before Click.
  virtual void entryChosen(int32_t /*index*/) {}
  // Called by Clear after the entries went.
  virtual void listCleared() {}
  // Marks the entry with exactly this text as chosen (or none), raising
  // nothing: the edit part of a combo box follows its text this way.
  void followText(const std::string& text);

 private:
  struct Entry {
    std::string text;
    int32_t itemData = 0;
  };
  const Entry& entry(int32_t index) const;

  std::vector<Entry> entries_;
  int32_t listIndex_ = -1;
  int32_t newIndex_ = -1;
};

}  // namespace qb
