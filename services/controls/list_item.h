#pragma once
// ListItem: one row of a ListView. Its Text is column 0; the other columns are
// its ListSubItems, 1-based, which insert at an index and shift the ones after
// it. Index is the row's place in ListItems (from 1) and follows the order
// when the list sorts. Items belong to their ListView; a ListItem* stays valid
// until the item is removed or the list cleared.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qb {

class ListView;
class ListItem;

class ListSubItem {
 public:
  int32_t Index() const { return index_; }
  const std::string& Key() const { return key_; }
  const std::string& Text() const { return text_; }
  void setText(std::string value);
  const std::string& Tag() const { return tag_; }
  void setTag(std::string value) { tag_ = std::move(value); }

 private:
  friend class ListSubItemCollection;
  explicit ListSubItem(ListItem& item) : item_(&item) {}
  ListItem* item_;
  int32_t index_ = 0;
  std::string key_;
  std::string text_;
  std::string tag_;
};

class ListSubItemCollection {
 public:
  explicit ListSubItemCollection(ListItem& item) : item_(item) {}

  // Adds a sub-item at index (1..Count+1; 0 appends) and returns it; those at
  // and after index move one place on. An index past Count + 1 is refused with
  // RuntimeError(err::kIndexOutOfBounds, "Index out of bounds"); a key in use
  // on this row with RuntimeError(err::kKeyNotUnique, "Key is not unique in
  // collection"). An empty key is no key.
  ListSubItem& Add(int32_t index = 0, const std::string& key = "", const std::string& text = "");
  int32_t Count() const { return static_cast<int32_t>(subItems_.size()); }
  // By index (from 1) or key; failures as ListItems.
  ListSubItem& item(int32_t index) const;
  ListSubItem& item(const std::string& key) const;
  ListSubItem& operator()(int32_t index) const { return item(index); }
  void Remove(int32_t index);
  void Clear();

 private:
  friend class ListItem;
  void renumber();
  ListItem& item_;
  std::vector<std::unique_ptr<ListSubItem>> subItems_;
};

class ListItem {
 public:
  ListItem(const ListItem&) = delete;
  ListItem& operator=(const ListItem&) = delete;

  ListView& list() const { return *list_; }
  int32_t Index() const { return index_; }
  const std::string& Key() const { return key_; }
  const std::string& Text() const { return text_; }
  void setText(std::string value);
  const std::string& Tag() const { return tag_; }
  void setTag(std::string value) { tag_ = std::move(value); }
  // True selects the row: in a single-selection list the others are cleared.
  // The row selected last is the list's SelectedItem while it stays selected.
  bool Selected() const { return selected_; }
  void setSelected(bool value);
  // Picture indexes in the list's Icons and SmallIcons image lists; 0 none.
  int32_t Icon() const { return icon_; }
  void setIcon(int32_t value);
  int32_t SmallIcon() const { return smallIcon_; }
  void setSmallIcon(int32_t value);

  ListSubItemCollection& ListSubItems() { return subItems_; }
  const ListSubItemCollection& ListSubItems() const { return subItems_; }
  // Text of column column: 0 is Text, k the k-th sub-item; "" when the row has
  // no such sub-item. A negative column is refused with err::kInvalidProperty.
  std::string SubItems(int32_t column) const;
  // Sets the text of column k (0 sets Text); missing sub-items up to k are
  // added empty.
  void setSubItems(int32_t column, std::string value);

 private:
  friend class ListItemCollection;
  friend class ListSubItem;
  friend class ListSubItemCollection;
  friend class ListView;
  ListItem(ListView& list, std::string key, std::string text)
      : list_(&list), key_(std::move(key)), text_(std::move(text)) {}
  void textChanged();

  ListView* list_;
  int32_t index_ = 0;
  std::string key_;
  std::string text_;
  std::string tag_;
  bool selected_ = false;
  int32_t icon_ = 0;
  int32_t smallIcon_ = 0;
  ListSubItemCollection subItems_{*this};
};

}  // namespace qb
