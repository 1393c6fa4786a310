#include "services/controls/list_control.h"

#include "services/controls/control_failures.h"

namespace qb {

void ListControl::AddItem(const std::string& text, int32_t index) {
  if (index > ListCount()) control_failures::invalidCall();
  if (index < 0) index = ListCount();
  entries_.insert(entries_.begin() + index, Entry{text, 0});
  if (listIndex_ >= index) ++listIndex_;
  newIndex_ = index;
  notify(ControlChange::Items);
}

void ListControl::RemoveItem(int32_t index) {
  entry(index);
  entries_.erase(entries_.begin() + index);
  if (listIndex_ == index)
    listIndex_ = -1;
  else if (listIndex_ > index)
    --listIndex_;
  notify(ControlChange::Items);
}

void ListControl::Clear() {
  entries_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  listCleared();
  notify(ControlChange::Items);
}

const ListControl::Entry& ListControl::entry(int32_t index) const {
  if (index < 0 || index >= ListCount()) control_failures::invalidCall();
  return entries_[index];
}

const std::string& ListControl::List(int32_t index) const { return entry(index).text; }
int32_t ListControl::ItemData(int32_t index) const { return entry(index).itemData; }

void ListControl::setItemData(int32_t index, int32_t value) {
  entry(index);
  entries_[index].itemData = value;
}

void ListControl::setListIndex(int32_t value) {
  if (value < -1 || value >= ListCount()) control_failures::invalidProperty();
  if (value == listIndex_) return;
  listIndex_ = value;
  if (value >= 0) entryChosen(value);
  notify(ControlChange::Selection);
  Click.raise();
}

void ListControl::followText(const std::string& text) {
  listIndex_ = -1;
  for (int32_t i = 0; i < ListCount(); ++i) {
    if (entries_[i].text == text) {
      listIndex_ = i;
      break;
    }
  }
}

}  // namespace qb
