#include "services/controls/text_box.h"

#include <algorithm>

#include "services/controls/control_failures.h"
#include "services/controls/form.h"
#include "services/runtime/strings.h"

namespace qb {

void TextBox::setText(std::string value) {
  if (value == text_) return;
  text_ = std::move(value);
  selStart_ = Len(text_);
  selLength_ = 0;
  notify(ControlChange::Text);
  Change.raise();
}

void TextBox::setSelStart(int32_t value) {
  if (value < 0) control_failures::invalidProperty();
  selStart_ = std::min(value, Len(text_));
  selLength_ = 0;
  notify(ControlChange::Selection);
}

void TextBox::setSelLength(int32_t value) {
  if (value < 0) control_failures::invalidProperty();
  selLength_ = std::min(value, Len(text_) - selStart_);
  notify(ControlChange::Selection);
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
      raiseKeyPress(*this, keyAscii);
      if (keyAscii == 0) continue;
      character = std::string(1, static_cast<char>(keyAscii));
    }
    if (locked_) continue;
    // The character replaces the selection, at the caret; Backspace takes
    // the selection or the character before the caret; other control keys
    // (Enter, Escape, Tab) type nothing into a line.
    std::string before = qb::Left(text_, selStart_);
    std::string after = Mid(text_, selStart_ + selLength_ + 1);
    if (character == "\b") {
      if (selLength_ == 0 && !before.empty()) before = qb::Left(before, Len(before) - 1);
      setText(before + after);
      selStart_ = Len(before);
      continue;
    }
    if (static_cast<unsigned char>(character[0]) < 32) continue;
    if (maxLength_ > 0 && Len(before) + Len(after) >= maxLength_) continue;
    setText(before + character + after);
    selStart_ = Len(before) + 1;
    selLength_ = 0;
  }
  return text_;
}

}  // namespace qb
