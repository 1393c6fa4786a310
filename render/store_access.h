#pragma once
// How the procedures of render/ reach the store: a local copy of the module's
// DatabaseReference, and the field reads they share.

#include <memory>
#include <string>

#include "services/errors/procedure.h"
#include "services/errors/runtime_error.h"
#include "services/host/module_state.h"
#include "services/runtime/conversions.h"
#include "services/store/database_reference.h"

namespace qb::render {

// The module's store; null when the host has handed in none.
inline std::shared_ptr<DatabaseReference> storeReference() {
  return moduleState().databaseReference;
}

// True when the store can take queries. A missing store is an object-required
// failure, as any call on a missing service object is; the procedure leaves
// after it whatever the user answers, since no later step has a store to use.
inline bool connected(Procedure& proc, const std::shared_ptr<DatabaseReference>& db) {
  if (db == nullptr) {
    proc.leave();
    throw RuntimeError(err::kObjectRequired, "Object variable not set");
  }
  return db->isConnected();
}

// The opening step of a query: when the store can take queries, opens the
// SQL (keyset, the lock given) into handle; otherwise the procedure leaves.
inline void openWhenConnected(Procedure& proc, const std::shared_ptr<DatabaseReference>& db,
                              const std::string& sqlText, int32_t lockType,
                              RecordsetHandle& handle) {
  if (!connected(proc, db)) {
    proc.leave();
    return;
  }
  handle = db->openRecordset(sqlText, adOpenKeyset, lockType);
}

// A text column as it stands; Null gives "".
inline std::string fieldText(DatabaseReference& db, RecordsetHandle handle, const char* column) {
  return toText(db.getFieldValue(handle, Variant(column)));
}

inline bool fieldBlank(DatabaseReference& db, RecordsetHandle handle, const char* column) {
  return isBlankValue(db.getFieldValue(handle, Variant(column)));
}

// A Boolean column that can be Null: the blank test on a first read, the
// conversion of a second.
inline bool fieldTrue(DatabaseReference& db, RecordsetHandle handle, const char* column) {
  if (fieldBlank(db, handle, column)) return false;
  return CBool(db.getFieldValue(handle, Variant(column)));
}

}  // namespace qb::render
