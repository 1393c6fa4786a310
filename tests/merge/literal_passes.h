#pragma once
// The merge passes as they are written, for the merge's own route to be
// compared with: every marker of every field searched for in the text by
// the run-time's InStr, each found replaced by Replace, and the unfound ones
// removed piece by piece with InStr, Mid and Replace from the text's
// beginning each time. Slow by design; it serves as the oracle.

#include <string>

#include "services/runtime/strings.h"
#include "tests/merge/merge_fixture.h"

namespace qb::test {

// replaceUnfoundMergeFieldsWithBlanks as written. A bracket that opens and
// never closes ends the removal there (its piece would have no length).
inline void removeUnfoundLiterally(const FieldListClass& table, std::string& text) {
  if (table.getFieldRowCount() == 0) return;
  std::string open = "«";
  std::string close = "»";
  bool removed = false;
  for (int sweep = 0; sweep < 2; ++sweep) {
    for (int32_t at = InStr(text, open, CompareMode::Text); at > 0;
         at = InStr(text, open, CompareMode::Text)) {
      const int32_t closing = InStr(at + 1, text, close, CompareMode::Text);
      const int32_t length = closing - at + 1;
      if (length <= 0) return;
      text = Replace(text, Mid(text, at, length), "");
      removed = true;
    }
    if (removed) return;
    open = "\\'ab";
    close = "\\'bb";
  }
}

// parseRTBComment as written.
inline std::string parseLiterally(MergeFields& fields) {
  std::string text = fields.prepareTemplate();
  if (!fields.verifyFieldListIsPopulated()) return text;
  fields.sweepLiterally(text, "«", "»");
  fields.sweepLiterally(text, "\\'ab", "\\'bb");
  removeUnfoundLiterally(fields.FieldList(), text);
  return text;
}

}  // namespace qb::test
