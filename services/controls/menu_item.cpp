#include "services/controls/menu_item.h"

namespace qb {

MenuItem::MenuItem(std::string name, std::string caption)
    : name_(std::move(name)), caption_(std::move(caption)) {}

MenuItem& MenuItem::add(std::string name, std::string caption) {
  children_.push_back(std::make_unique<MenuItem>(std::move(name), std::move(caption)));
  children_.back()->parent_ = this;
  return *children_.back();
}

MenuItem* MenuItem::find(const std::string& name) {
  if (name_ == name) return this;
  for (auto& child : children_) {
    if (MenuItem* found = child->find(name)) return found;
  }
  return nullptr;
}

MenuItem* MenuItem::findByCaption(const std::string& caption) {
  if (caption_ == caption) return this;
  for (auto& child : children_) {
    if (MenuItem* found = child->findByCaption(caption)) return found;
  }
  return nullptr;
}

bool MenuItem::click() {
  if (!enabled_ || !visible_ || isSeparator()) return false;
  Click.raise();
  return true;
}

MenuItem& MenuBar::add(std::string name, std::string caption) {
  menus_.push_back(std::make_unique<MenuItem>(std::move(name), std::move(caption)));
  return *menus_.back();
}

MenuItem* MenuBar::find(const std::string& name) {
  for (auto& menu : menus_) {
    if (MenuItem* found = menu->find(name)) return found;
  }
  return nullptr;
}

}  // namespace qb
