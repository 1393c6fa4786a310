#pragma once
// The failures of recordset operations, with the numbers and texts the
// system's error handlers know.

#include <string>

#include "services/errors/runtime_error.h"

namespace qb::sqlite {

[[noreturn]] inline void noCurrentRecord() {
  throw RuntimeError(err::kNoCurrentRecord,
                     "Either BOF or EOF is True, or the current record has been deleted. "
                     "Requested operation requires a current record.");
}

[[noreturn]] inline void itemNotFound() {
  throw RuntimeError(err::kItemNotFound,
                     "Item cannot be found in the collection corresponding to the requested "
                     "name or ordinal.");
}

[[noreturn]] inline void readOnlyRecordset() {
  throw RuntimeError(err::kReadOnly,
                     "Current Recordset does not support updating. This may be a limitation of "
                     "the provider, or of the selected locktype.");
}

[[noreturn]] inline void badHandle() {
  throw RuntimeError(err::kBadHandle, "Operation is not allowed when the object is closed.");
}

// A field that can't be written: an expression, or a column whose row the
// store can't identify.
[[noreturn]] inline void notUpdatable(const std::string& fieldName, const std::string& why) {
  throw RuntimeError(err::kReadOnly, "The field " + fieldName + " can't be updated: " + why);
}

}  // namespace qb::sqlite
