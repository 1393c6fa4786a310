#pragma once
// OptionButton: one of a group of exclusive choices. Options that share a
// container form a group: setting one's Value True clears the others' and
// raises Click on it.

#include "services/controls/control.h"

namespace qb {

class OptionButton : public Control {
 public:
  using Control::Control;

  bool Value() const { return value_; }
  void setValue(bool value);

 private:
  bool value_ = false;
};

}  // namespace qb
