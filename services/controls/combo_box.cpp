#include "services/controls/combo_box.h"

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
  selection_.atEnd(text_);
}

void ComboBox::setSelStart(int32_t value) {
  selection_.place(value, text_);
  notify(ControlChange::Selection);
}

void ComboBox::setSelLength(int32_t value) {
  selection_.extend(value, text_);
  notify(ControlChange::Selection);
}

int16_t ComboBox::typeKey(int16_t keyAscii) {
  raiseKeyPress(*this, keyAscii);
  return keyAscii;
}

}  // namespace qb
