#pragma once
// Node: one entry of a TreeView. Index is the node's place in the tree's Nodes
// collection (the order of adding, 1-based, closing up when nodes are removed);
// the display order is kept by Parent and the sibling links. Nodes belong to
// their TreeView; a Node* stays valid until the node is removed or cleared.

#include <cstdint>
#include <string>
#include <vector>

#include "services/runtime/variant.h"

namespace qb {

class TreeView;

class Node {
 public:
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;

  TreeView& tree() const { return *tree_; }
  // Index in the Nodes collection, from 1.
  int32_t Index() const { return index_; }
  // Empty when the node was added without a key.
  const std::string& Key() const { return key_; }
  const std::string& Text() const { return text_; }
  void setText(std::string value);
  const std::string& Tag() const { return tag_; }
  void setTag(std::string value) { tag_ = std::move(value); }
  // Pictures of the tree's image list by index (Long) or key (String); Empty
  // for none.
  const Variant& Image() const { return image_; }
  void setImage(Variant value);
  const Variant& SelectedImage() const { return selectedImage_; }
  void setSelectedImage(Variant value);

  // The parent node, nullptr for a top-level node.
  Node* Parent() const { return parent_; }
  // Moves this node with its subtree to the end of newParent's children (to
  // the end of the top level with nullptr). Index and Key do not change. A
  // move under the node itself or one of its descendants is refused with
  // RuntimeError(err::kInvalidCall, "Invalid parent: ...", naming the node)
  // and nothing moves; so is a parent of another tree ("Invalid parent").
  void setParent(Node* newParent);

  // Number of children.
  int32_t Children() const { return static_cast<int32_t>(children_.size()); }
  // The children in display order.
  const std::vector<Node*>& childNodes() const { return children_; }
  // First child, nullptr when there is none.
  Node* Child() const { return children_.empty() ? nullptr : children_.front(); }
  // Siblings in display order (top-level nodes are siblings of one another);
  // nullptr past either end.
  Node* Previous() const;
  Node* Next() const;
  Node* FirstSibling() const;
  Node* LastSibling() const;
  // The top-level node this node lies under (itself when top-level).
  Node* Root() const;

  bool Expanded() const { return expanded_; }
  // Expands or collapses (no event is raised; TreeView::userCollapse raises).
  void setExpanded(bool value);
  bool Selected() const;
  // True selects this node (it becomes SelectedItem); False clears the
  // selection when this node was the selected one.
  void setSelected(bool value);
  // True when every ancestor is expanded, so the node has a row on screen.
  bool Visible() const;
  // Expands every ancestor and scrolls the tree so that the node's row shows.
  // Returns True when something had to be expanded.
  bool EnsureVisible();
  // Texts from the top-level node down to this one, joined by the tree's
  // PathSeparator ("\").
  std::string FullPath() const;

 private:
  friend class TreeView;
  friend class NodeCollection;
  Node(TreeView& tree, std::string key, std::string text)
      : tree_(&tree), key_(std::move(key)), text_(std::move(text)) {}

  // The list this node stands in: its parent's children or the top level.
  const std::vector<Node*>& siblings() const;

  TreeView* tree_;
  int32_t index_ = 0;
  std::string key_;
  std::string text_;
  std::string tag_;
  Variant image_;
  Variant selectedImage_;
  Node* parent_ = nullptr;
  std::vector<Node*> children_;
  bool expanded_ = false;
};

}  // namespace qb
