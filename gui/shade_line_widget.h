#pragma once
// ShadeLineWidget: the caption strip, painted as a gradient bar from the
// model's start colour to its end colour with the caption in bold, like a
// section heading.

#include <QWidget>

#include "gui/control_binding.h"
#include "services/controls/shade_line.h"

namespace qb::gui {

class ShadeLineWidget : public QWidget {
 public:
  ShadeLineWidget(ShadeLine& control, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ShadeLine& control_;
  ControlBinding binding_;
};

}  // namespace qb::gui
