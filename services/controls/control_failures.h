#pragma once
// The failures the control models raise, with the platform's numbers and
// texts. Internal to the control models.

#include "services/errors/runtime_error.h"

namespace qb::control_failures {

[[noreturn]] inline void invalidProperty() {
  throw RuntimeError(err::kInvalidProperty, "Invalid property value");
}
[[noreturn]] inline void invalidCall() {
  throw RuntimeError(err::kInvalidCall, "Invalid procedure call or argument");
}
[[noreturn]] inline void indexOutOfBounds() {
  throw RuntimeError(err::kIndexOutOfBounds, "Index out of bounds");
}
[[noreturn]] inline void keyNotUnique() {
  throw RuntimeError(err::kKeyNotUnique, "Key is not unique in collection");
}
[[noreturn]] inline void elementNotFound() {
  throw RuntimeError(err::kElementNotFound, "Element not found");
}
[[noreturn]] inline void subscriptOutOfRange() {
  throw RuntimeError(err::kSubscript, "Subscript out of range");
}

}  // namespace qb::control_failures
