#pragma once
// Control arrays of a form: controls that share a name and differ by index
// ("chkField(0)", "chkField(1)"). controlAt gives the one at an index; an
// index the array does not have fails as the platform does (9, subscript out
// of range).

#include <array>
#include <cstddef>
#include <cstdint>

#include "services/controls/control_failures.h"

namespace qb {

template <class T, std::size_t N>
T& controlAt(std::array<T, N>& controls, int16_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= N) control_failures::subscriptOutOfRange();
  return controls[static_cast<std::size_t>(index)];
}

// A control that is the only one of its array, at index 0.
template <class T>
T& onlyControl(T& control, int16_t index) {
  if (index != 0) control_failures::subscriptOutOfRange();
  return control;
}

}  // namespace qb
