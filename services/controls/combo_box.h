#pragma once
// ComboBox: a drop-down list with an edit part. The list (ListControl) is
// 0-based as the platform counts it; each entry carries an ItemData number.
// ListIndex -1 means no entry is chosen. Click is raised when ListIndex
// changes; choosing an entry puts its text in the edit part.

#include <string>

#include "services/controls/list_control.h"
#include "services/controls/text_selection.h"

namespace qb {

class ComboBox : public ListControl {
 public:
  using ListControl::ListControl;

  const std::string& Text() const { return text_; }
  // Sets the edit text; ListIndex follows the entry with that exact text, or
  // becomes -1 when none has it.
  void setText(std::string value);
  bool Locked() const { return locked_; }
  void setLocked(bool value);
  // The selected part of the edit text: its start (characters before it)
  // and length. A new Text or choice leaves nothing selected, the caret at
  // the end.
  int32_t SelStart() const { return selection_.start; }
  // Places the caret (past the end: at the end; negative: refused with
  // err::kInvalidProperty); nothing is selected.
  void setSelStart(int32_t value);
  int32_t SelLength() const { return selection_.length; }
  // Selects that many characters from the caret, at most to the end
  // (negative: refused with err::kInvalidProperty).
  void setSelLength(int32_t value);
  // A user's key on the combo: KeyPress (the form's first when it previews
  // keys); returns what is left of the key (0 when a handler used it up).
  int16_t typeKey(int16_t keyAscii);

  Event<void()> Change;

 protected:
  void entryChosen(int32_t index) override { takeText(List(index)); }
  void listCleared() override { takeText(""); }

 private:
  // The edit text, the caret at its end.
  void takeText(std::string value);

  std::string text_;
  bool locked_ = false;
  TextSelection selection_;
};

}  // namespace qb
