#include "services/controls/tree_view.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "services/controls/collection_support.h"

namespace qb {

TreeView::TreeView(std::string name, int32_t index) : Control(std::move(name), index) {}
TreeView::~TreeView() = default;

void TreeView::setSelectedItem(Node* node) {
  if (node && &node->tree() != this) control_failures::invalidProperty();
  if (node == selected_) return;
  selected_ = node;
  notify(ControlChange::Selection);
}

void TreeView::setScrollTop(int32_t row) {
  scrollTop_ = std::max(0, row);
  notify(ControlChange::View);
}

std::vector<Node*> TreeView::visibleNodes() const {
  std::vector<Node*> rows;
  // Depth first in display order, into expanded nodes only.
  std::vector<Node*> pending(roots_.rbegin(), roots_.rend());
  while (!pending.empty()) {
    Node* node = pending.back();
    pending.pop_back();
    rows.push_back(node);
    if (node->expanded_)
      pending.insert(pending.end(), node->children_.rbegin(), node->children_.rend());
  }
  return rows;
}

Node* TreeView::HitTest(float x, float y) const {
  if (hitTestProvider_) return hitTestProvider_(x, y);
  if (x < 0 || y < 0 || rowHeight_ <= 0) return nullptr;
  auto rows = visibleNodes();
  auto row = static_cast<int64_t>(std::floor(y / rowHeight_)) + scrollTop_;
  return row < static_cast<int64_t>(rows.size()) ? rows[row] : nullptr;
}

float TreeView::rowTop(const Node& node) const {
  const auto rows = visibleNodes();
  const auto at = std::find(rows.begin(), rows.end(), &node);
  const auto row = at - rows.begin() - static_cast<std::ptrdiff_t>(scrollTop_);
  if (at == rows.end() || row < 0) return -1;
  return static_cast<float>(row) * rowHeight_;
}

void TreeView::setImageList(qb::ImageList* images) {
  imageList_ = images;
  notify(ControlChange::Images);
}

Picture TreeView::pictureOf(const Node& node) const {
  if (!imageList_) return Picture();
  const Variant& image =
      node.Selected() && !node.selectedImage_.isEmpty() ? node.selectedImage_ : node.image_;
  return imageList_->pictureOf(image);
}

void TreeView::userCollapse(Node& node) {
  node.setExpanded(false);
  Collapse.raise(node);
}

void TreeView::userExpand(Node& node) {
  node.setExpanded(true);
  Expand.raise(node);
}

void TreeView::userClickNode(Node& node) {
  setSelectedItem(&node);
  NodeClick.raise(node);
}

void TreeView::placeNode(Node& node, Node* relative, int32_t relationship) {
  if (!relative) {
    node.parent_ = nullptr;
    if (relationship == tvwFirst)
      roots_.insert(roots_.begin(), &node);
    else
      roots_.push_back(&node);
    return;
  }
  if (relationship == tvwChild) {
    node.parent_ = relative;
    relative->children_.push_back(&node);
    return;
  }
  node.parent_ = relative->parent_;
  auto& list = relative->parent_ ? relative->parent_->children_ : roots_;
  auto at = std::find(list.begin(), list.end(), relative);
  switch (relationship) {
    case tvwFirst:
      list.insert(list.begin(), &node);
      break;
    case tvwLast:
      list.push_back(&node);
      break;
    case tvwNext:
      list.insert(at + 1, &node);
      break;
    default:
      list.insert(at, &node);
      break;  // tvwPrevious
  }
}

void TreeView::unlink(Node& node) {
  auto& list = node.parent_ ? node.parent_->children_ : roots_;
  std::erase(list, &node);
  node.parent_ = nullptr;
}

void TreeView::renumber() { collection_support::numberFromOne(all_, &Node::index_); }

void TreeView::removeSubtree(Node& node) {
  unlink(node);
  std::set<Node*> gone;
  std::vector<Node*> pending{&node};
  while (!pending.empty()) {
    Node* next = pending.back();
    pending.pop_back();
    gone.insert(next);
    pending.insert(pending.end(), next->children_.begin(), next->children_.end());
  }
  if (gone.count(selected_)) selected_ = nullptr;
  for (Node* removed : gone) {
    if (!removed->key_.empty()) keys_.erase(removed->key_);
  }
  std::erase_if(all_, [&gone](const std::unique_ptr<Node>& n) { return gone.count(n.get()) > 0; });
  renumber();
}

bool TreeView::isConsistent() const {
  for (size_t i = 0; i < all_.size(); ++i) {
    const Node& node = *all_[i];
    if (node.index_ != static_cast<int32_t>(i + 1) || node.tree_ != this) return false;
    if (!node.key_.empty()) {
      auto found = keys_.find(node.key_);
      if (found == keys_.end() || found->second != &node) return false;
    }
    for (const Node* child : node.children_) {
      if (child->parent_ != &node) return false;
    }
  }
  size_t keyed = std::count_if(all_.begin(), all_.end(), [](auto& n) { return !n->key_.empty(); });
  if (keyed != keys_.size()) return false;
  // Every node reachable exactly once from the top level.
  std::set<const Node*> seen;
  std::vector<const Node*> pending(roots_.begin(), roots_.end());
  for (const Node* root : roots_) {
    if (root->parent_) return false;
  }
  while (!pending.empty()) {
    const Node* node = pending.back();
    pending.pop_back();
    if (!seen.insert(node).second) return false;
    pending.insert(pending.end(), node->children_.begin(), node->children_.end());
  }
  if (seen.size() != all_.size()) return false;
  return !selected_ || seen.count(selected_) > 0;
}

void TreeView::dumpNode(const Node& node, std::string& out) const {
  out += "(" + node.key_ + " " + node.text_;
  for (const Node* child : node.children_) dumpNode(*child, out);
  out += ")";
}

std::string TreeView::dump() const {
  std::string out;
  for (const Node* root : roots_) dumpNode(*root, out);
  return out;
}

}  // namespace qb
