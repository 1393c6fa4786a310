#pragma once
// LabelWidget: a label's caption, wrapped to its width, aligned as the model
// says (0 left, 1 right, 2 centre).

#include <QLabel>

#include "gui/control_binding.h"
#include "services/controls/label.h"

namespace qb::gui {

class LabelWidget : public QLabel {
 public:
  LabelWidget(Label& control, QWidget* parent);

 private:
  void applyChange(ControlChange change);

  Label& control_;
  ControlBinding binding_;
};

}  // namespace qb::gui
