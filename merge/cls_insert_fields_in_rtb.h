#pragma once
// clsInsertFieldsInRTB: the merge field engine. It offers the user a list of
// merge fields (ListBox for the client's, ListBox2 for the firm's), puts a
// field marker into a rich text box when the user picks one, and expands the
// markers of a template with one client's data.
//
// This class's model: its state with the start values below, the field
// table FieldList that every other part reads (built from the catalogues by
// createDefaultFieldListStructure), the operations on the list boxes, the
// translation between field names and display names, and the value
// conversions (convertProvinceFields and its neighbours).
//
// The list boxes and the rich text box belong to the host: the class keeps
// plain pointers to them, never destroys them and drops them when it ends.
// All three are optional: without list boxes the table is built silently,
// without a rich text box only the operations that return text work.
//
// Every operation traces as "Orvanta.exe-clsInsertFieldsInRTB-<name>" and
// takes its failures to the module's error object; none throws.

#include <cstdint>
#include <functional>
#include <string>

#include "merge/merge_field_types.h"
#include "services/runtime/variant.h"
#include "services/store/database_reference.h"
#include "services/util/field_list_class.h"

namespace qb {

class ListBox;
class RichTextBox;
class CatalogueBuilder;

class clsInsertFieldsInRTB {
 public:
  // Class_Initialize: every item id and recordset handle -1, MergeFieldListUse
  // 1, headers shown, ConvertStrToRTF and UseWordWrap True, an empty table.
  clsInsertFieldsInRTB();
  // Class_Terminate: empties the table, then closes the kept recordsets.
  ~clsInsertFieldsInRTB();
  clsInsertFieldsInRTB(const clsInsertFieldsInRTB&) = delete;
  clsInsertFieldsInRTB& operator=(const clsInsertFieldsInRTB&) = delete;

  // ---- Properties ------------------------------------------------------------

  // The merge field table (read it; the catalogues fill it).
  const FieldListClass& FieldList() const { return fieldList_; }
  // Rows added since the last build; also the index of the newest row.
  int32_t fieldListCounter() const { return fieldListCounter_; }

  int32_t MergeFieldListUse() const { return mergeFieldListUse_; }
  // 3 and 5 also turn the list's category headers off; no value turns them
  // back on (the host sets ShowListCategoryHeaders again if it wants them).
  void setMergeFieldListUse(int32_t value);
  int32_t ListType() const { return listType_; }
  void setListType(int32_t value) { listType_ = value; }
  const std::string& TemplateText() const { return templateText_; }
  void setTemplateText(std::string value) { templateText_ = std::move(value); }

  // The item ids; -1 means not set.
  int32_t companyID() const { return companyID_; }
  void setCompanyID(int32_t value) { companyID_ = value; }
  int32_t contactID() const { return contactID_; }
  void setContactID(int32_t value) { contactID_ = value; }
  int32_t firmID() const { return firmID_; }
  void setFirmID(int32_t value) { firmID_ = value; }
  int32_t userID() const { return userID_; }
  void setUserID(int32_t value) { userID_ = value; }
  int32_t AppointmentID() const { return appointmentID_; }
  void setAppointmentID(int32_t value) { appointmentID_ = value; }
  int32_t docketId() const { return docketId_; }
  void setDocketId(int32_t value) { docketId_ = value; }
  int32_t taskID() const { return taskID_; }
  void setTaskID(int32_t value) { taskID_ = value; }
  // Write-only: the task of a schedule row (getTaskIDFromScheduleIDNum)
  // becomes taskID, -1 when the schedule row has none.
  void setScheduleID(int32_t value);

  bool TestComment() const { return testComment_; }
  void setTestComment(bool value) { testComment_ = value; }
  bool ConvertStrToRTF() const { return convertStrToRTF_; }
  void setConvertStrToRTF(bool value) { convertStrToRTF_ = value; }
  bool ConvertCompanyNameToContactNameForContacts() const { return convertCompanyToContact_; }
  void setConvertCompanyNameToContactNameForContacts(bool value) {
    convertCompanyToContact_ = value;
  }
  // Write-only: False runs the lines of a multi-line value on, comma-separated.
  void setUseWordWrap(bool value) { useWordWrap_ = value; }

  qb::ListBox* ListBox() const { return listBox_; }
  void setListBox(qb::ListBox* box) { listBox_ = box; }
  qb::ListBox* ListBox2() const { return listBox2_; }
  void setListBox2(qb::ListBox* box) { listBox2_ = box; }
  RichTextBox* RTB() const { return rtb_; }
  void setRTB(RichTextBox* box) { rtb_ = box; }
  bool ShowListCategoryHeaders() const { return showListCategoryHeaders_; }
  void setShowListCategoryHeaders(bool value) { showListCategoryHeaders_ = value; }

  // ---- Operations ------------------------------------------------------------

  // Sets the seven item ids, companyID to taskID, to -1; nothing else.
  void resetAllItemIDs();

  // Builds the whole field table for ListType and fills ListBox with the
  // fields the user can pick: the sections in their fixed order, then the
  // firm's rows (into the table only). bypassListBox comes back True when
  // ListBox is not set and False when it is, whatever was passed;
  // clearListbox True empties ListBox first. An error in the middle leaves
  // the rows added so far.
  void createDefaultFieldListStructure(bool& bypassListBox, bool& clearListbox);
  // Appends the firm's rows to the table and, unless bypassListBox or
  // ListBox2 is not set, its lines to ListBox2 after "Insert your Letterhead"
  // (clearListbox empties ListBox2 first). The table is not emptied.
  void createAccountantFieldListStructure(bool& bypassListBox, bool& clearListbox);

  // The field name of the first row with this display name; the argument as
  // it came when there is none. The row found stays current.
  std::string getDBFieldNameFromDisplayFieldName(std::string& fieldDisplayName);
  // The display name of the first row with this field name; the argument as
  // it came when there is none. The row found stays current.
  std::string getDisplayFieldNameFromDBFieldName(std::string& fieldName);

  // What a list line (its ItemData) stands for: a date field's display name
  // with the default format, "(Contact Birthday, mmmm d yyyy)", any other
  // field's name. "" for a negative item (a header line). An unknown item
  // reads the row that was current before.
  std::string getDBFieldFromListItem(int32_t listItem);
  // The marker of a list line: "«Contact Gender»", a date field as
  // "«(Contact Birthday, mmmm d yyyy)»"; without brackets when includeBrackets
  // is False. "" for a negative item.
  std::string parseListItem(int32_t listItem, bool& includeBrackets);
  // Inserts the marker of a list line into RTB at its caret (SelStart) and
  // returns what the insertion returned; a header line inserts nothing and
  // gives Empty.
  Variant onListClick(int32_t& listItem);
  // "(Todays Date, <format>)" for a format of the table (1 to 14), bracketed
  // when includeBrackets; an index outside the table gives an empty format.
  std::string insertCurrentDateMergeField(int32_t& buttonKey, bool& includeBrackets);
  // Inserts "«(Todays Date, <format>)»" into RTB at its caret.
  Variant insertCurrentDate(int32_t& indexNum);

  // Normalises a template to today's field names and to the firm's country
  // and province: typed brackets "<<" ">>" become "«" "»", legacy names and
  // date words become current ones, regional markers become the firm's. The
  // replacements ignore case. "" after a failure.
  std::string convertProvinceFields(const std::string& text);

 protected:
  // The class's private operations, reachable by the engine's own parts.

  // True when the table held rows on entry. An empty table is built from
  // the ids set (appointment, else task, else time entry, else company or
  // contact) and the call still returns False: the next one returns True.
  bool verifyFieldListIsPopulated();

  // The catalogues that createDefaultFieldListStructure calls.
  void createCompanyInfoFieldListStructure(bool& bypassListBox);
  void createAppointmentInfoFieldListStructure(bool& bypassListBox);
  void createTaskInfoFieldListStructure(bool& bypassListBox);
  void createDocketInfoFieldListStructure(bool& bypassListBox);

  // A Canadian province or territory in its short form ("Alta." gives "AB")
  // or its long form ("QC" gives "Quebec"); any other text as it came.
  std::string getAbbreviatedProvince(const std::string& province);
  std::string getFullProvinceString(const std::string& province);
  // The contact with the spouse as one name, "Ann & Bob Lee", or surname
  // first, "Lee, Ann & Bob". "" without a connected store or a contact row.
  // A valid contactID other than the object's becomes the object's, and the
  // contact recordset is opened on it.
  std::string getContactAndSpouseName(int32_t contactID, bool lastNameFirst);
  // The time between two date serials in whole minutes, as a duration text;
  // the order of the two does not matter.
  std::string getTimeDurationFieldValue(double timeFrom, double timeTo);
  // Today (the host's clock) formatted with format, "mmm d, yyyy" when it is
  // blank; through convertToRTF when ConvertStrToRTF is True.
  std::string getTodaysDate(const std::string& format);
  // A value as it goes into rich text: each line break gets "\par " ahead
  // of it (with UseWordWrap False, ", " so the lines run on); characters
  // outside ASCII become RTF escapes.
  std::string convertToRTF(const std::string& value);
  // Closes the kept recordsets that are open and sets all eleven handles to
  // -1.
  void closeMergeRecordsets();

  // The kept recordsets of a merge, -1 when closed.
  RecordsetHandle clientInfoRecordset_ = -1;
  RecordsetHandle companyRecordset_ = -1;
  RecordsetHandle companyNotesRecordset_ = -1;
  RecordsetHandle contactRecordset_ = -1;
  RecordsetHandle contactNotesRecordset_ = -1;
  RecordsetHandle softwareRecordset_ = -1;
  RecordsetHandle firmRecordset_ = -1;
  RecordsetHandle firmUserRecordset_ = -1;
  RecordsetHandle appointmentRecordset_ = -1;
  RecordsetHandle taskRecordset_ = -1;
  RecordsetHandle docketRecordset_ = -1;

  // Read by convertToRTF; nothing assigns them, so they stay "" and 0.
  std::string rtfLineText_;
  int32_t rtfLinePosition_ = 0;

 private:
  friend class CatalogueBuilder;

  // The first row whose fromColumn holds name (any case) gives its toColumn;
  // name itself when no row does. The row found stays current.
  std::string translateName(const char* procedure, int32_t fromColumn, int32_t toColumn,
                            const std::string& name);
  // Reads RTB's caret, then inserts the text there, as a list pick does.
  Variant insertAtCaret(const char* procedure, const std::function<std::string()>& text);

  FieldListClass fieldList_;
  int32_t fieldListCounter_ = 0;
  int32_t mergeFieldListUse_ = fieldListUseMerge;
  int32_t listType_ = 0;
  std::string templateText_;
  int32_t companyID_ = -1;
  int32_t contactID_ = -1;
  int32_t firmID_ = -1;
  int32_t userID_ = -1;
  int32_t appointmentID_ = -1;
  int32_t docketId_ = -1;
  int32_t taskID_ = -1;
  bool testComment_ = false;
  bool convertStrToRTF_ = true;
  bool convertCompanyToContact_ = false;
  bool useWordWrap_ = true;
  qb::ListBox* listBox_ = nullptr;
  qb::ListBox* listBox2_ = nullptr;
  RichTextBox* rtb_ = nullptr;
  bool showListCategoryHeaders_ = true;
};

}  // namespace qb
