#include "services/controls/list_item_collection.h"

#include "services/controls/collection_support.h"
#include "services/controls/list_view.h"

namespace qb {

ListItem& ListItemCollection::Add(int32_t index, const std::string& key, const std::string& text,
                                  int32_t icon, int32_t smallIcon) {
  if (index < 0 || index > Count() + 1) control_failures::indexOutOfBounds();
  if (!key.empty() && list_.keys_.count(key)) control_failures::keyNotUnique();
  if (index == 0) index = Count() + 1;
  auto owned = std::unique_ptr<ListItem>(new ListItem(list_, key, text));
  owned->icon_ = icon;
  owned->smallIcon_ = smallIcon;
  ListItem& added = *owned;
  list_.rows_.insert(list_.rows_.begin() + (index - 1), std::move(owned));
  if (!key.empty()) list_.keys_[key] = &added;
  list_.renumber(index - 1);
  list_.keepSorted();
  list_.changed(ControlChange::Items);
  return added;
}

int32_t ListItemCollection::Count() const { return static_cast<int32_t>(list_.rows_.size()); }

ListItem& ListItemCollection::item(int32_t index) const {
  if (index < 1 || index > Count()) control_failures::indexOutOfBounds();
  return *list_.rows_[index - 1];
}

ListItem& ListItemCollection::item(const std::string& key) const {
  auto found = list_.keys_.find(key);
  if (found == list_.keys_.end()) control_failures::elementNotFound();
  return *found->second;
}

ListItem& ListItemCollection::item(const Variant& indexOrKey) const {
  return collection_support::itemByIndexOrKey(*this, indexOrKey);
}

void ListItemCollection::Remove(int32_t index) { list_.forget(item(index)); }
void ListItemCollection::Remove(const std::string& key) { list_.forget(item(key)); }

void ListItemCollection::Clear() {
  list_.focused_ = nullptr;
  list_.keys_.clear();
  list_.rows_.clear();
  list_.scrollTop_ = 0;
  list_.changed(ControlChange::Items);
}

}  // namespace qb
