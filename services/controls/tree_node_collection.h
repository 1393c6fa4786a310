#pragma once
// NodeCollection: a TreeView's Nodes, 1-based in the order of adding. Keys are
// unique (an empty key is no key).

#include <cstdint>
#include <string>

#include "services/controls/tree_node.h"
#include "services/runtime/variant.h"

namespace qb {

// Relationship of a new node to its relative.
constexpr int32_t tvwFirst = 0;     // first sibling of the relative
constexpr int32_t tvwLast = 1;      // last sibling of the relative
constexpr int32_t tvwNext = 2;      // right after the relative
constexpr int32_t tvwPrevious = 3;  // right before the relative
constexpr int32_t tvwChild = 4;     // last child of the relative

class NodeCollection {
 public:
  explicit NodeCollection(TreeView& tree) : tree_(tree) {}

  // Adds a node and returns it. relative: nullptr for none; without a relative
  // the node is a top-level one, first with tvwFirst and last otherwise.
  // relationship: tvwFirst .. tvwChild, others are refused with
  // RuntimeError(err::kInvalidCall, "Invalid procedure call or argument").
  // A key already in use is refused with RuntimeError(err::kKeyNotUnique,
  // "Key is not unique in collection"). The new node is collapsed, unselected
  // and takes the index Count + 1.
  Node& Add(Node* relative, int32_t relationship = tvwNext, const std::string& key = "",
            const std::string& text = "", const Variant& image = Variant(),
            const Variant& selectedImage = Variant());
  // The same with the relative given by index (Long/Integer), key (String) or
  // none (Empty); an unknown relative fails as item() does.
  Node& Add(const Variant& relative = Variant(), int32_t relationship = tvwNext,
            const std::string& key = "", const std::string& text = "",
            const Variant& image = Variant(), const Variant& selectedImage = Variant());

  int32_t Count() const;
  // By index (from 1) or key. An index out of range is refused with
  // RuntimeError(err::kIndexOutOfBounds, "Index out of bounds"), an unknown key
  // with RuntimeError(err::kElementNotFound, "Element not found").
  Node& item(int32_t index) const;
  Node& item(const std::string& key) const;
  Node& item(const char* key) const { return item(std::string(key)); }
  Node& item(const Variant& indexOrKey) const;
  Node& operator()(int32_t index) const { return item(index); }
  Node& operator()(const std::string& key) const { return item(key); }
  Node& operator()(const char* key) const { return item(std::string(key)); }
  // The node with that key, or nullptr (no failure).
  Node* find(const std::string& key) const;

  // Removes the node with its whole subtree; the others' indexes close up.
  // Fails as item() does for an unknown index or key.
  void Remove(int32_t index);
  void Remove(const std::string& key);
  // Removes every node; SelectedItem becomes nullptr.
  void Clear();

 private:
  TreeView& tree_;
};

}  // namespace qb
