#include "gui/input_codes.h"

#include <QKeyEvent>

namespace qb::gui {

int16_t buttonNumber(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    case Qt::MiddleButton:
      return 4;
    default:
      return 0;
  }
}

int16_t buttonState(Qt::MouseButtons buttons) {
  int16_t state = 0;
  for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (buttons & button) state |= buttonNumber(button);
  }
  return state;
}

int16_t shiftState(Qt::KeyboardModifiers modifiers) {
  int16_t state = 0;
  if (modifiers & Qt::ShiftModifier) state |= 1;
  if (modifiers & Qt::ControlModifier) state |= 2;
  if (modifiers & Qt::AltModifier) state |= 4;
  return state;
}

int16_t keyCode(const QKeyEvent& event) {
  const int key = event.key();
  // Letters and digits keep their codes: the capital letter and the digit.
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) {
    return static_cast<int16_t>(key);
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return static_cast<int16_t>(112 + key - Qt::Key_F1);
  switch (key) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Shift:
      return 16;
    case Qt::Key_Control:
      return 17;
    case Qt::Key_Alt:
      return 18;
    case Qt::Key_Pause:
      return 19;
    case Qt::Key_CapsLock:
      return 20;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Space:
      return 32;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Delete:
      return 46;
    default:
      return 0;
  }
}

}  // namespace qb::gui
