#pragma once
// QtPlatform: the platform services of this thread realised with Qt, for as
// long as the object lives: the event pump runs QCoreApplication's
// processEvents (at most once in 20 ms: a loop that pumps twice per row
// would otherwise repaint for every row); the screen's busy pointer (11) shows the wait cursor over
// the whole application and 0 takes it away; pop-up menus are QMenus built
// from the menu model and run at the mouse, kept on the window and the
// screen (popup_placement.h), and the entry chosen runs its click. Destroying it puts the platform
// back to its start state.

#include <QElapsedTimer>
#include <QPoint>
#include <functional>

#include "gui/popup_menu.h"

class QAction;
class QWidget;

namespace qb::gui {

class QtPlatform {
 public:
  // Shows a built menu at a point of the screen and returns the action the
  // user chose, nullptr for none. The default runs QMenu::exec, which waits
  // for the user; tests install one that chooses at once.
  using MenuRunner = std::function<QAction*(PopupMenu& menu, const QPoint& globalPosition)>;

  // window: the widget menus belong to; positions the control gives are
  // relative to it.
  explicit QtPlatform(QWidget* window);
  ~QtPlatform();
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;

  void setMenuRunner(MenuRunner runner) { runner_ = std::move(runner); }

 private:
  void pumpEvents();
  void showPointer(int16_t pointer);

  QWidget* window_;
  MenuRunner runner_;
  int32_t pointerObserver_ = 0;
  bool busy_ = false;
  QElapsedTimer sinceLastPump_;
};

}  // namespace qb::gui
