#pragma once
// dateUtilitiesClass: the date helpers of the utility library. For now it
// holds the error object the component hands it, for the procedures that
// will report through it.

#include <memory>

namespace qb {

class ErrorObject;

class dateUtilitiesClass {
 public:
  // Keeps the error object for this object's own procedures, in place of
  // any kept before.
  void setErrorClass(const std::shared_ptr<ErrorObject>& errorObject);
  // The error object kept, or null when none was given.
  const std::shared_ptr<ErrorObject>& errorClass() const { return errorClass_; }

 private:
  std::shared_ptr<ErrorObject> errorClass_;
};

}  // namespace qb
