#pragma once
// UserControlHost: the place a host form gives a user control (the document
// component). It renders the control's whole tree of child controls and
// gives the control its own size in twips whenever the place is resized;
// the host then lays the control out (resizeDocQuillbox).
//
// The controls are drawn at 8 points, the size their places are made for.
// The host must be destroyed before the control it renders.

#include <QWidget>
#include <functional>

#include "gui/control_widgets.h"
#include "services/controls/container_control.h"

namespace qb::gui {

class UserControlHost : public QWidget {
 public:
  UserControlHost(ContainerControl& userControl, QWidget* parent = nullptr);
  ~UserControlHost() override;

  ContainerControl& userControl() const { return control_; }
  // The widget that renders a control of the tree, nullptr when it has none.
  QWidget* widgetFor(const Control& control) const { return widgets_.value(&control, nullptr); }
  template <class W>
  W* widgetFor(const Control& control) const {
    return dynamic_cast<W*>(widgetFor(control));
  }

  // Gives the control the place's size now (a resize of the place does it
  // by itself, then calls onResized).
  void takeSize();
  // Called after the control took a new size from the host.
  std::function<void()> onResized;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  ContainerControl& control_;
  ControlWidgetMap widgets_;
  QWidget* root_ = nullptr;
};

}  // namespace qb::gui
