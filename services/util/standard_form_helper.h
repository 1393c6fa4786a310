#pragma once
// StandardFormHelper: the form helper hosts give their dialogs. An input
// that takes the keyboard focus has its whole text selected, so typing
// replaces it; when it loses the focus the caret goes to the end. It keeps
// the forms it prepared, in order, for a host to see.

#include <string>
#include <vector>

#include "services/host/form_helper.h"

namespace qb {

class StandardFormHelper : public FormHelper {
 public:
  void prepareForm(Form& form) override;
  void controlGotFocus(Control& control) override;
  void controlLostFocus(Control& control) override;
  void controlKeyUp(Control& control, int16_t keyCode, int16_t shift) override;

  // The names of the forms prepared, in order.
  const std::vector<std::string>& preparedForms() const { return prepared_; }

 private:
  std::vector<std::string> prepared_;
};

}  // namespace qb
