#pragma once
// TreeView: a tree of nodes with one selected node, an image list, and the
// row layout that HitTest reads. Headless, the rows are the visible nodes
// (see Node::Visible) top to bottom in display order, each RowHeight twips
// high, starting at row ScrollTop; a GUI installs a hit-test provider so that
// hits follow the real widget. The tree checks itself with isConsistent() and
// renders itself for tests with dump().

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "services/controls/control.h"
#include "services/controls/image_list.h"
#include "services/controls/tree_node.h"
#include "services/controls/tree_node_collection.h"

namespace qb {

using NodeHitTestProvider = std::function<Node*(float x, float y)>;

class TreeView : public Control {
 public:
  explicit TreeView(std::string name = "", int32_t index = -1);
  ~TreeView() override;

  NodeCollection& Nodes() { return nodes_; }
  const NodeCollection& Nodes() const { return nodes_; }

  // The selected node, nullptr when none is.
  Node* SelectedItem() const { return selected_; }
  // Selects node (nullptr clears the selection). A node of another tree is
  // refused with RuntimeError(err::kInvalidProperty, "Invalid property value").
  void setSelectedItem(Node* node);

  // The node on the row under the point (twips, relative to the tree), or
  // nullptr for empty space. Uses the hit-test provider when one is installed.
  Node* HitTest(float x, float y) const;
  // Installs (or with an empty function removes) the GUI's hit test.
  void setHitTestProvider(NodeHitTestProvider provider) { hitTestProvider_ = std::move(provider); }

  // The headless row layout: row height in twips (default 255) and the index
  // (from 0) of the first row shown.
  float RowHeight() const { return rowHeight_; }
  void setRowHeight(float twips) { rowHeight_ = twips; }
  int32_t ScrollTop() const { return scrollTop_; }
  void setScrollTop(int32_t row);
  // The nodes that have a row, in display order.
  std::vector<Node*> visibleNodes() const;
  // The top of the node's row in the headless layout (twips), so that
  // HitTest at a point below it finds the node; -1 when the node has no row
  // on show (under a collapsed node, or scrolled above ScrollTop).
  float rowTop(const Node& node) const;
  // Top-level nodes in display order.
  const std::vector<Node*>& roots() const { return roots_; }

  // The image list whose pictures Image and SelectedImage name; nullptr for
  // none. The tree does not own it.
  qb::ImageList* imageList() const { return imageList_; }
  void setImageList(qb::ImageList* images);
  // The picture a node shows (SelectedImage when selected and set), or an
  // empty Picture.
  Picture pictureOf(const Node& node) const;

  const std::string& PathSeparator() const { return pathSeparator_; }
  void setPathSeparator(std::string value) { pathSeparator_ = std::move(value); }

  // What a user does: collapse or expand a node (sets Expanded, raises
  // Collapse or Expand), or click a node (selects it, raises NodeClick).
  void userCollapse(Node& node);
  void userExpand(Node& node);
  void userClickNode(Node& node);

  // True when the model holds together: indexes run 1..Count, every key maps
  // to its node, parents and children agree, every node is reachable once from
  // the top level, and the selected node belongs to the tree.
  bool isConsistent() const;
  // The tree as text in display order: "(Key Text" + children + ")" for each
  // node, e.g. "(Category:1 Main(Category:2 Taxes)(Category:3 Letters))".
  std::string dump() const;

  Event<void(Node& node)> Collapse;
  Event<void(Node& node)> Expand;
  Event<void(Node& node)> NodeClick;

 private:
  friend class Node;
  friend class NodeCollection;

  // Notifications from nodes and the collection.
  void changed(ControlChange change) { notify(change); }
  void placeNode(Node& node, Node* relative, int32_t relationship);
  void unlink(Node& node);
  void renumber();
  void removeSubtree(Node& node);
  void dumpNode(const Node& node, std::string& out) const;

  NodeCollection nodes_{*this};
  std::vector<std::unique_ptr<Node>> all_;  // in index order
  std::vector<Node*> roots_;
  std::unordered_map<std::string, Node*> keys_;
  Node* selected_ = nullptr;
  qb::ImageList* imageList_ = nullptr;
  NodeHitTestProvider hitTestProvider_;
  float rowHeight_ = 255;
  int32_t scrollTop_ = 0;
  std::string pathSeparator_ = "\\";
};

}  // namespace qb
