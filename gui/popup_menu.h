#pragma once
// Pop-up menus: a QMenu built from a menu model (a top-level MenuItem and
// its entries; "-" captions become separators, entries with children become
// sub-menus, hidden entries are left out), and the choice made on it turned
// into the chosen entry's click, which runs its handler.

#include <QHash>
#include <QMenu>
#include <memory>

namespace qb {
class MenuItem;
}

namespace qb::gui {

class PopupMenu {
 public:
  // Builds the menu for the entries of menu.
  PopupMenu(MenuItem& menu, QWidget* parent);

  QMenu& menu() { return *menu_; }
  MenuItem& model() const { return model_; }
  // The entry an action stands for, nullptr for none.
  MenuItem* itemOf(const QAction* action) const { return items_.value(action, nullptr); }
  // The action of the entry with that name, nullptr when there is none.
  QAction* actionNamed(const std::string& name) const;
  // Runs the click of the entry behind action; nothing for nullptr.
  void choose(const QAction* action) const;

 private:
  void addEntries(MenuItem& parent, QMenu& menu);

  MenuItem& model_;
  std::unique_ptr<QMenu> menu_;
  QHash<const QAction*, MenuItem*> items_;
};

}  // namespace qb::gui
