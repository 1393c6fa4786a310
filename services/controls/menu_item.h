#pragma once
// MenuItem: one entry of a menu tree ("mnuAddFiles"), or a top-level menu
// that holds entries ("subMnuListViewRightClick"). A Caption of "-" makes a
// separator. An item owns its children. click() is what a user's choice does.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "services/controls/event.h"

namespace qb {

class MenuItem {
 public:
  explicit MenuItem(std::string name, std::string caption = "");
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void setCaption(std::string value) { caption_ = std::move(value); }
  bool isSeparator() const { return caption_ == "-"; }
  bool Visible() const { return visible_; }
  void setVisible(bool value) { visible_ = value; }
  bool Enabled() const { return enabled_; }
  void setEnabled(bool value) { enabled_ = value; }
  bool Checked() const { return checked_; }
  void setChecked(bool value) { checked_ = value; }

  // Appends a child entry and returns it.
  MenuItem& add(std::string name, std::string caption);
  const std::vector<std::unique_ptr<MenuItem>>& children() const { return children_; }
  MenuItem* parent() const { return parent_; }
  // The entry of that name in this item's subtree (this item included), or
  // nullptr when there is none.
  MenuItem* find(const std::string& name);
  // The first entry in the subtree whose caption is exactly caption, or nullptr.
  MenuItem* findByCaption(const std::string& caption);

  // A user's choice: raises Click when the item is enabled, visible and not a
  // separator. Returns whether Click was raised.
  bool click();

  Event<void()> Click;

 private:
  std::string name_;
  std::string caption_;
  bool visible_ = true;
  bool enabled_ = true;
  bool checked_ = false;
  MenuItem* parent_ = nullptr;
  std::vector<std::unique_ptr<MenuItem>> children_;
};

// The menus of a form or user control, in order. Menus used only as pop-ups
// are kept here too, hidden (Visible False).
class MenuBar {
 public:
  // Appends a top-level menu and returns it.
  MenuItem& add(std::string name, std::string caption);
  const std::vector<std::unique_ptr<MenuItem>>& menus() const { return menus_; }
  // The entry of that name in any menu, or nullptr.
  MenuItem* find(const std::string& name);

 private:
  std::vector<std::unique_ptr<MenuItem>> menus_;
};

}  // namespace qb
