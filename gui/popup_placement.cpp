#include "gui/popup_placement.h"

#include <algorithm>

namespace qb::gui {

QPoint popupPosition(const QPoint& at, const QSize& menu, bool rightAligned, const QRect& window,
                     const QRect& screen) {
  int x = rightAligned ? at.x() - menu.width() : at.x();
  // Off the window on one side: the other side of the point.
  if (rightAligned && x < window.left()) x = at.x();
  if (!rightAligned && x + menu.width() > window.right() + 1) x = at.x() - menu.width();
  int y = at.y();
  if (y + menu.height() > screen.bottom() + 1) y = at.y() - menu.height();
  // On the screen, whatever the window.
  x = std::clamp(x, screen.left(), std::max(screen.left(), screen.right() + 1 - menu.width()));
  y = std::clamp(y, screen.top(), std::max(screen.top(), screen.bottom() + 1 - menu.height()));
  return {x, y};
}

}  // namespace qb::gui
