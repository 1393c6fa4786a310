#pragma once
// ContainerWidget: renders a container model (a frame, a picture box, a user
// control, the splitter): its background colour, its border (BorderStyle 1
// draws a sunken edge, and children sit inside it), a frame's caption and a
// picture box's picture. The children's widgets are its child widgets. A
// container that takes drops (OLEDropMode manual) takes the drags that its
// children leave to it, as the model's OLE drag events.

#include <QWidget>

#include "gui/bound_widget.h"
#include "services/controls/container_control.h"

namespace qb::gui {

class ContainerWidget : public BoundWidget<QWidget, ContainerControl> {
 public:
  ContainerWidget(ContainerControl& control, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
};

}  // namespace qb::gui
