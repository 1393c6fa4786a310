#include "services/controls/tree_node.h"

#include <algorithm>

#include "services/controls/tree_view.h"
#include "services/errors/runtime_error.h"

namespace qb {

void Node::setText(std::string value) {
  text_ = std::move(value);
  tree_->changed(ControlChange::Text);
}

void Node::setImage(Variant value) {
  image_ = std::move(value);
  tree_->changed(ControlChange::Images);
}

void Node::setSelectedImage(Variant value) {
  selectedImage_ = std::move(value);
  tree_->changed(ControlChange::Images);
}

void Node::setParent(Node* newParent) {
  if (newParent && &newParent->tree() != tree_) {
    throw RuntimeError(err::kInvalidCall, "Invalid parent");
  }
  for (Node* up = newParent; up; up = up->parent_) {
    if (up == this)
      throw RuntimeError(err::kInvalidCall,
                         "Invalid parent: the node '" + text_ +
                             "' can't go under itself or under a node of its own subtree.");
  }
  tree_->unlink(*this);
  parent_ = newParent;
  (newParent ? newParent->children_ : tree_->roots_).push_back(this);
  tree_->changed(ControlChange::Items);
}

const std::vector<Node*>& Node::siblings() const {
  return parent_ ? parent_->children_ : tree_->roots_;
}

Node* Node::Previous() const {
  const auto& list = siblings();
  auto at = std::find(list.begin(), list.end(), this);
  return at == list.begin() ? nullptr : *(at - 1);
}

Node* Node::Next() const {
  const auto& list = siblings();
  auto at = std::find(list.begin(), list.end(), this);
  return (at + 1) == list.end() ? nullptr : *(at + 1);
}

Node* Node::FirstSibling() const { return siblings().front(); }
Node* Node::LastSibling() const { return siblings().back(); }

Node* Node::Root() const {
  const Node* node = this;
  while (node->parent_) node = node->parent_;
  return const_cast<Node*>(node);
}

void Node::setExpanded(bool value) {
  if (value == expanded_) return;
  expanded_ = value;
  tree_->changed(ControlChange::View);
}

bool Node::Selected() const { return tree_->SelectedItem() == this; }

void Node::setSelected(bool value) {
  if (value) {
    tree_->setSelectedItem(this);
  } else if (Selected()) {
    tree_->setSelectedItem(nullptr);
  }
}

bool Node::Visible() const {
  for (Node* up = parent_; up; up = up->parent_) {
    if (!up->expanded_) return false;
  }
  return true;
}

bool Node::EnsureVisible() {
  bool expanded = false;
  for (Node* up = parent_; up; up = up->parent_) {
    if (!up->expanded_) {
      up->setExpanded(true);
      expanded = true;
    }
  }
  auto rows = tree_->visibleNodes();
  auto row = static_cast<int32_t>(std::find(rows.begin(), rows.end(), this) - rows.begin());
  if (row < tree_->ScrollTop()) tree_->setScrollTop(row);
  if (tree_->Height() > 0 && tree_->RowHeight() > 0) {
    auto shown = static_cast<int32_t>(tree_->Height() / tree_->RowHeight());
    if (shown > 0 && row >= tree_->ScrollTop() + shown) tree_->setScrollTop(row - shown + 1);
  }
  return expanded;
}

std::string Node::FullPath() const {
  std::string path = text_;
  for (Node* up = parent_; up; up = up->parent_) {
    path = up->text_ + tree_->PathSeparator() + path;
  }
  return path;
}

}  // namespace qb
