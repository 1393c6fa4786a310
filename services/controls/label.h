#pragma once
// Label: a caption on a form. Alignment 0 left, 1 right, 2 centre.

#include "services/controls/control.h"

namespace qb {

class Label : public Control {
 public:
  using Control::Control;

  int16_t Alignment() const { return alignment_; }
  void setAlignment(int16_t value);

 private:
  int16_t alignment_ = 0;
};

}  // namespace qb
