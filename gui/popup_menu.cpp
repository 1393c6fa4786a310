#include "gui/popup_menu.h"

#include "services/controls/menu_item.h"

namespace qb::gui {

PopupMenu::PopupMenu(MenuItem& menu, QWidget* parent)
    : model_(menu), menu_(std::make_unique<QMenu>(parent)) {
  menu_->setTitle(QString::fromStdString(menu.Caption()));
  menu_->setObjectName(QString::fromStdString(menu.Name()));
  addEntries(menu, *menu_);
}

void PopupMenu::addEntries(MenuItem& parent, QMenu& menu) {
  for (const auto& child : parent.children()) {
    MenuItem& entry = *child;
    if (!entry.Visible()) continue;
    if (entry.isSeparator()) {
      menu.addSeparator();
      continue;
    }
    if (!entry.children().empty()) {
      QMenu* sub = menu.addMenu(QString::fromStdString(entry.Caption()));
      sub->setObjectName(QString::fromStdString(entry.Name()));
      sub->setEnabled(entry.Enabled());
      items_.insert(sub->menuAction(), &entry);
      addEntries(entry, *sub);
      continue;
    }
    QAction* action = menu.addAction(QString::fromStdString(entry.Caption()));
    action->setObjectName(QString::fromStdString(entry.Name()));
    action->setEnabled(entry.Enabled());
    if (entry.Checked()) {
      action->setCheckable(true);
      action->setChecked(true);
    }
    items_.insert(action, &entry);
  }
}

QAction* PopupMenu::actionNamed(const std::string& name) const {
  for (auto it = items_.constBegin(); it != items_.constEnd(); ++it) {
    if (it.value()->Name() == name) return const_cast<QAction*>(it.key());
  }
  return nullptr;
}

void PopupMenu::choose(const QAction* action) const {
  if (MenuItem* item = itemOf(action)) item->click();
}

}  // namespace qb::gui
