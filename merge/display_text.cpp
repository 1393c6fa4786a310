// The calendar's texts of an appointment, a time entry or a task: the
// user's template for the kind (or the built-in one), fitted to the item's
// client, merged, and framed by the item's own text before and after; and
// the title bar text from the user's title template.

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "merge/merge_sql.h"
#include "render/mod_database_client_functions.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

constexpr const char* kCompanyName = "«Company Name»";
constexpr const char* kContactDisplayName = "«Contact Display Name»";

// Replaces the first occurrence of find (any case), if there is one.
void replaceFirst(std::string& text, const std::string& find, const std::string& replacement) {
  const size_t at = findText(text, find);
  if (at != std::string::npos) text.replace(at, find.size(), replacement);
}

bool holds(const std::string& text, const std::string& find) {
  return findText(text, find) != std::string::npos;
}

}  // namespace

struct clsInsertFieldsInRTB::DisplayKind {
  int32_t listType;
  const char* prefix;  // of the columns of UserCalendarSettings
  const char* key;     // of the item's table
  RecordsetHandle clsInsertFieldsInRTB::*recordset;
  int32_t clsInsertFieldsInRTB::*itemID;
  const char* builtInTemplate;
};

const clsInsertFieldsInRTB::DisplayKind* clsInsertFieldsInRTB::displayKindOf(int32_t listType) {
  using C = clsInsertFieldsInRTB;
  static const DisplayKind kKinds[] = {
      {listTypeAppointment, "Appt", "AppointmentID", &C::appointmentRecordset_, &C::appointmentID_,
       "«Appointment Name» for «Company Name»\r\n«Appointment Start Time» to «Appointment End "
       "Time»"},
      {listTypeTimeEntry, "Docket", "DocketID", &C::docketRecordset_, &C::docketId_,
       "«Time Entry Start Time» to «Time Entry End Time»\r\n«Company Name»\r\n«Time Entry Name»"},
      {listTypeTask, "Task", "TaskID", &C::taskRecordset_, &C::taskID_,
       "«Task Name» for «Company Name»\r\n«Task Start Time» to «Task End Time»"},
  };
  for (const DisplayKind& kind : kKinds) {
    if (kind.listType == listType) return &kind;
  }
  return nullptr;
}

Variant clsInsertFieldsInRTB::readCalendarSetting(const DisplayKind* kind, const char* suffix,
                                                  bool& rowFound) {
  Procedure proc(merge::traceName("readCalendarSetting"));
  Variant setting;
  rowFound = false;
  proc.step([&] {
    DatabaseReference& store = merge::store();
    if (!store.isConnected()) return;
    const RecordsetHandle settings =
        store.openRecordset(merge_sql::kUserCalendarSettings + std::to_string(userID_) + ";",
                            adOpenKeyset, adLockOptimistic);
    rowFound = store.moveFirstRecord(settings);
    if (rowFound) {
      setting = store.getFieldValue(
          settings, Variant(std::string(kind != nullptr ? kind->prefix : "") + suffix));
    }
    store.closeRecordset(settings);
  });
  return setting;
}

void clsInsertFieldsInRTB::fitTemplateToClient(std::string& text) {
  // A company's item shows the company's name where the template names the
  // contact, a contact's item the contact's name; the first occurrence only.
  if (companyID_ >= 0 && contactID_ < 0 && holds(text, kContactDisplayName) &&
      !holds(text, kCompanyName)) {
    replaceFirst(text, kContactDisplayName, kCompanyName);
  }
  if (contactID_ >= 0 && companyID_ < 0 && holds(text, kCompanyName) &&
      !holds(text, kContactDisplayName)) {
    replaceFirst(text, kCompanyName, kContactDisplayName);
  }
  if (companyID_ >= 0 && contactID_ < 0) {
    contactID_ = modDatabaseClientFunctions::getDefaultContactIDFromCompanyID(companyID_);
  }
}

std::string clsInsertFieldsInRTB::createDisplayTextByID() {
  Procedure proc(merge::traceName("createDisplayTextByID"));
  setMergeFieldListUse(fieldListUseMerge);
  const DisplayKind* kind = displayKindOf(listType_);
  const std::string builtIn = kind != nullptr ? kind->builtInTemplate : "";
  std::string text;
  proc.step([&] {
    bool rowFound = false;
    const Variant stored = readCalendarSetting(kind, "Template", rowFound);
    if (!rowFound) return;
    // "0" was the setting's way of saying: the built-in one.
    text = isBlankValue(stored) || toText(stored) == "0" ? builtIn : toText(stored);
  });
  proc.step([&] {
    if (isBlankValue(Variant(text)) || text == "Text Constant") text = builtIn;
  });
  proc.step([&] { text = convertProvinceFields(text); });
  proc.step([&] { fitTemplateToClient(text); });
  std::string merged;
  std::string before;
  std::string after;
  proc.step([&] {
    // A test shows a bad template of the user's as the built-in one.
    if (testComment_ && testRTBComment(text, false, false, true)) text = builtIn;
  });
  proc.step([&] {
    if (kind == nullptr || this->*kind->itemID < 0) return;
    initializeDataRecordsetsForSingleDocMerge();
    templateText_ = text;
    merged = parseRTBComment();
    DatabaseReference& store = merge::store();
    merge::yieldBeforeFind();
    // Without a store the merge opened nothing, and the item has no text
    // of its own to add.
    const RecordsetHandle item = this->*kind->recordset;
    if (store.isRecordsetOpen(item) &&
        store.findRecord(item, kind->key, std::to_string(this->*kind->itemID))) {
      before = toText(store.getFieldValue(item, Variant("BeforeAppointmentText")));
      after = toText(store.getFieldValue(item, Variant("AfterAppointmentText")));
    }
  });
  std::string result;
  proc.step([&] {
    if (!before.empty()) result = before + "\r\n";
    result += merged;
    if (!after.empty()) result += "\r\n" + after;
  });
  return result;
}

std::string clsInsertFieldsInRTB::createTitleBarTextByID() {
  Procedure proc(merge::traceName("createTitleBarTextByID"));
  setMergeFieldListUse(fieldListUseMerge);
  const DisplayKind* kind = displayKindOf(listType_);
  std::string text;
  bool found = false;
  proc.step([&] {
    bool rowFound = false;
    const Variant stored = readCalendarSetting(kind, "TitleBarText", rowFound);
    if (rowFound && !isBlankValue(stored)) {
      text = toText(stored);
      found = true;
    }
  });
  proc.step([&] { fitTemplateToClient(text); });
  // A title may name one field without brackets: "Task Name".
  proc.step([&] {
    if (Left(text, 1) != "«") text = "«" + text;
    if (Right(text, 1) != "»") text += "»";
  });
  proc.step([&] { templateText_ = convertProvinceFields(text); });
  std::string result;
  proc.step([&] {
    if (found && kind != nullptr && this->*kind->itemID >= 0) {
      initializeDataRecordsetsForSingleDocMerge();
      result = parseRTBComment();
    }
  });
  return result;
}

}  // namespace qb
