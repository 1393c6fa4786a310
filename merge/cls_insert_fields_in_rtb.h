#pragma once
// clsInsertFieldsInRTB: the merge field engine. It offers the user a list of
// merge fields (ListBox for the client's, ListBox2 for the firm's), puts a
// field marker into a rich text box when the user picks one, and expands the
// markers of a template with one client's data.
//
// The class is split over files by concern: its model (field_model.cpp),
// the catalogues, the template check (template_check.cpp), the merge passes
// (merge_passes.cpp, with the sweeps in marker_sweep.* and the removal of
// unfound markers in unfound_markers.*), field resolution
// (field_resolution.cpp, field_values.cpp), write-back (write_back.cpp), the
// value conversions and the display texts (display_text.cpp).
//
// A merge, as a host drives it: set the item ids and flags, optionally check
// the template (testRTBComment), initializeDataRecordsetsForSingleDocMerge,
// set TemplateText, parseRTBComment; the result is the finished text.
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
#include <memory>
#include <string>

#include "merge/merge_field_types.h"
#include "services/controls/event.h"
#include "services/runtime/variant.h"
#include "services/store/database_reference.h"
#include "services/util/field_list_class.h"

namespace qb {

class ListBox;
class RichTextBox;
class CatalogueBuilder;
class MarkerKeys;

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

  // ---- Templates -----------------------------------------------------------

  // Raised by testRTBComment, when messages are wanted, with the message of
  // the first error of the template.
  Event<void(std::string& message)> testErrorComment;

  // Checks a template's markers: brackets paired, date markers with their
  // round brackets and one of the fourteen formats, bodies of at most 40
  // characters, names of the field table (unless skipFieldTest). True when
  // the template has an error; the check stops at the first, so a call
  // raises testErrorComment at most once (only with showMessages). The
  // caller's text is left as it was. useRichBrackets looks at the brackets
  // as RTF source writes them (\'ab, \'bb) and at no others.
  bool testRTBComment(std::string& text, bool useRichBrackets, bool showMessages,
                      bool skipFieldTest);

  // The finished text of TemplateText: normalised, every marker of a field
  // replaced by its value (the sample in test mode), every marker left
  // removed. TemplateText stays as it was. With an empty field table (no
  // item id set) the markers stay.
  std::string parseRTBComment();
  // TemplateText as the passes read it: normalised, and for a contact
  // without a company "«Company Name»" as "«Contact Display Name»" when the
  // class is asked to. For a host that checks what a merge reads.
  std::string mergedTemplateSource() { return prepareTemplate(); }
  // Removes the markers no sweep replaced: first those in plain brackets;
  // only when there were none, those in RTF source form, which leave their
  // last three characters ("'bb") behind. Compares exactly. A bracket that
  // opens and never closes ends the removal there, the rest of the text as
  // it is. Does nothing when the field table is empty. Always False.
  bool replaceUnfoundMergeFieldsWithBlanks(std::string& text);
  // Returns the text as it came: blank RTF lines are kept.
  std::string removeBlankLinesFromRTFText(std::string& text);

  // ---- Field values --------------------------------------------------------

  // Opens the recordsets of the items set (the lock allows writing when
  // MergeFieldListUse is 5) and builds the field table for them, also
  // without a connected store. The way to move a merge to other items.
  void initializeDataRecordsetsForSingleDocMerge();
  // The value of the first field with this name (fieldName) or display name,
  // as a marker without a date format receives it; "" when there is none.
  // An empty table is built first, and that call gives "".
  std::string getMergeDataFromFieldName(std::string fieldName);
  std::string getMergeDataFromDisplayName(std::string MergeDisplayName);
  // Writes an edited value back to the column behind a field (by its
  // fieldName), in the form its type asks for, committed at once; for a
  // merge opened with MergeFieldListUse 5. A computed field, an unknown name
  // and a date before 1900 write nothing. Always False.
  bool writeDataToField(const std::string& fieldName, const Variant& value);

  // ---- Display texts -------------------------------------------------------

  // The calendar's text of an appointment (ListType 5), a time entry (6) or
  // a task (8) for the user userID: the user's template or the built-in one,
  // merged for the item and framed by the item's text before and after. ""
  // when the item id is not set. Sets MergeFieldListUse to 1; for a company
  // item, contactID becomes the company's default contact.
  std::string createDisplayTextByID();
  // The title bar text of the item from the user's title template; "" when
  // the user has none.
  std::string createTitleBarTextByID();

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

  // True when the name is a field of the template language: "Todays Date" in
  // any case, or a display name of the field table.
  bool testStr(const std::string& fieldName);
  // The name with its plain brackets in RTF source form: "«" as \'ab, "»" as
  // \'bb.
  std::string convertFieldName(const std::string& name);
  // Replaces every occurrence of find (any case). When values go into rich
  // text, a blank goes ahead of each replacement unless the first occurrence
  // starts the text or follows a blank, so that a value never runs into a
  // control word standing before it. Always False.
  bool replaceText(std::string& text, const std::string& find, const std::string& replacement);
  // One sweep over the markers in one bracket pair, as the merge makes it:
  // today's date in its fourteen formats, then every field of the table in
  // its order, each marker found replaced by its value. sweepMarkers reads
  // the template once (MarkerSweep); sweepLiterally searches the text for
  // every marker of every field in turn, and serves where the one reading
  // can't be sure to agree (a display name holding a bracket).
  void sweepMarkers(std::string& text, const std::string& open, const std::string& close);
  void sweepLiterally(std::string& text, const std::string& open, const std::string& close);
  // The first three steps of a merge: TemplateText normalised, and "«Company
  // Name»" turned into "«Contact Display Name»" for a contact without a
  // company when the class is asked to.
  std::string prepareTemplate();

  // The value a marker of the row with this index receives, formatted by the
  // field's type (a date with format, or "mmm d, yyyy" when it is blank) and
  // made ready for rich text; the sample in test mode. "" for a blank value.
  std::string getDataFieldInfo(int32_t rowIndex, const std::string& format);
  // The value of the current row's field read from its recordset, with the
  // inheritance of a contact's business details, the spouse's name,
  // abbreviated provinces, coded columns and durations. fieldName may come
  // back shortened ("AbbreviatedProvince" to "Province").
  std::string getDataFieldFromRecordset(std::string& fieldName);

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

  // The recordset sources of the field table, in the order getDataFieldInfo
  // tests them.
  enum class Source {
    Contact,
    ContactNotes,
    Company,
    CompanyNotes,
    ClientInfo,
    Software,
    Firm,
    Appointment,
    Task,
    Docket
  };
  // A source's recordset, the item id that names its row and the key column
  // findRecord looks for it by, and the texts it is opened with on first use.
  struct SourceInfo {
    Source source;
    const char* name;  // the fieldSource of its rows
    RecordsetHandle clsInsertFieldsInRTB::*handle;
    int32_t clsInsertFieldsInRTB::*id;
    const char* key;
    const char* onFirstUse;  // one item; the id follows
    const char* wholeTable;  // a run over many clients; nullptr: none
    int32_t wholeTableLock;
  };
  static const SourceInfo* sourceNamed(const std::string& fieldSource);
  // Opens a source's recordset on its first use (the whole table in a run
  // over many clients).
  void openOnFirstUse(const SourceInfo& source);
  // The source's row of the current item: true when found. A key the
  // recordset has no column for counts as not found.
  bool findSourceRow(const SourceInfo& source);
  // The value of the first row whose column holds name, as
  // getMergeDataFromFieldName gives it.
  std::string mergeDataOfRow(const char* procedure, int32_t column, const std::string& name);
  // True when the contact inherits its company's details and the company's
  // row is found (after the merge's turns of the event pump).
  bool findInheritedCompany();
  // The value of a marker found by a sweep.
  std::string markerValue(int32_t key);
  // The index of the markers of the current field table, made again when the
  // table changed.
  const MarkerKeys& markerKeys();
  // The item kinds of the display texts (ListType 5, 6, 8); nullptr for
  // another list type.
  struct DisplayKind;
  static const DisplayKind* displayKindOf(int32_t listType);
  // The user's calendar setting of the kind (its prefix and suffix) when the
  // user has a settings row: rowFound tells.
  Variant readCalendarSetting(const DisplayKind* kind, const char* suffix, bool& rowFound);
  // A template made to fit the item's client: the company's name and the
  // contact's swapped at their first occurrence, and for a company item its
  // default contact taken as the contact.
  void fitTemplateToClient(std::string& text);
  // writeDataToField's write of one value to a column, in the form its type
  // asks for; nothing for a date before 1900 or an unknown type.
  void writeByType(RecordsetHandle handle, const std::string& column, int16_t type,
                   const Variant& value);

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
  std::unique_ptr<MarkerKeys> markerKeys_;
};

}  // namespace qb
