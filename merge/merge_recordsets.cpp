// The recordsets a merge keeps open between calls, so that one document's
// markers cost one query per table.

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "services/errors/procedure.h"
#include "services/store/database_reference.h"

namespace qb {

void clsInsertFieldsInRTB::closeMergeRecordsets() {
  Procedure proc(merge::traceName("closeMergeRecordsets"));
  RecordsetHandle* const handles[] = {
      &clientInfoRecordset_,   &companyRecordset_,  &companyNotesRecordset_, &contactRecordset_,
      &contactNotesRecordset_, &softwareRecordset_, &appointmentRecordset_,  &docketRecordset_,
      &taskRecordset_,         &firmRecordset_,     &firmUserRecordset_,
  };
  bool connected = false;
  proc.step([&] { connected = merge::store().isConnected(); });
  for (RecordsetHandle* handle : handles) {
    proc.step([&] {
      if (connected && merge::store().isRecordsetOpen(*handle)) {
        merge::store().closeRecordset(*handle);
      }
    });
  }
  proc.step([&] {
    for (RecordsetHandle* handle : handles) *handle = -1;
  });
}

}  // namespace qb
