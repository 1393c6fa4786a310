#include "services/controls/text_box.h"

#include "services/controls/form.h"
#include "services/runtime/strings.h"

namespace qb {

void TextBox::setText(std::string value) {
  if (value == text_) return;
  text_ = std::move(value);
  selection_.atEnd(text_);
  notify(ControlChange::Text);
  Change.raise();
}

void TextBox::setSelStart(int32_t value) {
  selection_.place(value, text_);
  notify(ControlChange::Selection);
}

void TextBox::setSelLength(int32_t value) {
  selection_.extend(value, text_);
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
    std::string before = qb::Left(text_, selection_.start);
    std::string after = Mid(text_, selection_.start + selection_.length + 1);
    if (character == "\b") {
      if (selection_.length == 0 && !before.empty()) before = qb::Left(before, Len(before) - 1);
      setText(before + after);
      selection_.place(Len(before), text_);
      continue;
    }
    if (multiLine_ && character == "\r") character = "\r\n";
    if (static_cast<unsigned char>(character[0]) < 32 && character != "\r\n") continue;
    if (maxLength_ > 0 && Len(before) + Len(after) + Len(character) > maxLength_) continue;
    setText(before + character + after);
    selection_.place(Len(before) + Len(character), text_);
  }
  return text_;
}

}  // namespace qb
