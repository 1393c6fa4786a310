#pragma once
// Where a pop-up menu opens. The control opens its menus at the mouse,
// right-aligned (the menu's right edge at the point); near the window's left
// edge that would carry the menu off the window, so it opens to the right of
// the point instead. Near the screen's bottom it opens upwards. It always
// lies on the screen.

#include <QPoint>
#include <QRect>
#include <QSize>

namespace qb::gui {

// The top-left corner, in screen coordinates, of a menu of that size opened
// at a point: left-aligned (its top-left corner at the point) or
// right-aligned (its top-right corner there). window and screen: the
// window's and the screen's area.
QPoint popupPosition(const QPoint& at, const QSize& menu, bool rightAligned, const QRect& window,
                     const QRect& screen);

}  // namespace qb::gui
