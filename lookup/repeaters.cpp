// The repeaters and the clearing of a column: one value written to every row
// of a client, of a task type or of a project type, or the empty text to
// every row of the family. Each value is committed as it is written.

#include "lookup/cls_lookup_fields.h"
#include "lookup/lookup_services.h"
#include "lookup/lookup_sql.h"
#include "services/controls/platform.h"
#include "services/errors/procedure.h"
#include "services/runtime/strings.h"
#include "services/store/database_reference.h"

namespace qb {

namespace {

constexpr int16_t kDefaultPointer = 0;
constexpr int16_t kBusyPointer = 11;

// The four progress events of one kind of run.
struct RunEvents {
  const Event<void()>& start;
  const Event<void(int32_t&)>& max;
  const Event<void(int32_t&)>& inc;
  const Event<void()>& end;
};

// Writes value to the column of every row of rowsSQL under the busy
// pointer, raising the events; stops without a connected store or rows.
void writeEveryRow(Procedure& proc, const std::string& rowsSQL, const std::string& column,
                   const std::string& value, const RunEvents& events) {
  RecordsetHandle rows = -1;
  DatabaseReference* connected = nullptr;
  proc.step([&] { connected = lookup::openWhenConnected(proc, rowsSQL, adLockOptimistic, rows); });
  if (connected == nullptr) return;
  DatabaseReference& store = *connected;
  proc.step([&] {
    if (store.moveFirstRecord(rows)) return;
    store.closeRecordset(rows);
    proc.leave();
  });
  proc.step([&] {
    screen().setMousePointer(kBusyPointer);
    events.start.raise();
    int32_t count = store.getRecordCount(rows);
    events.max.raise(count);
  });
  proc.step([&] {
    for (int32_t counter = 1; !store.isEndOfRecordset(rows); ++counter) {
      store.updateFieldValue(rows, column, value);
      events.inc.raise(counter);
      store.moveNextRecord(rows);
    }
  });
  proc.step([&] {
    events.end.raise();
    screen().setMousePointer(kDefaultPointer);
    store.closeRecordset(rows);
  });
}

}  // namespace

void clsLookupFields::writeRepeatValue(Procedure& proc, const std::string& checkSQL,
                                       const std::string& rowsSQL, const std::string& typeColumn,
                                       RepeaterEvents kind) {
  const int16_t wanted = kind == RepeaterEvents::Client ? customClientRepeater : customTypeRepeater;
  // The type test also stops a run without a connected store.
  if (!hasCustomType(proc, checkSQL, typeColumn, wanted, false)) return;
  const RunEvents client{startPopulateClientRepeaterFields, maxPopulateClientRepeaterFields,
                         incPopulateClientRepeaterFields, endPopulateClientRepeaterFields};
  const RunEvents taskType{startPopulateTaskTypeRepeaterFields, maxPopulateTaskTypeRepeaterFields,
                           incPopulateTaskTypeRepeaterFields, endPopulateTaskTypeRepeaterFields};
  std::string value;
  proc.step([&] { value = Left(repeatValue_, repeatValueLimit); });
  writeEveryRow(proc, rowsSQL, lookup_sql::customColumn(customNumber_), value,
                kind == RepeaterEvents::Client ? client : taskType);
}

void clsLookupFields::populateClientRepeaterFieldValues() {
  Procedure proc(lookup::traceName("populateClientRepeaterFieldValues"));
  if (clientType_ == clientNone) return;
  if (lookUpFieldsType_ != familySchedule && lookUpFieldsType_ != familyProjects) return;
  // A company of the schedule is named by its ClientData id, of the
  // projects by its company id.
  const int32_t id = clientType_ == clientContact          ? contactIDNum_
                     : lookUpFieldsType_ == familySchedule ? clientIDNum_
                                                           : companyIDNum_;
  const std::string typeColumn = lookup_sql::typeColumn(lookUpFieldsType_);
  writeRepeatValue(proc, lookup_sql::customTypeSQL(typeColumn, customNumber_),
                   lookup_sql::clientRowsSQL(lookUpFieldsType_, clientType_, customNumber_, id,
                                             personalTaxYear_),
                   typeColumn, RepeaterEvents::Client);
}

void clsLookupFields::populateTaskTypeRepeaterFieldValues(int32_t totalNum, int32_t scheduleNum) {
  if (lookUpFieldsType_ != familySchedule) return;
  const std::string typeColumn = lookup_sql::typeColumn(familySchedule);
  populateRepeaterFieldValues(lookup_sql::customTypeSQL(typeColumn, customNumber_),
                              lookup_sql::taskTypeRowsSQL(customNumber_, totalNum, scheduleNum),
                              typeColumn);
}

void clsLookupFields::populateProjectTypeRepeaterFieldValues(int32_t savedProjectID) {
  if (lookUpFieldsType_ != familyProjects) return;
  const std::string typeColumn = lookup_sql::typeColumn(familyProjects);
  populateRepeaterFieldValues(lookup_sql::customTypeSQL(typeColumn, customNumber_),
                              lookup_sql::projectTypeRowsSQL(customNumber_, savedProjectID),
                              typeColumn);
}

void clsLookupFields::populateRepeaterFieldValues(const std::string& checkSQL,
                                                  const std::string& rowsSQL,
                                                  const std::string& typeColumn) {
  Procedure proc(lookup::traceName("populateRepeaterFieldValues"));
  writeRepeatValue(proc, checkSQL, rowsSQL, typeColumn, RepeaterEvents::TaskType);
}

void clsLookupFields::removeLookupFieldVales() {
  Procedure proc(lookup::traceName("removeLookupFieldVales"));
  const std::string rowsSQL =
      lookup_sql::allRowsSQL(lookUpFieldsType_, customNumber_, personalTaxYear_);
  if (rowsSQL.empty()) return;
  writeEveryRow(proc, rowsSQL, lookup_sql::customColumn(customNumber_), "",
                {startRemoveLookupFieldValues, maxRemoveLookupFieldValues,
                 incRemoveLookupFieldValues, endRemoveLookupFieldValues});
}

}  // namespace qb
