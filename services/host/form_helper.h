#pragma once
// FormHelper: the host's standard behaviour of dialog forms, from
// getFormHelper of the locale object. Each dialog calls prepareForm when it
// opens and passes the focus and key events of its input controls on.

#include <cstdint>

namespace qb {

class Control;
class Form;

class FormHelper {
 public:
  virtual ~FormHelper() = default;
  // Sets the form up as the host's dialogs are.
  virtual void prepareForm(Form& form) = 0;
  // An input control took or lost the keyboard focus.
  virtual void controlGotFocus(Control& control) = 0;
  virtual void controlLostFocus(Control& control) = 0;
  // A key was released on an input control.
  virtual void controlKeyUp(Control& control, int16_t keyCode, int16_t shift) = 0;
};

}  // namespace qb
