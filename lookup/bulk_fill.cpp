// The bulk fill of a lookup column: for each client of the family's rows,
// the merge field's value as a merge of that client gives it, written to the
// column of the client's rows. One merge object serves the whole run and is
// moved from client to client. Each value is committed as it is written, so
// a run that is stopped leaves every row with its old or its new value.

#include "data/mod_database_functions.h"
#include "lookup/cls_lookup_fields.h"
#include "lookup/lookup_services.h"
#include "lookup/lookup_sql.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "render/mod_database_client_functions.h"
#include "services/controls/platform.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/store/database_reference.h"

namespace qb {

namespace {

constexpr int16_t kDefaultPointer = 0;
constexpr int16_t kBusyPointer = 11;
// The merge's use for a lookup run: no use of its own, read-only recordsets
// opened for each client.
constexpr int32_t kLookupFieldListUse = 4;

// A client row's id column when it holds an id of 1 or more: -1 otherwise.
int32_t positiveId(DatabaseReference& store, RecordsetHandle list, const char* column) {
  const Variant value = store.getFieldValue(list, Variant(column));
  if (isBlankValue(value)) return -1;
  const int32_t id = CLng(value);
  return id >= 1 ? id : -1;
}

}  // namespace

void clsLookupFields::populateLookupFieldValuesForAllClients() {
  Procedure proc(lookup::traceName("populateLookupFieldValuesForAllClients"));
  const std::string listSQL = lookup_sql::clientListSQL(lookUpFieldsType_, personalTaxYear_);
  if (listSQL.empty()) return;
  const int32_t family = lookUpFieldsType_;
  const int16_t number = customNumber_;
  const std::string column = lookup_sql::customColumn(number);

  clsInsertFieldsInRTB merge;
  proc.step([&] {
    merge.setMergeFieldListUse(kLookupFieldListUse);
    merge.setListType(listTypeCompanyContact);
    merge.setTestComment(false);
    merge.setConvertStrToRTF(false);
    merge.setConvertCompanyNameToContactNameForContacts(false);
    bool bypassListBox = true;
    bool clearListbox = true;
    merge.createDefaultFieldListStructure(bypassListBox, clearListbox);
  });
  // A lookup naming a field the catalogue no longer has writes nothing.
  proc.step([&] {
    FieldListClass table = merge.FieldList();
    if (table.findFieldRow(fieldNameColumn, Variant(fieldName_)) < 0) proc.leave();
  });
  DatabaseReference* store = nullptr;
  RecordsetHandle list = -1;
  proc.step([&] { store = lookup::openWhenConnected(proc, listSQL, adLockReadOnly, list); });
  if (store == nullptr) return;
  proc.step([&] {
    if (store->moveFirstRecord(list)) return;
    store->closeRecordset(list);
    proc.leave();
  });
  proc.step([&] {
    screen().setMousePointer(kBusyPointer);
    startPopulateLookupFields.raise();
    int32_t count = store->getRecordCount(list);
    maxPopulateLookupFields.raise(count);
  });

  std::string targetSQL;
  for (int32_t counter = 1; !proc.leaving(); ++counter) {
    bool atEnd = true;
    proc.step([&] { atEnd = store->isEndOfRecordset(list); });
    if (atEnd || proc.leaving()) break;
    // One client: its ids, its value, its rows written.
    proc.step([&] {
      int32_t kind = clientNone;
      int32_t clientNum = -1;
      int32_t companyID = -1;
      int32_t contactID = -1;
      if (family == familySchedule) {
        clientNum = positiveId(*store, list, "ClientNum");
        if (clientNum >= 1) {
          kind = clientCompany;
          companyID = modDatabaseFunctions::getCompanyIDFromClientDataID(clientNum);
        }
      } else if (family == familyProjects) {
        companyID = positiveId(*store, list, "CompanyIDNum");
        if (companyID >= 1) kind = clientCompany;
      } else {
        kind = clientContact;
        contactID = CLng(store->getFieldValue(list, Variant("ContactNum")));
      }
      if (family != familyPersonalTax) {
        const int32_t contact = positiveId(*store, list, "ContactIDNum");
        if (contact >= 1) {
          kind = clientContact;
          contactID = contact;
        }
      }
      // A company's value is merged with its default contact; finding it
      // reads the links, so the list keeps its place.
      if (companyID >= 0 && contactID < 0) {
        const int16_t position = store->getRecordPosition(list);
        contactID = modDatabaseClientFunctions::getDefaultContactIDFromCompanyID(companyID);
        store->setRecordPosition(list, position);
      }
      merge.setCompanyID(companyID);
      merge.setContactID(contactID);
      merge.initializeDataRecordsetsForSingleDocMerge();
      const std::string value = merge.getMergeDataFromFieldName(fieldName_);
      // A row without a client writes to the rows of the client before.
      if (kind == clientCompany) {
        targetSQL = lookup_sql::clientRowsSQL(family, kind, number,
                                              family == familySchedule ? clientNum : companyID, 0);
      } else if (kind == clientContact) {
        targetSQL = lookup_sql::clientRowsSQL(family, kind, number, contactID, personalTaxYear_);
      }
      const RecordsetHandle rows = store->openRecordset(targetSQL, adOpenKeyset, adLockOptimistic);
      if (store->moveFirstRecord(rows)) {
        const std::string written = isBlankValue(Variant(value)) ? std::string() : value;
        while (!store->isEndOfRecordset(rows)) {
          store->updateFieldValue(rows, column, written);
          store->moveNextRecord(rows);
        }
      }
      store->closeRecordset(rows);
    });
    proc.step([&] {
      incPopulateLookupFields.raise(counter);
      store->moveNextRecord(list);
      // The host's window stays alive: its progress bar paints, its
      // buttons answer.
      DoEvents();
      DoEvents();
    });
  }
  proc.step([&] {
    endPopulateLookupFields.raise();
    screen().setMousePointer(kDefaultPointer);
    store->closeRecordset(list);
  });
}

}  // namespace qb
