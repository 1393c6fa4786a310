// The custom type tests: which of the kinds a custom column is, read from
// the settings row of CustomFields.

#include "lookup/cls_lookup_fields.h"
#include "lookup/lookup_services.h"
#include "lookup/lookup_sql.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/store/database_reference.h"

namespace qb {

bool clsLookupFields::hasCustomType(Procedure& proc, const std::string& checkSQL,
                                    const std::string& typeColumn, int16_t wanted,
                                    bool secondRead) {
  bool result = false;
  DatabaseReference* store = nullptr;
  RecordsetHandle settings = -1;
  proc.step([&] { store = lookup::openWhenConnected(proc, checkSQL, adLockReadOnly, settings); });
  if (store == nullptr) return false;
  proc.step([&] {
    if (!store->moveFirstRecord(settings)) return;
    const Variant column(typeColumn + std::to_string(customNumber_));
    // A column never set is an ordinary column.
    const Variant type = store->getFieldValue(settings, column);
    result = !isBlankValue(type) && CInt(type) == wanted;
    if (result && secondRead) result = !isBlankValue(store->getFieldValue(settings, column));
  });
  proc.step([&] { store->closeRecordset(settings); });
  return result && !proc.failed();
}

bool clsLookupFields::isLookupField() {
  const std::string typeColumn = lookup_sql::typeColumn(lookUpFieldsType_);
  if (typeColumn.empty()) return false;
  Procedure proc(lookup::traceName("isLookupField"));
  return hasCustomType(proc, lookup_sql::customTypeSQL(typeColumn, customNumber_), typeColumn,
                       customLookup, true);
}

bool clsLookupFields::isClientRepeaterField() {
  if (lookUpFieldsType_ != familySchedule && lookUpFieldsType_ != familyProjects) return false;
  const std::string typeColumn = lookup_sql::typeColumn(lookUpFieldsType_);
  Procedure proc(lookup::traceName("isClientRepeaterField"));
  return hasCustomType(proc, lookup_sql::customTypeSQL(typeColumn, customNumber_), typeColumn,
                       customClientRepeater, false);
}

bool clsLookupFields::isTaskTypeRepeaterField() {
  if (lookUpFieldsType_ != familySchedule && lookUpFieldsType_ != familyProjects) return false;
  const std::string typeColumn = lookup_sql::typeColumn(lookUpFieldsType_);
  Procedure proc(lookup::traceName("isTaskTypeRepeaterField"));
  return hasCustomType(proc, lookup_sql::customTypeSQL(typeColumn, customNumber_), typeColumn,
                       customTypeRepeater, false);
}

}  // namespace qb
