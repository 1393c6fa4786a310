#include "services/controls/combo_box.h"

#include <algorithm>

#include "services/controls/control_failures.h"
#include "services/controls/form.h"
#include "services/runtime/strings.h"

namespace qb {

void ComboBox::setText(std::string value) {
  if (value == text_) return;
  text_ = std::move(value);
  selStart_ = Len(text_);
  selLength_ = 0;
  listIndex_ = -1;
  for (int32_t i = 0; i < ListCount(); ++i) {
    if (entries_[i].text == text_) {
      listIndex_ = i;
      break;
    }
  }
  notify(ControlChange::Text);
  Change.raise();
}

void ComboBox::setLocked(bool value) {
  locked_ = value;
  notify(ControlChange::Appearance);
}

void ComboBox::AddItem(const std::string& text, int32_t index) {
  if (index > ListCount()) control_failures::invalidCall();
  if (index < 0) index = ListCount();
  entries_.insert(entries_.begin() + index, Entry{text, 0});
  if (listIndex_ >= index) ++listIndex_;
  newIndex_ = index;
  notify(ControlChange::Items);
}

void ComboBox::RemoveItem(int32_t index) {
  entry(index);
  entries_.erase(entries_.begin() + index);
  if (listIndex_ == index)
    listIndex_ = -1;
  else if (listIndex_ > index)
    --listIndex_;
  notify(ControlChange::Items);
}

void ComboBox::Clear() {
  entries_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  text_.clear();
  notify(ControlChange::Items);
}

const ComboBox::Entry& ComboBox::entry(int32_t index) const {
  if (index < 0 || index >= ListCount()) control_failures::invalidCall();
  return entries_[index];
}

const std::string& ComboBox::List(int32_t index) const { return entry(index).text; }
int32_t ComboBox::ItemData(int32_t index) const { return entry(index).itemData; }

void ComboBox::setItemData(int32_t index, int32_t value) {
  entry(index);
  entries_[index].itemData = value;
}

void ComboBox::setListIndex(int32_t value) {
  if (value < -1 || value >= ListCount()) control_failures::invalidProperty();
  if (value == listIndex_) return;
  listIndex_ = value;
  if (value >= 0) text_ = entries_[value].text;
  selStart_ = Len(text_);
  selLength_ = 0;
  notify(ControlChange::Selection);
  Click.raise();
}

}  // namespace qb

namespace qb {

void ComboBox::select(int32_t start, int32_t length) {
  const int32_t size = Len(text_);
  selStart_ = std::clamp(start, 0, size);
  selLength_ = std::clamp(length, 0, size - selStart_);
  notify(ControlChange::Selection);
}

int16_t ComboBox::typeKey(int16_t keyAscii) {
  raiseKeyPress(*this, keyAscii);
  return keyAscii;
}

}  // namespace qb
