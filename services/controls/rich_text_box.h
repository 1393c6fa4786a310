#pragma once
// RichTextBox: an editable text with a caret and a selection, as a host hands
// one to the merge engine to insert field markers into. Text is UTF-8;
// SelStart and SelLength count characters (code points), SelStart being the
// number of characters before the caret. Change is raised after every change
// of the text.

#include <cstdint>
#include <string>

#include "services/controls/control.h"

namespace qb {

class RichTextBox : public Control {
 public:
  using Control::Control;

  const std::string& Text() const { return text_; }
  // Replaces the whole text; the caret goes to the start and nothing is
  // selected.
  void setText(std::string value);

  int32_t SelStart() const { return selStart_; }
  // Places the caret; a value past the end puts it at the end, a negative
  // one is refused with RuntimeError(err::kInvalidProperty). The selection
  // becomes empty.
  void setSelStart(int32_t value);
  int32_t SelLength() const { return selLength_; }
  // Selects that many characters from the caret, at most to the end; a
  // negative length is refused with err::kInvalidProperty.
  void setSelLength(int32_t value);
  // The selected text.
  std::string SelText() const;
  // Replaces the selection (or inserts at the caret) and puts the caret
  // after the new text.
  void setSelText(const std::string& value);

  bool Locked() const { return locked_; }
  void setLocked(bool value);

  Event<void()> Change;

 private:
  std::string text_;
  int32_t selStart_ = 0;
  int32_t selLength_ = 0;
  bool locked_ = false;
};

}  // namespace qb
