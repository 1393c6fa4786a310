#pragma once
// ProgressBar: Min, Max and Value as single-precision numbers. A Value
// outside Min..Max is refused; moving Max or Min past the Value is allowed and
// leaves the Value as it is, as the platform did.

#include "services/controls/control.h"

namespace qb {

class ProgressBar : public Control {
 public:
  using Control::Control;

  float Min() const { return min_; }
  float Max() const { return max_; }
  float Value() const { return value_; }
  void setMin(float value);
  void setMax(float value);
  // Refused with RuntimeError(err::kInvalidProperty, "Invalid property value")
  // when value < Min or value > Max.
  void setValue(float value);

 private:
  float min_ = 0;
  float max_ = 100;
  float value_ = 0;
};

}  // namespace qb
