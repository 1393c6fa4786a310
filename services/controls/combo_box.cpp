#include "services/controls/combo_box.h"

namespace qb {

void ComboBox::setText(std::string value) {
  if (value == text_) return;
  text_ = std::move(value);
  followText(text_);
  notify(ControlChange::Text);
  Change.raise();
}

void ComboBox::setLocked(bool value) {
  locked_ = value;
  notify(ControlChange::Appearance);
}

}  // namespace qb
