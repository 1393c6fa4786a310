#include "lookup/lookup_services.h"

#include <memory>

#include "services/errors/procedure.h"
#include "services/errors/runtime_error.h"
#include "services/host/module_state.h"

namespace qb {

namespace lookup {

std::string traceName(const char* procedure) {
  return std::string("Orvanta.exe-clsLookupFieldTasks-") + procedure;
}

DatabaseReference* openWhenConnected(Procedure& proc, const std::string& sql, int32_t lockType,
                                     RecordsetHandle& handle) {
  const std::shared_ptr<DatabaseReference>& store = moduleState().databaseReference;
  if (store == nullptr) {
    proc.leave();
    throw RuntimeError(err::kObjectRequired, "Object variable or With block variable not set");
  }
  if (!store->isConnected()) {
    proc.leave();
    return nullptr;
  }
  handle = store->openRecordset(sql, adOpenKeyset, lockType);
  return store.get();
}

}  // namespace lookup

}  // namespace qb
