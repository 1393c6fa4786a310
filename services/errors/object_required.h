#pragma once
// objectOf: the object behind a pointer to a service or helper object. A
// missing one fails as the platform does when a call is made on an object
// variable that is not set (91), so the caller's procedure reports it.

#include <memory>

#include "services/errors/runtime_error.h"

namespace qb {

template <class T>
T& objectOf(T* object) {
  if (object == nullptr)
    throw RuntimeError(err::kObjectRequired, "Object variable or With block variable not set");
  return *object;
}

template <class T>
T& objectOf(const std::shared_ptr<T>& object) {
  return objectOf(object.get());
}

}  // namespace qb
