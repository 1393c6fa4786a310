#pragma once
// Qt input as the control models' events take it: mouse buttons 1 left,
// 2 right, 4 middle; shift state 1 Shift, 2 Ctrl, 4 Alt; key codes as the
// platform numbers keys (Enter 13, Delete 46, arrows 37 to 40, letters by
// their capital).

#include <Qt>
#include <cstdint>

class QKeyEvent;

namespace qb::gui {

// The button that pressed or released: 1, 2 or 4; 0 for any other.
int16_t buttonNumber(Qt::MouseButton button);
// The buttons held during a move, added up (1 + 2 for left and right).
int16_t buttonState(Qt::MouseButtons buttons);
int16_t shiftState(Qt::KeyboardModifiers modifiers);
// The key code of a key event; 0 for a key the platform has no code for.
int16_t keyCode(const QKeyEvent& event);

}  // namespace qb::gui
