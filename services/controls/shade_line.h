#pragma once
// ShadeLine: a caption strip drawn with a colour gradient (the client name
// over the component, the title over the list). Only its Caption and geometry
// matter to the system; the gradient colours are for the GUI.

#include "services/controls/control.h"

namespace qb {

class ShadeLine : public Control {
 public:
  using Control::Control;

  uint32_t StartColor() const { return startColor_; }
  uint32_t EndColor() const { return endColor_; }
  void setColors(uint32_t startColor, uint32_t endColor);

 private:
  uint32_t startColor_ = 0x00804000;  // dark blue
  uint32_t endColor_ = 0x00F0D0A0;    // light blue
};

}  // namespace qb
