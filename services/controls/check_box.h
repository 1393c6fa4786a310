#pragma once
// CheckBox: Value 0 unchecked, 1 checked, 2 greyed. Setting Value to another
// number raises Click as a user's click does; values outside 0..2 are refused
// with RuntimeError(err::kInvalidProperty, "Invalid property value").

#include "services/controls/control.h"

namespace qb {

class CheckBox : public Control {
 public:
  using Control::Control;

  int16_t Value() const { return value_; }
  void setValue(int16_t value);

 private:
  int16_t value_ = 0;
};

}  // namespace qb
