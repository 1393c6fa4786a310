#include "services/controls/list_item.h"

#include "services/controls/collection_support.h"
#include "services/controls/list_view.h"

namespace qb {

void ListSubItem::setText(std::string value) {
  text_ = std::move(value);
  item_->textChanged();
}

ListSubItem& ListSubItemCollection::Add(int32_t index, const std::string& key,
                                        const std::string& text) {
  if (index < 0 || index > Count() + 1) control_failures::indexOutOfBounds();
  if (!key.empty()) {
    for (auto& subItem : subItems_) {
      if (subItem->key_ == key) control_failures::keyNotUnique();
    }
  }
  if (index == 0) index = Count() + 1;
  auto owned = std::unique_ptr<ListSubItem>(new ListSubItem(item_));
  owned->key_ = key;
  owned->text_ = text;
  ListSubItem& added = *owned;
  subItems_.insert(subItems_.begin() + (index - 1), std::move(owned));
  renumber();
  item_.textChanged();
  return added;
}

ListSubItem& ListSubItemCollection::item(int32_t index) const {
  if (index < 1 || index > Count()) control_failures::indexOutOfBounds();
  return *subItems_[index - 1];
}

ListSubItem& ListSubItemCollection::item(const std::string& key) const {
  for (auto& subItem : subItems_) {
    if (!key.empty() && subItem->key_ == key) return *subItem;
  }
  control_failures::elementNotFound();
}

void ListSubItemCollection::Remove(int32_t index) {
  item(index);
  subItems_.erase(subItems_.begin() + (index - 1));
  renumber();
  item_.textChanged();
}

void ListSubItemCollection::Clear() {
  subItems_.clear();
  item_.textChanged();
}

void ListSubItemCollection::renumber() {
  collection_support::numberFromOne(subItems_, &ListSubItem::index_);
}

void ListItem::setText(std::string value) {
  text_ = std::move(value);
  textChanged();
}

void ListItem::textChanged() {
  list_->changed(ControlChange::Text);
  list_->keepSorted();
}

void ListItem::setSelected(bool value) {
  if (value == selected_ && (!value || list_->focused_ == this)) return;
  selected_ = value;
  list_->selectionChanged(*this, value);
}

void ListItem::setIcon(int32_t value) {
  icon_ = value;
  list_->changed(ControlChange::Images);
}

void ListItem::setSmallIcon(int32_t value) {
  smallIcon_ = value;
  list_->changed(ControlChange::Images);
}

std::string ListItem::SubItems(int32_t column) const {
  if (column < 0) control_failures::invalidProperty();
  if (column == 0) return text_;
  return column <= subItems_.Count() ? subItems_.item(column).Text() : std::string();
}

void ListItem::setSubItems(int32_t column, std::string value) {
  if (column < 0) control_failures::invalidProperty();
  if (column == 0) return setText(std::move(value));
  while (subItems_.Count() < column) subItems_.Add();
  subItems_.item(column).setText(std::move(value));
}

}  // namespace qb
