#include "services/util/date_utilities_class.h"

namespace qb {

void dateUtilitiesClass::setErrorClass(const std::shared_ptr<ErrorObject>& errorObject) {
  errorClass_ = errorObject;
}

}  // namespace qb
