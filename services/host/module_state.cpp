#include "services/host/module_state.h"

namespace qb {

ModuleState& moduleState() {
  thread_local ModuleState state;
  return state;
}

void resetModuleState() { moduleState() = ModuleState{}; }

}  // namespace qb
