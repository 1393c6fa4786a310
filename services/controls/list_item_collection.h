#pragma once
// ListItemCollection: a ListView's ListItems, 1-based in display order. Keys
// are unique (an empty key is no key).

#include <cstdint>
#include <string>

#include "services/controls/list_item.h"
#include "services/runtime/variant.h"

namespace qb {

class ListItemCollection {
 public:
  explicit ListItemCollection(ListView& list) : list_(list) {}

  // Adds a row and returns it. index: 1..Count+1, 0 appends; past Count + 1 is
  // refused with RuntimeError(err::kIndexOutOfBounds, "Index out of bounds").
  // A key in use is refused with RuntimeError(err::kKeyNotUnique, "Key is not
  // unique in collection"). In a Sorted list the row then moves to its place.
  ListItem& Add(int32_t index = 0, const std::string& key = "", const std::string& text = "",
                int32_t icon = 0, int32_t smallIcon = 0);
  int32_t Count() const;
  // By index (from 1) or key. An index out of range is refused with
  // RuntimeError(err::kIndexOutOfBounds, "Index out of bounds"), an unknown key
  // with RuntimeError(err::kElementNotFound, "Element not found").
  ListItem& item(int32_t index) const;
  ListItem& item(const std::string& key) const;
  ListItem& item(const char* key) const { return item(std::string(key)); }
  ListItem& item(const Variant& indexOrKey) const;
  ListItem& operator()(int32_t index) const { return item(index); }
  ListItem& operator()(const std::string& key) const { return item(key); }
  ListItem& operator()(const char* key) const { return item(std::string(key)); }
  // Removes a row; the others' indexes close up. Fails as item().
  void Remove(int32_t index);
  void Remove(const std::string& key);
  // Removes every row; SelectedItem becomes nullptr.
  void Clear();

 private:
  ListView& list_;
};

}  // namespace qb
