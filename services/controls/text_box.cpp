#include "services/controls/text_box.h"

#include "services/runtime/strings.h"

namespace qb {

void TextBox::setText(std::string value) {
  if (value == text_) return;
  text_ = std::move(value);
  notify(ControlChange::Text);
  Change.raise();
}

void TextBox::setLocked(bool value) {
  locked_ = value;
  notify(ControlChange::Appearance);
}

const std::string& TextBox::typeText(const std::string& typed) {
  for (size_t i = 0; i < typed.size();) {
    // One character: a single byte, or the bytes of a multi-byte character.
    size_t length = 1;
    unsigned char lead = static_cast<unsigned char>(typed[i]);
    if (lead >= 0xF0)
      length = 4;
    else if (lead >= 0xE0)
      length = 3;
    else if (lead >= 0xC0)
      length = 2;
    std::string character = typed.substr(i, length);
    i += length;
    if (length == 1) {
      int16_t keyAscii = lead;
      KeyPress.raise(keyAscii);
      if (keyAscii == 0) continue;
      character = std::string(1, static_cast<char>(keyAscii));
    }
    if (locked_) continue;
    if (maxLength_ > 0 && Len(text_) >= maxLength_) continue;
    setText(text_ + character);
  }
  return text_;
}

}  // namespace qb
