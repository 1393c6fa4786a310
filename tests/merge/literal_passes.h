#pragma once
// The literal merge passes, for the merge's own route to be
// compared with: every marker of every field searched for in the text by
// the run-time's InStr, each found replaced by Replace, and the unfound ones
// removed piece by piece with InStr, Mid and Replace from the text's
// beginning each time. Slow by design; the tests, the benchmarks and the
// fuzz targets take it as the oracle.

#include <string>

#include "merge/cls_insert_fields_in_rtb.h"
#include "services/runtime/strings.h"
#include "services/util/field_list_class.h"

namespace qb::test {

// replaceUnfoundMergeFieldsWithBlanks step by step. A bracket that opens and
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

// The merge class with the literal passes beside its own.
class LiteralMerge : public clsInsertFieldsInRTB {
 public:
  // parseRTBComment, literally.
  std::string parseLiterally() {
    std::string text = prepareTemplate();
    if (!verifyFieldListIsPopulated()) return text;
    sweepLiterally(text, "«", "»");
    sweepLiterally(text, "\\'ab", "\\'bb");
    removeUnfoundLiterally(FieldList(), text);
    return text;
  }
};

}  // namespace qb::test
