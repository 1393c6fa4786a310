// The merge in test mode on any template, against the passes as they are
// written: the two must give the same text, byte for byte. The choices set
// rich text or plain, word wrap, and the swap of the company's name for a
// contact's.

#include <cstdlib>

#include "tests/fuzz/merge_fuzz_support.h"
#include "tests/merge/literal_passes.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size > 4096) return 0;  // the passes as written search the text once per field
  qb::fuzz::mergeServices();
  qb::fuzz::Input input(data, size);
  const uint8_t choices = input.byte();
  static qb::test::LiteralMerge* fields = [] {
    auto* made = new qb::test::LiteralMerge;
    made->setContactID(7);
    made->setListType(qb::listTypeCompanyContact);
    made->setTestComment(true);
    made->initializeDataRecordsetsForSingleDocMerge();
    return made;
  }();
  fields->setConvertStrToRTF(choices & 1);
  fields->setUseWordWrap(choices & 2);
  fields->setConvertCompanyNameToContactNameForContacts(choices & 4);
  fields->setTemplateText(input.rest());
  if (fields->parseRTBComment() != fields->parseLiterally()) std::abort();
  return 0;
}
