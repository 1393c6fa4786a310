#include "services/controls/progress_bar.h"

#include "services/controls/control_failures.h"

namespace qb {

void ProgressBar::setMin(float value) {
  min_ = value;
  notify(ControlChange::Value);
}

void ProgressBar::setMax(float value) {
  max_ = value;
  notify(ControlChange::Value);
}

void ProgressBar::setValue(float value) {
  if (value < min_ || value > max_) control_failures::invalidProperty();
  value_ = value;
  notify(ControlChange::Value);
}

}  // namespace qb
