// The run-time's Format with date patterns: any pattern on any date serial,
// a number, a text or a date held as text. Failures are RuntimeErrors (an
// overflow for a serial out of range, a type mismatch); nothing else may go
// wrong.

#include <cstring>

#include "services/errors/runtime_error.h"
#include "services/runtime/format.h"
#include "tests/fuzz/merge_fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  qb::fuzz::Input input(data, size);
  const uint8_t kind = input.byte();
  double serial = 0;
  uint8_t bytes[sizeof serial];
  for (uint8_t& b : bytes) b = input.byte();
  std::memcpy(&serial, bytes, sizeof serial);
  const std::string pattern = input.rest();
  qb::Variant value;
  switch (kind % 4) {
    case 0:
      value = qb::Variant::date(serial);
      break;
    case 1:
      value = qb::Variant(serial);
      break;
    case 2: {
      int32_t whole = 0;
      std::memcpy(&whole, bytes, sizeof whole);
      value = qb::Variant(whole);
      break;
    }
    default:
      value = qb::Variant(std::string("2026-02-29 13:05:59"));
      break;
  }
  try {
    (void)qb::Format(value, pattern);
  } catch (const qb::RuntimeError&) {
  }
  return 0;
}
