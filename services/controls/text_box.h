#pragma once
// TextBox: an editable line of text. Locked refuses user edits but not the
// program's. Change is raised after every change of Text (by the program or
// by typeText). KeyPress, KeyUp, GotFocus and LostFocus come from Control.

#include "services/controls/control.h"

namespace qb {

class TextBox : public Control {
 public:
  using Control::Control;

  const std::string& Text() const { return text_; }
  // Sets the text; raises Change when it differs.
  void setText(std::string value);
  bool Locked() const { return locked_; }
  void setLocked(bool value);
  // 0 means no limit; otherwise typeText keeps at most this many characters.
  int32_t MaxLength() const { return maxLength_; }
  void setMaxLength(int32_t value) { maxLength_ = value; }

  // What a user's typing does: each character goes through KeyPress (which
  // may change or swallow it; only single-byte characters pass KeyPress, the
  // others go in as they are), then unless the box is Locked it is appended.
  // Returns the text after typing.
  const std::string& typeText(const std::string& typed);

  Event<void()> Change;

 private:
  std::string text_;
  bool locked_ = false;
  int32_t maxLength_ = 0;
};

}  // namespace qb
