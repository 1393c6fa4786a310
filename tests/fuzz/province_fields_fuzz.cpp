// A template normalised to today's names and to any country and province
// code: whatever the text, the rewriting ends and gives a text.

#include "merge/cls_insert_fields_in_rtb.h"
#include "tests/fuzz/merge_fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  qb::FixedLocale& locale = qb::fuzz::mergeServices();
  qb::fuzz::Input input(data, size);
  locale.countryCode = input.byte() % 4;
  locale.provinceCode = static_cast<int8_t>(input.byte()) % 16;
  qb::clsInsertFieldsInRTB fields;
  const std::string converted = fields.convertProvinceFields(input.rest());
  (void)converted;
  return 0;
}
