// The merge class's model: its life, the properties with side effects, the
// check that the field table is there, the translation between field names
// and display names, and what a pick from a field list inserts.

#include <functional>

#include "data/mod_database_functions.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/marker_keys.h"
#include "merge/merge_services.h"
#include "services/controls/rich_text_box.h"
#include "services/errors/procedure.h"
#include "services/host/module_state.h"
#include "services/runtime/conversions.h"
#include "services/util/rich_text_insert_class.h"

namespace qb {

namespace {

// The current row's column as text, its type as a number.
std::string columnText(const FieldListClass& list, int32_t column) {
  return toText(list.getFieldColumn(column));
}

bool currentRowIsDate(const FieldListClass& list) {
  const Variant type = list.getFieldColumn(fieldTypeColumn);
  return type.isNumberType() && CLng(type) == fieldTypeDate;
}

}  // namespace

clsInsertFieldsInRTB::clsInsertFieldsInRTB() {
  Procedure proc(merge::traceName("Class_Initialize"));
  proc.step([&] { resetAllItemIDs(); });
}

clsInsertFieldsInRTB::~clsInsertFieldsInRTB() {
  Procedure proc(merge::traceName("Class_Terminate"));
  proc.step([&] { fieldList_.clearFieldRows(); });
  proc.step([&] { closeMergeRecordsets(); });
}

void clsInsertFieldsInRTB::setMergeFieldListUse(int32_t value) {
  mergeFieldListUse_ = value;
  // Headers go off for a mapping list and a write-back document; no value
  // turns them back on.
  if (value == fieldListUseMapping || value == fieldListUseWriteBack) {
    showListCategoryHeaders_ = false;
  }
}

void clsInsertFieldsInRTB::setScheduleID(int32_t value) {
  Procedure proc(merge::traceName("scheduleID"));
  proc.step([&] { taskID_ = modDatabaseFunctions::getTaskIDFromScheduleIDNum(value); });
}

void clsInsertFieldsInRTB::resetAllItemIDs() {
  Procedure proc(merge::traceName("resetAllItemIDs"));
  proc.step([&] {
    companyID_ = -1;
    contactID_ = -1;
    firmID_ = -1;
    userID_ = -1;
    appointmentID_ = -1;
    docketId_ = -1;
    taskID_ = -1;
  });
}

bool clsInsertFieldsInRTB::verifyFieldListIsPopulated() {
  Procedure proc(merge::traceName("verifyFieldListIsPopulated"));
  int32_t rowsOnEntry = 0;
  proc.step([&] { rowsOnEntry = fieldList_.getFieldRowCount(); });
  proc.step([&] {
    if (rowsOnEntry >= 1) return;
    // The first item set decides what the list describes.
    if (appointmentID_ >= 0) {
      listType_ = listTypeAppointment;
    } else if (taskID_ >= 0) {
      listType_ = listTypeTask;
    } else if (docketId_ >= 0) {
      listType_ = listTypeTimeEntry;
    } else if (companyID_ >= 0 || contactID_ >= 0) {
      listType_ = listTypeCompanyContact;
    } else {
      return;
    }
    bool bypassListBox = true;
    bool clearListbox = true;
    createDefaultFieldListStructure(bypassListBox, clearListbox);
  });
  // The call that fills the table still answers False.
  return rowsOnEntry > 0;
}

std::string clsInsertFieldsInRTB::translateName(const char* procedure, int32_t fromColumn,
                                                int32_t toColumn, const std::string& name) {
  Procedure proc(merge::traceName(procedure));
  std::string result = name;
  proc.step([&] {
    if (fieldList_.findFieldRow(fromColumn, Variant(name)) >= 0) {
      result = columnText(fieldList_, toColumn);
    }
  });
  return result;
}

std::string clsInsertFieldsInRTB::getDBFieldNameFromDisplayFieldName(
    std::string& fieldDisplayName) {
  return translateName("getDBFieldNameFromDisplayFieldName", fieldDisplayNameColumn,
                       fieldNameColumn, fieldDisplayName);
}

std::string clsInsertFieldsInRTB::getDisplayFieldNameFromDBFieldName(std::string& fieldName) {
  return translateName("getDisplayFieldNameFromDBFieldName", fieldNameColumn,
                       fieldDisplayNameColumn, fieldName);
}

std::string clsInsertFieldsInRTB::getDBFieldFromListItem(int32_t listItem) {
  Procedure proc(merge::traceName("getDBFieldFromListItem"));
  std::string result;
  if (listItem < 0) return result;
  proc.step([&] { fieldList_.moveToFieldRow(listItem); });
  // A date field gives its display name with the default format; any other
  // field its name.
  proc.step([&] {
    result = currentRowIsDate(fieldList_)
                 ? "(" + columnText(fieldList_, fieldDisplayNameColumn) + ", mmmm d yyyy)"
                 : columnText(fieldList_, fieldNameColumn);
  });
  return result;
}

std::string clsInsertFieldsInRTB::parseListItem(int32_t listItem, bool& includeBrackets) {
  Procedure proc(merge::traceName("parseListItem"));
  std::string result;
  if (listItem < 0) return result;
  if (includeBrackets) result = "«";
  proc.step([&] { fieldList_.moveToFieldRow(listItem); });
  proc.step([&] {
    const std::string name = columnText(fieldList_, fieldDisplayNameColumn);
    result += currentRowIsDate(fieldList_) ? "(" + name + ", mmmm d yyyy)" : name;
  });
  proc.step([&] {
    if (includeBrackets) result += "»";
  });
  return result;
}

Variant clsInsertFieldsInRTB::insertAtCaret(const char* procedure,
                                            const std::function<std::string()>& text) {
  Procedure proc(merge::traceName(procedure));
  Variant result;
  int32_t position = 1;
  std::string inserted;
  proc.step([&] {
    if (rtb_ == nullptr) {
      throw RuntimeError(err::kObjectRequired, "Object variable or With block variable not set");
    }
    position = rtb_->SelStart();
  });
  proc.step([&] { inserted = text(); });
  proc.step([&] {
    if (inserted.empty()) return;
    RichTextInsertClass insert;
    insert.setErrorClass(moduleState().errorClass);
    insert.setLocaleReference(moduleState().localeReference);
    result = insert.insertTextAtPosition(*rtb_, inserted, position);
  });
  return result;
}

Variant clsInsertFieldsInRTB::onListClick(int32_t& listItem) {
  // A header line (ItemData -1) gives no text and inserts nothing.
  return insertAtCaret("onListClick", [&] {
    bool includeBrackets = true;
    return parseListItem(listItem, includeBrackets);
  });
}

std::string clsInsertFieldsInRTB::insertCurrentDateMergeField(int32_t& buttonKey,
                                                              bool& includeBrackets) {
  Procedure proc(merge::traceName("insertCurrentDateMergeField"));
  std::string result;
  proc.step([&] {
    result = std::string("(Todays Date, ") + mergeFormat(buttonKey) + ")";
    if (includeBrackets) result = "«" + result + "»";
  });
  return result;
}

Variant clsInsertFieldsInRTB::insertCurrentDate(int32_t& indexNum) {
  return insertAtCaret("insertCurrentDate", [&] {
    return std::string("«(Todays Date, ") + mergeFormat(indexNum) + ")»";
  });
}

}  // namespace qb
