// The small controls: picture box, image box, label, caption strip, buttons,
// check and option boxes.

#include "services/controls/check_box.h"
#include "services/controls/command_button.h"
#include "services/controls/control_failures.h"
#include "services/controls/image_box.h"
#include "services/controls/label.h"
#include "services/controls/option_button.h"
#include "services/controls/picture_box.h"
#include "services/controls/shade_line.h"

namespace qb {

void PictureBox::setPicture(qb::Picture value) {
  picture_ = std::move(value);
  notify(ControlChange::Images);
}

void ImageBox::setPicture(qb::Picture value) {
  picture_ = std::move(value);
  notify(ControlChange::Images);
}

void Label::setAlignment(int16_t value) {
  if (value < 0 || value > 2) control_failures::invalidProperty();
  alignment_ = value;
  notify(ControlChange::Appearance);
}

void ShadeLine::setColors(uint32_t startColor, uint32_t endColor) {
  startColor_ = startColor;
  endColor_ = endColor;
  notify(ControlChange::Appearance);
}

bool CommandButton::click() {
  if (!Enabled() || !Visible()) return false;
  Click.raise();
  return true;
}

void CheckBox::setValue(int16_t value) {
  if (value < 0 || value > 2) control_failures::invalidProperty();
  if (value == value_) return;
  value_ = value;
  notify(ControlChange::Selection);
  Click.raise();
}

void OptionButton::setValue(bool value) {
  if (value == value_) return;
  value_ = value;
  if (value && Container()) {
    for (Control* sibling : Container()->children()) {
      auto* option = dynamic_cast<OptionButton*>(sibling);
      if (option && option != this && option->value_) {
        option->value_ = false;
        option->notify(ControlChange::Selection);
      }
    }
  }
  notify(ControlChange::Selection);
  if (value) Click.raise();
}

}  // namespace qb
