#include "dialogs/frm_find_document.h"

#include "data/mod_database_functions.h"
#include "dialogs/find_match.h"
#include "services/controls/control_array.h"
#include "services/controls/platform.h"
#include "services/errors/object_required.h"
#include "services/errors/procedure.h"
#include "services/host/locale_reference.h"
#include "services/host/message_object.h"
#include "services/host/module_state.h"
#include "services/host/working_folder.h"
#include "services/runtime/conversions.h"
#include "services/shell/shell.h"
#include "services/store/database_reference.h"
#include "services/util/file_utilities_class.h"
#include "services/util/general_utilities_class.h"

namespace qb {

namespace {

std::string trace(const char* procedure) {
  return std::string("Orvanta.exe-frmFindDocument-") + procedure;
}

DatabaseReference& store() { return objectOf(moduleState().databaseReference); }

FormHelper& formHelper() {
  return objectOf(objectOf(moduleState().localeReference).getFormHelper());
}

void showMessage(const std::string& text, int16_t style, OwnerForm* owner) {
  objectOf(moduleState().msgboxClass).showMessage(text, style, owner);
}

// The field choices: caption and item data; 0 tests the four columns.
struct FieldChoice {
  const char* caption;
  int32_t data;
};
constexpr FieldChoice kFields[] = {{"<All>", 0},
                                   {"Document Display Name", 1},
                                   {"Document File Name", 2},
                                   {"Document File Extension", 3},
                                   {"Document File Path", 4}};
// The views of the results: caption and the list's View.
constexpr FieldChoice kViews[] = {{"Details", lvwReport},
                                  {"List", lvwList},
                                  {"Large Icons", lvwIcon},
                                  {"Small Icons", lvwSmallIcon}};

}  // namespace

frmFindDocument::frmFindDocument() : Form("frmFindDocument") {
  buildControls();
  wireEvents();
}

void frmFindDocument::buildControls() {
  setCaption("Find Document");
  setKeyPreview(true);
  add(lblHeader_);
  add(FindTab_);
  add(cmdCancel_);
  lblHeader_.setCaption("Find Document");
  cmdCancel_.setCaption("Cancel");
  FindTab_.setTabs(2);
  FindTab_.setTabCaption(0, "Search Criteria");
  FindTab_.setTabCaption(1, "Search Results");

  FindTab_.place(fraSearchCriteria_, 0);
  fraSearchCriteria_.setCaption("Search by Criteria");
  for (Control* control : std::initializer_list<Control*>{
           &lblSearchField_, &cboField2_, &lblSearchText_, &txtField_, &chkField_[0], &chkField_[1],
           &optSearchClients_[0], &optSearchClients_[1], &cmdFind_})
    fraSearchCriteria_.add(*control);
  FindTab_.place(cmdSearchComputerFiles_, 0);
  lblSearchField_.setCaption("Search Field:");
  lblSearchText_.setCaption("Search Text:");
  chkField_[0].setCaption("Match Whole Phrase");
  chkField_[1].setCaption("Match Upper and Lower Case");
  optSearchClients_[0].setCaption("Search for Documents only for this client");
  optSearchClients_[1].setCaption("Search for Documents for all clients");
  optSearchClients_[0].setValue(true);
  cmdFind_.setCaption("Find");
  cmdSearchComputerFiles_.setCaption("Search For Files On Your Computer");

  FindTab_.place(lblViews_, 1);
  FindTab_.place(cboField3_, 1);
  FindTab_.place(FindResults_, 1);
  FindTab_.place(cmdGoTo_, 1);
  lblViews_.setCaption("Views:");
  cmdGoTo_.setCaption("Go To Record");
}

void frmFindDocument::wireEvents() {
  for (int16_t index : {2, 3}) {
    ComboBox& combo = cboField(index);
    combo.Click = [this, index] { cboField_Click(index); };
    combo.KeyPress = [this, index](int16_t& key) { cboField_KeyPress(index, key); };
    combo.GotFocus = [this, index] { cboField_GotFocus(index); };
    combo.LostFocus = [this, index] { cboField_LostFocus(index); };
  }
  txtField_.GotFocus = [this] { txtField_GotFocus(0); };
  txtField_.LostFocus = [this] { txtField_LostFocus(0); };
  KeyPress = [this](int16_t& key) { Form_KeyPress(key); };
  cmdFind_.Click = [this] { cmdFind_Click(); };
  cmdGoTo_.Click = [this] { cmdGoTo_Click(); };
  cmdCancel_.Click = [this] { cmdCancel_Click(); };
  cmdSearchComputerFiles_.Click = [this] { cmdSearchComputerFiles_Click(); };
  FindResults_.ColumnClick = [this](ColumnHeader& header) { FindResults_ColumnClick(header); };
}

ComboBox& frmFindDocument::cboField(int16_t index) {
  if (index == 3) return cboField3_;
  return onlyControl(cboField2_, static_cast<int16_t>(index - 2));
}

TextBox& frmFindDocument::txtField(int16_t index) { return onlyControl(txtField_, index); }

CheckBox& frmFindDocument::chkField(int16_t index) { return controlAt(chkField_, index); }

OptionButton& frmFindDocument::optSearchClients(int16_t index) {
  return controlAt(optSearchClients_, index);
}

// ---- Opening -----------------------------------------------------------------

void frmFindDocument::initializeFind(int32_t companyID, int32_t contactID, int32_t& documentID) {
  Procedure proc(trace("initializeFind"));
  proc.step([&] { screen().setMousePointer(11); });
  proc.step([&] {
    cancelFlag_ = true;
    DocumentIDFound_ = -1;
  });
  proc.step([&] {
    if (!store().isConnected()) return;
    // The two ids stand for the client while the dialog searches.
    CompanyIDFound_ = companyID;
    ContactIDFound_ = contactID;
    setupForm();
  });
  proc.step([&] { screen().setMousePointer(0); });
  proc.step([&] { Show(1, objectOf(moduleState().localeReference).getOwnerForm()); });
  documentID = DocumentIDFound_;
}

void frmFindDocument::initializeFind(int32_t companyID, int32_t contactID) {
  int32_t documentID = -1;
  initializeFind(companyID, contactID, documentID);
}

void frmFindDocument::setupForm() {
  Procedure proc(trace("setupForm"));
  proc.step([&] { formHelper().prepareForm(*this); });
  proc.step([&] { cmdGoTo_.setEnabled(false); });
  proc.step([&] { populateFieldsComboBox(); });
  proc.step([&] { setupSearchResultsList(); });
  proc.step([&] { populateViewsComboBox(); });
  proc.step([&] { rowsFound_ = 0; });
  proc.step([&] { FindTab_.setTab(0); });
}

void frmFindDocument::populateFieldsComboBox() {
  Procedure proc(trace("populateFieldsComboBox"));
  proc.step([&] {
    cboField2_.Clear();
    for (const FieldChoice& field : kFields) {
      cboField2_.AddItem(field.caption);
      cboField2_.setItemData(cboField2_.NewIndex(), field.data);
    }
    cboField2_.setListIndex(0);
  });
}

void frmFindDocument::setupSearchResultsList() {
  Procedure proc(trace("setupSearchResultsList"));
  proc.step([&] {
    ColumnHeaderCollection& columns = FindResults_.ColumnHeaders();
    columns.Clear();
    columns.Add(0, "", "Name", 2200);
    columns.Add(0, "", "ID", 0);  // the DocumentID, hidden
    columns.Add(0, "", "Data Found", 2375);
    columns.Add(0, "", "Client Name", 2000);
    FindResults_.setView(lvwReport);
  });
}

void frmFindDocument::populateViewsComboBox() {
  Procedure proc(trace("populateViewsComboBox"));
  proc.step([&] {
    cboField3_.Clear();
    for (const FieldChoice& view : kViews) {
      cboField3_.AddItem(view.caption);
      cboField3_.setItemData(cboField3_.NewIndex(), view.data);
    }
    cboField3_.setListIndex(0);
  });
}

// ---- Searching ---------------------------------------------------------------

void frmFindDocument::cmdFind_Click() {
  Procedure proc(trace("cmdFind_Click"));
  bool blank = false;
  proc.step([&] { blank = isBlankValue(Variant(txtField_.Text())); });
  if (blank) {
    proc.step([&] {
      showMessage("You must enter a search criteria in the 'Search Text' field", 10, this);
    });
    proc.step([&] { txtField_.SetFocus(); });
    return;
  }
  proc.step([&] { Search(); });
  proc.step([&] {
    if (rowsFound_ < 1) {
      cmdGoTo_.setEnabled(false);
      showMessage("There are no records that match your criteria.", 15, this);
      return;
    }
    cmdGoTo_.setEnabled(true);
    ListItem& first = FindResults_.ListItems().item(1);
    FindResults_.setSelectedItem(&first);
    first.setSelected(true);
    FindTab_.setTab(1);
  });
}

void frmFindDocument::Search() {
  Procedure proc(trace("Search"));
  proc.step([&] { rowsFound_ = 0; });
  proc.step([&] { FindResults_.ListItems().Clear(); });
  proc.step(
      [&] { searchClients(findMatchMode(chkField_[0].Value() == 1, chkField_[1].Value() == 1)); });
}

void frmFindDocument::searchClients(int16_t mode) {
  Procedure proc(trace("searchClients"));
  std::string searchText;
  proc.step([&] { searchText = txtField_.Text(); });  // as typed, not trimmed
  bool connected = false;
  proc.step([&] { connected = store().isConnected(); });
  if (!connected) return;

  std::string sql;
  proc.step([&] {
    if (!optSearchClients_[0].Value()) {
      sql = "SELECT Documents.* FROM Documents;";
    } else if (CompanyIDFound_ >= 0) {
      sql = "SELECT Documents.* FROM Documents WHERE CompanyIDNum = " +
            std::to_string(CompanyIDFound_) + ";";
    } else if (ContactIDFound_ >= 0) {
      sql = "SELECT Documents.* FROM Documents WHERE ContactIDNum = " +
            std::to_string(ContactIDFound_) + ";";
    }
  });
  RecordsetHandle rs = 0;
  if (!proc.step([&] { rs = store().openRecordset(sql, adOpenKeyset, adLockReadOnly); })) return;

  proc.step([&] {
    DatabaseReference& db = store();
    fileUtilitiesClass files;
    auto text = [&](const char* field) { return toText(db.getFieldValue(rs, Variant(field))); };
    for (bool more = db.moveFirstRecord(rs); more && !db.isEndOfRecordset(rs);
         more = db.moveNextRecord(rs)) {
      const int32_t field = cboField2_.ItemData(cboField2_.ListIndex());
      bool found = false;
      switch (field) {
        case 1:
          findMatch(text("DocIconName"), searchText, mode, found);
          break;
        case 2:
          findMatch(text("DocName"), searchText, mode, found);
          break;
        case 3:
          findMatch(files.getFileExtension(text("DocFileName")), searchText, mode, found);
          break;
        case 4:
          findMatch(text("DocPath"), searchText, mode, found);
          break;
        default:
          // The four columns in order; the first match ends the test.
          findMatch(text("DocIconName"), searchText, mode, found);
          if (!found) findMatch(text("DocName"), searchText, mode, found);
          if (!found)
            findMatch(files.getFileExtension(text("DocFileName")), searchText, mode, found);
          if (!found) findMatch(text("DocPath"), searchText, mode, found);
          break;
      }
      if (!found) continue;

      ++rowsFound_;
      ListItem& item = FindResults_.ListItems().Add(0, "", text("DocIconName"));
      item.ListSubItems().Add(1, "", text("DocumentID"));
      item.ListSubItems().Add(2, "", dataFound_);
      const Variant company = db.getFieldValue(rs, Variant("CompanyIDNum"));
      const Variant contact = db.getFieldValue(rs, Variant("ContactIDNum"));
      if (!isBlankValue(company) && CLng(company) >= 0) {
        item.ListSubItems().Add(3, "",
                                modDatabaseFunctions::getCompanyNameFromCompanyID(CLng(company)));
      } else if (!isBlankValue(contact) && CLng(contact) >= 0) {
        item.ListSubItems().Add(3, "",
                                modDatabaseFunctions::getDisplayNameFromContactID(CLng(contact)));
      }
    }
  });
  proc.step([&] { store().closeRecordset(rs); });
}

void frmFindDocument::findMatch(const std::string& text, const std::string& searchText,
                                int16_t mode, bool& found) {
  found = findMatchText(text, searchText, mode);
  if (found) dataFound_ = text;
}

// ---- Results -----------------------------------------------------------------

void frmFindDocument::cmdGoTo_Click() {
  Procedure proc(trace("cmdGoTo_Click"));
  ListItem* selected = nullptr;
  proc.step([&] { selected = FindResults_.SelectedItem(); });
  if (selected == nullptr) {
    proc.step(
        [&] { showMessage("You must select an item from the list of search results.", 4, this); });
    return;
  }
  proc.step([&] { DocumentIDFound_ = CLng(Variant(selected->SubItems(1))); });
  proc.step([&] {
    CompanyIDFound_ = modDatabaseFunctions::getCompanyIDFromDocumentID(DocumentIDFound_);
  });
  proc.step([&] {
    ContactIDFound_ = modDatabaseFunctions::getContactIDFromDocumentID(DocumentIDFound_);
  });
  proc.step([&] { cancelFlag_ = false; });
  proc.step([&] { Hide(); });
}

void frmFindDocument::cmdCancel_Click() {
  Procedure proc(trace("cmdCancel_Click"));
  proc.step([&] { Hide(); });
}

void frmFindDocument::cboField_Click(int16_t index) {
  Procedure proc(trace("cboField_Click"));
  if (index != 3) return;
  proc.step([&] {
    FindResults_.setView(static_cast<int16_t>(cboField3_.ItemData(cboField3_.ListIndex())));
  });
}

void frmFindDocument::cboField_KeyPress(int16_t index, int16_t& keyAscii) {
  Procedure proc(trace("cboField_KeyPress"));
  proc.step([&] {
    keyAscii =
        objectOf(moduleState().generalUtilities).comboAutoComplete(cboField(index), keyAscii);
  });
}

void frmFindDocument::cboField_GotFocus(int16_t index) {
  Procedure proc(trace("cboField_GotFocus"));
  proc.step([&] { formHelper().controlGotFocus(cboField(index)); });
}

void frmFindDocument::cboField_LostFocus(int16_t index) {
  Procedure proc(trace("cboField_LostFocus"));
  proc.step([&] { formHelper().controlLostFocus(cboField(index)); });
}

void frmFindDocument::txtField_GotFocus(int16_t index) {
  Procedure proc(trace("txtField_GotFocus"));
  proc.step([&] { formHelper().controlGotFocus(txtField(index)); });
}

void frmFindDocument::txtField_LostFocus(int16_t index) {
  Procedure proc(trace("txtField_LostFocus"));
  proc.step([&] { formHelper().controlLostFocus(txtField(index)); });
}

void frmFindDocument::FindResults_ColumnClick(ColumnHeader& header) {
  Procedure proc(trace("FindResults_ColumnClick"));
  // By text, the hidden ID column too.
  proc.step([&] {
    const int16_t key = static_cast<int16_t>(header.Index() - 1);
    if (FindResults_.Sorted() && FindResults_.SortKey() == key) {
      FindResults_.setSortOrder(static_cast<int16_t>(1 - FindResults_.SortOrder()));
    } else {
      FindResults_.setSortOrder(lvwAscending);
      FindResults_.setSortKey(key);
    }
  });
  proc.step([&] { FindResults_.setSorted(true); });
}

void frmFindDocument::cmdSearchComputerFiles_Click() {
  // The trace name is the column handler's, and stays so.
  Procedure proc(trace("FindResults_ColumnClick"));
  proc.step([&] {
    if (shellObject_ == nullptr) shellObject_ = &shell();
  });
  proc.step([&] {
    // The file manager opens on the firm's "Data" folder, else on the data
    // folder itself.
    fileUtilitiesClass files;
    const std::string dataFolder = objectOf(moduleState().workingFolderReference).getDataFolder();
    const std::string data = files.addTrailingBackslash(dataFolder) + "Data";
    shellObject_->FindFiles(files.folderExists(data) ? data : dataFolder);
  });
}

void frmFindDocument::Form_KeyPress(int16_t& keyAscii) {
  Procedure proc(trace("Form_KeyPress"));
  proc.step([&] {
    if (keyAscii != 13) return;
    auto* box = dynamic_cast<TextBox*>(ActiveControl());
    if (box != nullptr && box->Name() == "txtField" && box->Index() == 0) cmdFind_Click();
  });
}

}  // namespace qb
