#include "services/host/locale_reference.h"

#include "services/host/clock.h"
#include "services/runtime/dates.h"

namespace qb {

int32_t FixedLocale::getCurrentTaxYear() {
  return taxYear != 0 ? taxYear : splitDate(hostToday()).year - 1;
}

}  // namespace qb
