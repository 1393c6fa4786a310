#pragma once
// What the 1-based collections of the control models share: lookup by an
// index or a key held in a Variant, and numbering the members from 1.
// Internal to the control models.

#include <cstdint>
#include <memory>
#include <vector>

#include "services/controls/control_failures.h"
#include "services/runtime/variant.h"

namespace qb::collection_support {

// The member for a Variant that holds an index (Integer or Long) or a key
// (String); anything else is refused as an invalid call.
template <class Collection>
decltype(auto) itemByIndexOrKey(Collection& collection, const Variant& indexOrKey) {
  if (indexOrKey.isString()) return collection.item(indexOrKey.rawString());
  if (indexOrKey.type() == VarType::Integer || indexOrKey.type() == VarType::Long) {
    return collection.item(indexOrKey.rawInt());
  }
  control_failures::invalidCall();
}

// Sets each member's index to its place, from 1. Members before position
// from (0-based) keep theirs: an insertion renumbers only what moved.
template <class T>
void numberFromOne(const std::vector<std::unique_ptr<T>>& members, int32_t T::*index,
                   size_t from = 0) {
  for (size_t i = from; i < members.size(); ++i) (*members[i]).*index = static_cast<int32_t>(i + 1);
}

}  // namespace qb::collection_support
