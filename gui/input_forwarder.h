#pragma once
// InputForwarder: turns Qt input on a widget into the events of the control
// model it renders. Positions go out in twips relative to the control's
// widget, whatever part of it (a viewport, a child) took the event. The
// widgets call it after they have acted on the input themselves, so a
// handler sees the selection the press made, as on the platform.

#include <cstdint>

class QKeyEvent;
class QMouseEvent;
class QWidget;
class QPoint;

namespace qb {
class Control;
}

namespace qb::gui {

class InputForwarder {
 public:
  // control: the model; reference: the widget that renders it (positions are
  // relative to it).
  InputForwarder(Control& control, QWidget& reference) : control_(control), reference_(reference) {}

  Control& control() const { return control_; }

  // source: the widget the event came to (the reference or a child of it).
  void mouseDown(QWidget& source, const QMouseEvent& event);
  void mouseUp(QWidget& source, const QMouseEvent& event);
  void mouseMove(QWidget& source, const QMouseEvent& event);
  void doubleClick();
  // Key down and the character it types (KeyPress). Returns false when a
  // handler swallowed the character (set it to 0).
  bool keyDown(const QKeyEvent& event);
  void keyUp(const QKeyEvent& event);
  // The widget took the keyboard focus: the model takes it too, and the
  // control that had it loses it.
  void focusIn();

  // A point of source in pixels as twips relative to the reference widget.
  void toTwips(QWidget& source, const QPoint& point, float& x, float& y) const;

 private:
  Control& control_;
  QWidget& reference_;
};

}  // namespace qb::gui
