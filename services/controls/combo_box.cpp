#include "services/controls/combo_box.h"

#include <algorithm>

#include "services/controls/control_failures.h"
#include "services/controls/form.h"
#include "services/runtime/strings.h"

namespace qb {

void ComboBox::setText(std::string value) {
  if (value == text_) return;
  takeText(std::move(value));
  followText(text_);
  notify(ControlChange::Text);
  Change.raise();
}

void ComboBox::setLocked(bool value) {
  locked_ = value;
  notify(ControlChange::Appearance);
}

void ComboBox::takeText(std::string value) {
  text_ = std::move(value);
  selStart_ = Len(text_);
  selLength_ = 0;
}

void ComboBox::setSelStart(int32_t value) {
  if (value < 0) control_failures::invalidProperty();
  selStart_ = std::min(value, Len(text_));
  selLength_ = 0;
  notify(ControlChange::Selection);
}

void ComboBox::setSelLength(int32_t value) {
  if (value < 0) control_failures::invalidProperty();
  selLength_ = std::min(value, Len(text_) - selStart_);
  notify(ControlChange::Selection);
}

int16_t ComboBox::typeKey(int16_t keyAscii) {
  raiseKeyPress(*this, keyAscii);
  return keyAscii;
}

}  // namespace qb
