#pragma once
// CommandButton: a push button with a Caption, a ToolTipText and the Click
// event (from Control). The press buttons of the component's button rows are
// the same control. click() is what a user's click does: it raises Click when
// the button is visible and enabled, and nothing otherwise.

#include "services/controls/control.h"

namespace qb {

class CommandButton : public Control {
 public:
  using Control::Control;

  // A user's click: raises Click unless the button is disabled or hidden.
  // Returns whether Click was raised.
  bool click();
};

using PressButton = CommandButton;

}  // namespace qb
