#pragma once
// PressButtonWidget: a push button with the model's caption and tool tip; a
// click runs the model's click (which raises Click when the button is
// enabled and visible). The buttons of the document component carry icons
// of the desktop's theme: arrows on the client navigation, a magnifier on
// the search buttons.

#include <QPushButton>

#include "gui/bound_widget.h"
#include "services/controls/command_button.h"

namespace qb::gui {

class PressButtonWidget : public BoundWidget<QPushButton, CommandButton> {
 public:
  PressButtonWidget(CommandButton& control, QWidget* parent);

 protected:
  void applyChange(ControlChange change) override;
};

}  // namespace qb::gui
