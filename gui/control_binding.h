#pragma once
// ControlBinding: keeps a widget in step with the control model it renders
// and passes the widget's input on to the model. Every widget of the GUI
// holds one. From the model it applies geometry (twips, relative to the
// container's inner area), Visible, Enabled, ToolTipText, the mouse pointer,
// z-order, focus and repaints; what else a kind of control shows (captions,
// items, values) the widget applies itself in its change handler.
//
// The binding observes the model for as long as it lives, so a widget must be
// destroyed before its model.

#include <QObject>
#include <functional>

#include "gui/input_forwarder.h"
#include "gui/ole_drag_drop.h"
#include "services/controls/control.h"

class QWidget;

namespace qb::gui {

class ControlBinding : public QObject {
 public:
  using ChangeHandler = std::function<void(ControlChange)>;

  // onChange: the widget's own handler, called after the binding applied its
  // part of a change.
  ControlBinding(Control& control, QWidget& widget, ChangeHandler onChange = {});
  ~ControlBinding() override;
  ControlBinding(const ControlBinding&) = delete;
  ControlBinding& operator=(const ControlBinding&) = delete;

  Control& control() const { return control_; }
  QWidget& widget() const { return widget_; }
  InputForwarder& input() { return input_; }
  // Drags over and from the widget, as the model's OLE drag events.
  OleDragDrop& oleDrag() { return oleDrag_; }

  // Applies every property of the model, as after a change of each kind.
  void applyAll();
  // The widget stands in a Qt layout (a dialog's): the model's geometry is
  // not applied to it.
  void placeByLayout() { placedByLayout_ = true; }

  // Passes mouse, key and focus input that reaches source (the widget or a
  // part of it) on to the model. With raisesClick a press and a release on
  // the widget also raise Click. Widgets that need to act on input first
  // (item views) call input() themselves instead.
  void forwardInputFrom(QWidget& source, bool raisesClick);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void changed(ControlChange change);
  void applyGeometry();
  void applyPointer();
  void applyZOrder();

  Control& control_;
  QWidget& widget_;
  InputForwarder input_;
  OleDragDrop oleDrag_;
  ChangeHandler onChange_;
  int32_t observerId_ = 0;
  int32_t zOrderSeen_ = 0;
  bool raisesClick_ = false;
  bool placedByLayout_ = false;
  bool pressed_ = false;
};

}  // namespace qb::gui
