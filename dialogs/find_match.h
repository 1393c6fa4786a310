#pragma once
// The text test of the find dialog. Modes: 0 contains, ignoring case; 1
// contains, case as typed; 2 whole phrase, ignoring case; 3 whole phrase,
// case as typed.
//
// The text is split at each occurrence of the search text. It contains the
// search text when that gives two parts or more. A whole phrase further
// needs the last character of the first part, trimmed, to be empty (the
// match stands at the start or after a blank), and the same of the second
// part (the text after the first match is empty or ends in a blank before
// the next match). The second test looks at the end of the second part, not
// its beginning: "tax" is no whole phrase of "tax return" but is one of
// "a tax". That is how the whole phrase behaves, and it is kept.

#include <cstdint>
#include <string>

namespace qb {

bool findMatchText(const std::string& text, const std::string& searchText, int16_t mode);

// The mode of the two options: whole phrase adds 2, match case adds 1.
inline int16_t findMatchMode(bool wholePhrase, bool matchCase) {
  return static_cast<int16_t>((wholePhrase ? 2 : 0) + (matchCase ? 1 : 0));
}

}  // namespace qb
