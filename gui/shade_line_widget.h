#pragma once
// ShadeLineWidget: the caption strip, painted as a gradient bar from the
// model's start colour to its end colour with the caption in bold, like a
// section heading.

#include <QWidget>

#include "gui/bound_widget.h"
#include "services/controls/shade_line.h"

namespace qb::gui {

class ShadeLineWidget : public BoundWidget<QWidget, ShadeLine> {
 public:
  ShadeLineWidget(ShadeLine& control, QWidget* parent);

 protected:
  void applyChange(ControlChange change) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qb::gui
