#include "gui/control_binding.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <algorithm>

#include "gui/twips.h"
#include "services/controls/container_control.h"

namespace qb::gui {

namespace {

// The inner area of a container starts inside its border (30 twips a side).
float borderInset(const Control& control) {
  const ContainerControl* container = control.Container();
  return container != nullptr && container->BorderStyle() == 1 ? 30.0f : 0.0f;
}

Qt::CursorShape cursorShape(int16_t pointer) {
  switch (pointer) {
    case 1:
      return Qt::ArrowCursor;
    case 2:
      return Qt::CrossCursor;
    case 3:
      return Qt::IBeamCursor;
    case 5:
      return Qt::SizeAllCursor;
    case 6:
      return Qt::SizeBDiagCursor;
    case 7:
      return Qt::SizeVerCursor;
    case 8:
      return Qt::SizeFDiagCursor;
    case 9:
      return Qt::SizeHorCursor;
    case 11:
      return Qt::WaitCursor;
    case 12:
      return Qt::ForbiddenCursor;
    case 13:
      return Qt::BusyCursor;
    case 15:
      return Qt::SizeAllCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace

ControlBinding::ControlBinding(Control& control, QWidget& widget, ChangeHandler onChange)
    : control_(control),
      widget_(widget),
      input_(control, widget),
      oleDrag_(control, widget, input_),
      onChange_(std::move(onChange)) {
  widget_.setObjectName(QString::fromStdString(
      control.Index() >= 0 ? control.Name() + "(" + std::to_string(control.Index()) + ")"
                           : control.Name()));
  zOrderSeen_ = control.zOrderCount();
  observerId_ =
      control_.addObserver([this](const Control&, ControlChange change) { changed(change); });
}

ControlBinding::~ControlBinding() { control_.removeObserver(observerId_); }

void ControlBinding::applyAll() {
  for (ControlChange change :
       {ControlChange::Geometry, ControlChange::Visibility, ControlChange::Enabled,
        ControlChange::Text, ControlChange::Items, ControlChange::Selection, ControlChange::Images,
        ControlChange::View, ControlChange::Value, ControlChange::Appearance}) {
    changed(change);
  }
}

void ControlBinding::changed(ControlChange change) {
  switch (change) {
    case ControlChange::Geometry:
      applyGeometry();
      break;
    case ControlChange::Visibility:
      widget_.setVisible(control_.Visible());
      break;
    case ControlChange::Enabled:
      widget_.setEnabled(control_.Enabled());
      break;
    case ControlChange::Text:
      widget_.setToolTip(QString::fromStdString(control_.ToolTipText()));
      break;
    case ControlChange::Appearance:
      applyPointer();
      widget_.update();
      break;
    case ControlChange::ZOrder:
      applyZOrder();
      break;
    case ControlChange::Focus:
      if (!widget_.hasFocus()) widget_.setFocus(Qt::OtherFocusReason);
      break;
    case ControlChange::Repaint:
      widget_.update();
      break;
    default:
      break;
  }
  if (onChange_) onChange_(change);
}

void ControlBinding::applyGeometry() {
  // The top control of a form is placed by its host, a dialog's controls by
  // its layout.
  if (control_.Container() == nullptr || placedByLayout_) return;
  const float inset = borderInset(control_);
  const int left = toPixels(control_.Left() + inset);
  const int top = toPixels(control_.Top() + inset);
  // Edges are rounded, not lengths, so neighbours meet without gaps.
  const int right = toPixels(control_.Left() + control_.Width() + inset);
  const int bottom = toPixels(control_.Top() + control_.Height() + inset);
  widget_.setGeometry(left, top, std::max(0, right - left), std::max(0, bottom - top));
}

void ControlBinding::applyPointer() {
  if (control_.MousePointer() == 0) {
    widget_.unsetCursor();
  } else {
    widget_.setCursor(cursorShape(control_.MousePointer()));
  }
}

void ControlBinding::applyZOrder() {
  // ZOrder(0) counts; a call that did not count sent the control back.
  if (control_.zOrderCount() != zOrderSeen_) {
    zOrderSeen_ = control_.zOrderCount();
    widget_.raise();
  } else {
    widget_.lower();
  }
}

void ControlBinding::forwardInputFrom(QWidget& source, bool raisesClick) {
  raisesClick_ = raisesClick;
  source.installEventFilter(this);
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event) {
  auto* source = qobject_cast<QWidget*>(watched);
  if (source == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      pressed_ = true;
      input_.mouseDown(*source, *static_cast<QMouseEvent*>(event));
      break;
    case QEvent::MouseButtonRelease: {
      auto* mouse = static_cast<QMouseEvent*>(event);
      input_.mouseUp(*source, *mouse);
      const bool inside = source->rect().contains(mouse->position().toPoint());
      if (raisesClick_ && pressed_ && inside) control_.Click.raise();
      pressed_ = false;
      break;
    }
    case QEvent::MouseButtonDblClick:
      input_.doubleClick();
      break;
    case QEvent::MouseMove:
      input_.mouseMove(*source, *static_cast<QMouseEvent*>(event));
      break;
    case QEvent::KeyPress:
      return !input_.keyDown(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      input_.keyUp(*static_cast<QKeyEvent*>(event));
      break;
    case QEvent::FocusIn:
      input_.focusIn();
      break;
    default:
      break;
  }
  return false;
}

}  // namespace qb::gui
