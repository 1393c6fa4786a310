#pragma once
// LabelWidget: a label's caption, wrapped to its width, aligned as the model
// says (0 left, 1 right, 2 centre).

#include <QLabel>

#include "gui/bound_widget.h"
#include "services/controls/label.h"

namespace qb::gui {

class LabelWidget : public BoundWidget<QLabel, Label> {
 public:
  LabelWidget(Label& control, QWidget* parent);

 protected:
  void applyChange(ControlChange change) override;
};

}  // namespace qb::gui
