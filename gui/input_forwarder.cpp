#include "gui/input_forwarder.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include "gui/input_codes.h"
#include "gui/twips.h"
#include "services/controls/control.h"
#include "services/controls/form.h"

namespace qb::gui {

void InputForwarder::toTwips(QWidget& source, const QPoint& point, float& x, float& y) const {
  QPoint local = &source == &reference_ ? point : source.mapTo(&reference_, point);
  x = gui::toTwips(local.x());
  y = gui::toTwips(local.y());
}

void InputForwarder::mouseDown(QWidget& source, const QMouseEvent& event) {
  float x = 0, y = 0;
  toTwips(source, event.position().toPoint(), x, y);
  control_.MouseDown.raise(buttonNumber(event.button()), shiftState(event.modifiers()), x, y);
}

void InputForwarder::mouseUp(QWidget& source, const QMouseEvent& event) {
  float x = 0, y = 0;
  toTwips(source, event.position().toPoint(), x, y);
  control_.MouseUp.raise(buttonNumber(event.button()), shiftState(event.modifiers()), x, y);
}

void InputForwarder::mouseMove(QWidget& source, const QMouseEvent& event) {
  float x = 0, y = 0;
  toTwips(source, event.position().toPoint(), x, y);
  control_.MouseMove.raise(buttonState(event.buttons()), shiftState(event.modifiers()), x, y);
}

void InputForwarder::doubleClick() { control_.DblClick.raise(); }

bool InputForwarder::keyDown(const QKeyEvent& event) {
  control_.KeyDown.raise(keyCode(event), shiftState(event.modifiers()));
  const QString text = event.text();
  if (text.size() != 1 || text[0].unicode() >= 128) return true;
  int16_t keyAscii = static_cast<int16_t>(text[0].unicode());
  raiseKeyPress(control_, keyAscii);
  return keyAscii != 0;
}

void InputForwarder::keyUp(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return;
  control_.KeyUp.raise(keyCode(event), shiftState(event.modifiers()));
}

void InputForwarder::focusIn() { control_.SetFocus(); }

}  // namespace qb::gui
