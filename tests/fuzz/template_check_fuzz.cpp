// The template check on any text: plain or RTF brackets, with and without
// the names checked. It raises at most one message, leaves the caller's text
// as it was, and never fails but through the error object.

#include <cstdlib>

#include "merge/cls_insert_fields_in_rtb.h"
#include "tests/fuzz/merge_fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  qb::fuzz::mergeServices();
  qb::fuzz::Input input(data, size);
  const uint8_t choices = input.byte();
  std::string text = input.rest();
  const std::string before = text;
  static qb::clsInsertFieldsInRTB* fields = [] {
    auto* made = new qb::clsInsertFieldsInRTB;
    made->setCompanyID(5);
    made->setListType(qb::listTypeCompanyContact);
    made->initializeDataRecordsetsForSingleDocMerge();
    return made;
  }();
  int messages = 0;
  fields->testErrorComment = [&](std::string&) { ++messages; };
  const bool error = fields->testRTBComment(text, choices & 1, true, choices & 2);
  if (text != before || messages > 1 || (messages == 1) != error) std::abort();
  return 0;
}
