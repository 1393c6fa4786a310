#pragma once
// PressButtonWidget: a push button with the model's caption and tool tip; a
// click runs the model's click (which raises Click when the button is
// enabled and visible). The buttons of the document component carry icons
// (theme_icons.h): arrows on the client navigation, a magnifier on the
// search buttons. A caption a little wider than the button, whose width the
// layout fixes, is set narrower to fit rather than cut.

#include <QPushButton>

#include "gui/bound_widget.h"
#include "services/controls/command_button.h"

class QStyleOptionButton;

namespace qb::gui {

class PressButtonWidget : public BoundWidget<QPushButton, CommandButton> {
 public:
  PressButtonWidget(CommandButton& control, QWidget* parent);

 protected:
  void applyChange(ControlChange change) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // The width the caption and the icon need side by side.
  int labelWidth(const QStyleOptionButton& option) const;
};

}  // namespace qb::gui
