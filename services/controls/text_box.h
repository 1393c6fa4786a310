#pragma once
// TextBox: an editable line of text. Locked refuses user edits but not the
// program's. Change is raised after every change of Text (by the program or
// by typeText). KeyPress, KeyUp, GotFocus and LostFocus come from Control.

#include "services/controls/control.h"
#include "services/controls/text_selection.h"

namespace qb {

class TextBox : public Control {
 public:
  using Control::Control;

  const std::string& Text() const { return text_; }
  // Sets the text; raises Change when it differs.
  void setText(std::string value);
  bool Locked() const { return locked_; }
  void setLocked(bool value);
  // The selected part of the text: its start (characters before it) and
  // length. Setting the text puts the caret at its end with nothing selected.
  int32_t SelStart() const { return selection_.start; }
  // Places the caret (past the end: at the end; negative: refused with
  // err::kInvalidProperty); nothing is selected.
  void setSelStart(int32_t value);
  int32_t SelLength() const { return selection_.length; }
  // Selects that many characters from the caret, at most to the end
  // (negative: refused with err::kInvalidProperty).
  void setSelLength(int32_t value);
  // 0 means no limit; otherwise typeText keeps at most this many characters.
  int32_t MaxLength() const { return maxLength_; }
  void setMaxLength(int32_t value) { maxLength_ = value; }
  // A box of several lines: Enter typed in it breaks the line (CR LF, two
  // characters). A design-time setting: observers are not told.
  bool MultiLine() const { return multiLine_; }
  void setMultiLine(bool value) { multiLine_ = value; }

  // What a user's typing does: each character goes through KeyPress (the
  // form's first when it previews keys; a handler may change or swallow it;
  // only single-byte characters pass KeyPress, the others go in as they
  // are), then unless the box is Locked it replaces the selection at the
  // caret (the end of the text unless select() put it elsewhere). Backspace
  // (8) removes the selection or the character before the caret; Enter (13)
  // breaks the line of a MultiLine box; other control characters type
  // nothing.
  // Returns the text after typing.
  const std::string& typeText(const std::string& typed);

  Event<void()> Change;

 private:
  std::string text_;
  bool locked_ = false;
  int32_t maxLength_ = 0;
  bool multiLine_ = false;
  TextSelection selection_;
};

}  // namespace qb
