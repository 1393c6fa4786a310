#pragma once
// TextSelection: the caret and the selected part of an edit text, in
// characters (code points): start is the number of characters before the
// caret, length the number selected after it. Text and combo boxes keep one.

#include <cstdint>
#include <string>

namespace qb {

struct TextSelection {
  int32_t start = 0;
  int32_t length = 0;

  // Places the caret (past the end: at the end) with nothing selected; a
  // negative value is refused with RuntimeError(err::kInvalidProperty).
  void place(int32_t value, const std::string& text);
  // Selects that many characters from the caret, at most to the end; a
  // negative length is refused as place.
  void extend(int32_t value, const std::string& text);
  // The caret at the end of the text, nothing selected.
  void atEnd(const std::string& text);
};

}  // namespace qb
