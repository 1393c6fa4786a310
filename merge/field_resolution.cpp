// Field resolution: the recordsets of one merge opened and kept, a field's
// row found for the item set on the object, its value read and formatted by
// the field's type. One open recordset per table serves a whole document;
// every marker found reads its field afresh.

#include "data/mod_database_functions.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "merge/merge_sql.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/runtime/format.h"
#include "services/util/duration_text.h"

namespace qb {

namespace {

// A value as its marker shows it, by the field's type; a type without a
// rule gives "".
std::string formatByType(const std::string& value, int16_t type, const std::string& format) {
  switch (type) {
    case fieldTypeText:
      return value;
    case fieldTypeDate: {
      const double date = CDate(Variant(value));
      if (splitDate(date).year < 1900) return "";
      return Format(Variant::date(date), format.empty() ? "mmm d, yyyy" : format);
    }
    case fieldTypeTime:
      return Format(Variant(value), "h:Nn am/pm");
    case fieldTypeCurrency:
      return Format(Variant(CDbl(Variant(value))), "$#,##0.00;$-#,##0.00");
    case fieldTypeBoolean:
      return CBool(Variant(value)) ? "Yes" : "No";
    case fieldTypeHours: {
      // Hours in single precision, to whole minutes by banker's rounding.
      const double minutes = static_cast<double>(CSng(Variant(value))) * 60.0;
      return minutesToDurationText(CLng(Variant(minutes)));
    }
    default:
      return "";
  }
}

}  // namespace

const clsInsertFieldsInRTB::SourceInfo* clsInsertFieldsInRTB::sourceNamed(
    const std::string& fieldSource) {
  using C = clsInsertFieldsInRTB;
  // In the order the sources are tested. The client's data is opened by the
  // main client SQL; the software's recordset is never opened here (see
  // getDataFieldInfo). "ComapnyNum" is the key as it has always been spelt.
  static const SourceInfo kSources[] = {
      {Source::Contact, "ContactInfo", &C::contactRecordset_, &C::contactID_, "ContactID",
       merge_sql::kContact, merge_sql::kAllContacts, adLockReadOnly},
      {Source::ContactNotes, "contactNotes", &C::contactNotesRecordset_, &C::contactID_,
       "ContactNum", merge_sql::kContactNotes, merge_sql::kAllContactNotes, adLockOptimistic},
      {Source::Company, "CompanyInfo", &C::companyRecordset_, &C::companyID_, "CompanyID",
       merge_sql::kCompanyOnFirstUse, merge_sql::kAllCompanies, adLockReadOnly},
      {Source::CompanyNotes, "CompanyNotes", &C::companyNotesRecordset_, &C::companyID_,
       "ComapnyNum", merge_sql::kCompanyNotes, merge_sql::kAllCompanyNotes, adLockOptimistic},
      {Source::ClientInfo, "ClientInfo", &C::clientInfoRecordset_, &C::companyID_, "CompanyID",
       nullptr, nullptr, adLockReadOnly},
      {Source::Software, "SoftwareInfo", &C::softwareRecordset_, &C::companyID_, "CompanyID",
       nullptr, merge_sql::kAllSoftware, adLockReadOnly},
      {Source::Firm, "FirmInfo", &C::firmRecordset_, &C::firmID_, "CompanyID",
       merge_sql::kFirmOnFirstUse, nullptr, adLockReadOnly},
      {Source::Appointment, "AppointInfo", &C::appointmentRecordset_, &C::appointmentID_,
       "AppointmentID", merge_sql::kAppointment, merge_sql::kAllAppointments, adLockReadOnly},
      {Source::Task, "TaskInfo", &C::taskRecordset_, &C::taskID_, "TaskID", merge_sql::kTask,
       merge_sql::kAllTasks, adLockReadOnly},
      {Source::Docket, "DocketInfo", &C::docketRecordset_, &C::docketId_, "DocketID",
       merge_sql::kDocket, merge_sql::kAllDockets, adLockReadOnly},
  };
  for (const SourceInfo& source : kSources) {
    if (fieldSource == source.name) return &source;
  }
  return nullptr;
}

void clsInsertFieldsInRTB::initializeDataRecordsetsForSingleDocMerge() {
  Procedure proc(merge::traceName("initializeDataRecordsetsForSingleDocMerge"));
  proc.step([&] { closeMergeRecordsets(); });
  // Write-back needs recordsets that take writes.
  const int32_t lock =
      mergeFieldListUse_ == fieldListUseWriteBack ? adLockOptimistic : adLockReadOnly;
  bool connected = false;
  proc.step([&] { connected = merge::store().isConnected(); });
  auto open = [&](RecordsetHandle& handle, const std::string& sql) {
    proc.step([&] { handle = merge::store().openRecordset(sql, adOpenKeyset, lock); });
  };
  auto withId = [](const char* sql, int32_t id) { return sql + std::to_string(id) + ";"; };
  if (connected && companyID_ >= 0) {
    std::string clientSql;
    proc.step([&] {
      clientSql = modDatabaseFunctions::getMainBusinessSQLString(
          false, 3, modDatabaseFunctions::getClientDataIDFromCompanyID(companyID_));
    });
    open(clientInfoRecordset_, clientSql);
    open(companyRecordset_, withId(merge_sql::kCompany, companyID_));
    open(softwareRecordset_, withId(merge_sql::kSoftwareByCompany, companyID_));
  }
  if (connected && contactID_ >= 0) {
    open(contactRecordset_, withId(merge_sql::kContact, contactID_));
    if (softwareRecordset_ < 0) {
      open(softwareRecordset_, withId(merge_sql::kSoftwareByContact, contactID_));
    }
  }
  if (connected && firmID_ >= 0) open(firmRecordset_, withId(merge_sql::kFirm, firmID_));
  if (connected && userID_ >= 0) open(firmUserRecordset_, withId(merge_sql::kFirmUser, userID_));
  if (connected && appointmentID_ >= 0) {
    open(appointmentRecordset_, withId(merge_sql::kAppointment, appointmentID_));
  }
  if (connected && docketId_ >= 0) open(docketRecordset_, withId(merge_sql::kDocket, docketId_));
  if (connected && taskID_ >= 0) {
    open(taskRecordset_, withId(merge_sql::kTask, taskID_));
    // A task without a schedule row is read by itself.
    proc.step([&] {
      DatabaseReference& store = merge::store();
      if (store.moveFirstRecord(taskRecordset_)) return;
      store.closeRecordset(taskRecordset_);
      taskRecordset_ =
          store.openRecordset(withId(merge_sql::kTaskAlone, taskID_), adOpenKeyset, lock);
    });
  }
  // The table is built for the ids set, also without a store.
  proc.step([&] {
    bool bypassListBox = true;
    bool clearListbox = true;
    createDefaultFieldListStructure(bypassListBox, clearListbox);
  });
}

void clsInsertFieldsInRTB::openOnFirstUse(const SourceInfo& source) {
  DatabaseReference& store = merge::store();
  const bool wholeTables = mergeFieldListUse_ == fieldListUseBatchMerge;
  RecordsetHandle& handle = this->*source.handle;
  const std::string id = std::to_string(this->*source.id) + ";";
  if (source.source == Source::ClientInfo) {
    handle = store.openRecordset(
        modDatabaseFunctions::getMainBusinessSQLString(
            false, 3, modDatabaseFunctions::getClientDataIDFromCompanyID(companyID_)),
        adOpenKeyset, adLockReadOnly);
    return;
  }
  if (wholeTables && source.wholeTable != nullptr) {
    handle = store.openRecordset(source.wholeTable, adOpenKeyset, source.wholeTableLock);
    return;
  }
  // The company's notes are opened to be written as well.
  const int32_t lock = source.source == Source::CompanyNotes ? adLockOptimistic : adLockReadOnly;
  handle = store.openRecordset(source.onFirstUse + id, adOpenKeyset, lock);
  if (source.source == Source::Company && !store.isRecordsetOpen(softwareRecordset_)) {
    softwareRecordset_ =
        store.openRecordset(merge_sql::kSoftwareByCompany + id, adOpenKeyset, adLockReadOnly);
  } else if (source.source == Source::Contact && !store.isRecordsetOpen(softwareRecordset_)) {
    softwareRecordset_ =
        store.openRecordset(merge_sql::kSoftwareByContact + id, adOpenKeyset, adLockReadOnly);
  } else if (source.source == Source::Task && !store.moveFirstRecord(handle)) {
    // The first recordset is left open, as it has always been.
    handle = store.openRecordset(merge_sql::kTaskAlone + id, adOpenKeyset, adLockReadOnly);
  }
}

bool clsInsertFieldsInRTB::findSourceRow(const SourceInfo& source) {
  try {
    return merge::store().findRecord(this->*source.handle, source.key,
                                     std::to_string(this->*source.id));
  } catch (const RuntimeError& failure) {
    // The software's "CompanyID" and the notes' "ComapnyNum" are no columns
    // of theirs: such a key finds nothing.
    if (failure.number() == err::kItemNotFound) return false;
    throw;
  }
}

std::string clsInsertFieldsInRTB::getDataFieldInfo(int32_t rowIndex, const std::string& format) {
  Procedure proc(merge::traceName("getDataFieldInfo"));
  std::string result;
  bool moved = false;
  proc.step([&] { moved = fieldList_.moveToFieldRow(rowIndex); });
  if (!moved) return result;
  int16_t type = 0;
  proc.step([&] { type = CInt(fieldList_.getFieldColumn(fieldTypeColumn)); });
  if (testComment_) {
    // A test merge writes the sample as it stands, whatever the type.
    proc.step([&] { result = toText(fieldList_.getFieldColumn(fieldSampleColumn)); });
  } else {
    const SourceInfo* source = nullptr;
    std::string fieldName;
    proc.step([&] {
      if (!merge::store().isConnected()) return;
      fieldName = toText(fieldList_.getFieldColumn(fieldNameColumn));
      source = sourceNamed(toText(fieldList_.getFieldColumn(fieldSourceColumn)));
    });
    bool ready = false;
    proc.step([&] {
      if (source == nullptr) return;
      DatabaseReference& store = merge::store();
      if (source->source == Source::Software) {
        // Read only when a merge opened it; a run over many clients reads
        // the whole table, opened over the handle.
        if (!store.isRecordsetOpen(softwareRecordset_)) return;
        if (mergeFieldListUse_ == fieldListUseBatchMerge) {
          softwareRecordset_ =
              store.openRecordset(merge_sql::kAllSoftware, adOpenKeyset, adLockReadOnly);
        }
      } else {
        if (this->*source->id < 0) return;
        if (!store.isRecordsetOpen(this->*source->handle)) openOnFirstUse(*source);
      }
      ready = true;
    });
    bool found = false;
    proc.step([&] {
      if (!ready) return;
      merge::yieldBeforeFind();
      found = findSourceRow(*source);
    });
    std::string value;
    proc.step([&] {
      if (found) value = getDataFieldFromRecordset(fieldName);
    });
    // A blank value is never formatted: an empty amount stays "", not "$0.00".
    proc.step([&] {
      if (!isBlankValue(Variant(value))) result = formatByType(value, type, format);
    });
  }
  proc.step([&] {
    if (!isBlankValue(Variant(result)) && convertStrToRTF_) result = convertToRTF(result);
  });
  return result;
}

std::string clsInsertFieldsInRTB::getMergeDataFromFieldName(std::string fieldName) {
  return mergeDataOfRow("getMergeDataFromFieldName", fieldNameColumn, fieldName);
}

std::string clsInsertFieldsInRTB::getMergeDataFromDisplayName(std::string MergeDisplayName) {
  return mergeDataOfRow("getMergeDataFromDisplayName", fieldDisplayNameColumn, MergeDisplayName);
}

std::string clsInsertFieldsInRTB::mergeDataOfRow(const char* procedure, int32_t column,
                                                 const std::string& name) {
  Procedure proc(merge::traceName(procedure));
  std::string result;
  // The company's name is given as the contact's, for a contact without a
  // company, by the merge passes only, not here.
  proc.step([&] {
    if (isBlankValue(Variant(name)) || !verifyFieldListIsPopulated()) return;
    if (fieldList_.findFieldRow(column, Variant(name)) < 0) return;
    result = getDataFieldInfo(CLng(fieldList_.getFieldRowIndex()), "");
  });
  return result;
}

}  // namespace qb
