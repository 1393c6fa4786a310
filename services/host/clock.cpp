#include "services/host/clock.h"

#include <cmath>

#include "services/host/module_state.h"
#include "services/runtime/dates.h"

namespace qb {

double MachineClock::Now() { return qb::Now(); }

double hostNow() {
  const std::shared_ptr<Clock>& clock = moduleState().clock;
  return clock ? clock->Now() : qb::Now();
}

double hostToday() { return std::floor(hostNow()); }

}  // namespace qb
