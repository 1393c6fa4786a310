#include "services/controls/tree_node_collection.h"

#include "services/controls/collection_support.h"
#include "services/controls/tree_view.h"

namespace qb {

Node& NodeCollection::Add(Node* relative, int32_t relationship, const std::string& key,
                          const std::string& text, const Variant& image,
                          const Variant& selectedImage) {
  if (relationship < tvwFirst || relationship > tvwChild) control_failures::invalidCall();
  if (relative && &relative->tree() != &tree_) control_failures::invalidCall();
  if (!key.empty() && tree_.keys_.count(key)) control_failures::keyNotUnique();
  auto owned = std::unique_ptr<Node>(new Node(tree_, key, text));
  Node& node = *owned;
  node.image_ = image;
  node.selectedImage_ = selectedImage;
  node.index_ = Count() + 1;
  tree_.all_.push_back(std::move(owned));
  if (!key.empty()) tree_.keys_[key] = &node;
  tree_.placeNode(node, relative, relationship);
  tree_.changed(ControlChange::Items);
  return node;
}

Node& NodeCollection::Add(const Variant& relative, int32_t relationship, const std::string& key,
                          const std::string& text, const Variant& image,
                          const Variant& selectedImage) {
  Node* relativeNode = relative.isEmpty() ? nullptr : &item(relative);
  return Add(relativeNode, relationship, key, text, image, selectedImage);
}

int32_t NodeCollection::Count() const { return static_cast<int32_t>(tree_.all_.size()); }

Node& NodeCollection::item(int32_t index) const {
  if (index < 1 || index > Count()) control_failures::indexOutOfBounds();
  return *tree_.all_[index - 1];
}

Node& NodeCollection::item(const std::string& key) const {
  Node* node = find(key);
  if (!node) control_failures::elementNotFound();
  return *node;
}

Node& NodeCollection::item(const Variant& indexOrKey) const {
  return collection_support::itemByIndexOrKey(*this, indexOrKey);
}

Node* NodeCollection::find(const std::string& key) const {
  auto found = tree_.keys_.find(key);
  return found == tree_.keys_.end() ? nullptr : found->second;
}

void NodeCollection::Remove(int32_t index) {
  tree_.removeSubtree(item(index));
  tree_.changed(ControlChange::Items);
}

void NodeCollection::Remove(const std::string& key) {
  tree_.removeSubtree(item(key));
  tree_.changed(ControlChange::Items);
}

void NodeCollection::Clear() {
  tree_.selected_ = nullptr;
  tree_.roots_.clear();
  tree_.keys_.clear();
  tree_.all_.clear();
  tree_.scrollTop_ = 0;
  tree_.changed(ControlChange::Items);
}

}  // namespace qb
