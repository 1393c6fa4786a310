#pragma once
// ContainerWidget: renders a container model (a frame, a picture box, a user
// control, the splitter): its background colour, its border (BorderStyle 1
// draws a sunken edge, and children sit inside it), a frame's caption and a
// picture box's picture. The children's widgets are its child widgets.

#include <QWidget>

#include "gui/control_binding.h"
#include "services/controls/container_control.h"

namespace qb::gui {

class ContainerWidget : public QWidget {
 public:
  ContainerWidget(ContainerControl& control, QWidget* parent);

  ContainerControl& control() const { return control_; }
  ControlBinding& binding() { return binding_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ContainerControl& control_;
  ControlBinding binding_;
};

}  // namespace qb::gui
