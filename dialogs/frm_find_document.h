#pragma once
// frmFindDocument: the modal dialog that searches the document links of one
// client or of all clients by text, lists what it found, and hands the
// chosen document back: the caller reads cancelFlag, DocumentIDFound,
// CompanyIDFound and ContactIDFound. The search reads the rows of Documents
// and compares in memory (find_match.h); no text reaches SQL. It also opens
// the desktop's own file search. Every procedure traces as
// "Orvanta.exe-frmFindDocument-<procedure>".

#include <array>
#include <cstdint>
#include <string>

#include "services/controls/check_box.h"
#include "services/controls/combo_box.h"
#include "services/controls/command_button.h"
#include "services/controls/form.h"
#include "services/controls/frame.h"
#include "services/controls/label.h"
#include "services/controls/list_view.h"
#include "services/controls/option_button.h"
#include "services/controls/shade_line.h"
#include "services/controls/tab_control.h"
#include "services/controls/text_box.h"

namespace qb {

class Shell;

class frmFindDocument : public Form {
 public:
  frmFindDocument();

  bool cancelFlag() const { return cancelFlag_; }
  void setCancelFlag(bool value) { cancelFlag_ = value; }
  int32_t DocumentIDFound() const { return DocumentIDFound_; }
  void setDocumentIDFound(int32_t value) { DocumentIDFound_ = value; }
  int32_t CompanyIDFound() const { return CompanyIDFound_; }
  void setCompanyIDFound(int32_t value) { CompanyIDFound_ = value; }
  int32_t ContactIDFound() const { return ContactIDFound_; }
  void setContactIDFound(int32_t value) { ContactIDFound_ = value; }

  // Fills the dialog for the client (one id is the current client's, the
  // other negative) and shows it modally over the host's form. Returns the
  // document found through documentID, -1 when none was chosen. With the
  // store not connected the dialog shows empty and unprepared.
  void initializeFind(int32_t companyID, int32_t contactID, int32_t& documentID);
  void initializeFind(int32_t companyID, int32_t contactID);

  // The number of rows the last search found.
  int32_t rowsFound() const { return rowsFound_; }
  // The text of the field that matched last ("Data Found").
  const std::string& dataFound() const { return dataFound_; }

  // ---- Handlers ------------------------------------------------------------

  // Searches; a blank text is refused with a message.
  void cmdFind_Click();
  // Hands the selected result back and hides the form.
  void cmdGoTo_Click();
  // Hides the form; cancelFlag stays True.
  void cmdCancel_Click();
  // Index 3 (the views combo) sets the results' view.
  void cboField_Click(int16_t index);
  void cboField_KeyPress(int16_t index, int16_t& keyAscii);
  void cboField_GotFocus(int16_t index);
  void cboField_LostFocus(int16_t index);
  void txtField_GotFocus(int16_t index);
  void txtField_LostFocus(int16_t index);
  void FindResults_ColumnClick(ColumnHeader& header);
  void cmdSearchComputerFiles_Click();
  // Enter in the search text starts the search.
  void Form_KeyPress(int16_t& keyAscii);
  // The window's close box and Escape cancel.
  void userClose() override { cmdCancel_Click(); }

  // ---- Controls ------------------------------------------------------------

  ShadeLine& lblHeader() { return lblHeader_; }
  Frame& fraSearchCriteria() { return fraSearchCriteria_; }
  TabControl& FindTab() { return FindTab_; }
  ComboBox& cboField(int16_t index);  // 2 the field, 3 the views
  TextBox& txtField(int16_t index = 0);
  CheckBox& chkField(int16_t index);              // 0 whole phrase, 1 match case
  OptionButton& optSearchClients(int16_t index);  // 0 this client, 1 all clients
  Label& lblSearchField() { return lblSearchField_; }
  Label& lblSearchText() { return lblSearchText_; }
  Label& lblViews() { return lblViews_; }
  CommandButton& cmdFind() { return cmdFind_; }
  CommandButton& cmdSearchComputerFiles() { return cmdSearchComputerFiles_; }
  ListView& FindResults() { return FindResults_; }
  CommandButton& cmdGoTo() { return cmdGoTo_; }
  CommandButton& cmdCancel() { return cmdCancel_; }

 private:
  void buildControls();
  void wireEvents();
  void setupForm();
  void populateFieldsComboBox();
  void setupSearchResultsList();
  void populateViewsComboBox();
  void Search();
  void searchClients(int16_t mode);
  void findMatch(const std::string& text, const std::string& searchText, int16_t mode, bool& found);

  bool cancelFlag_ = false;
  int32_t DocumentIDFound_ = 0;
  int32_t CompanyIDFound_ = 0;
  int32_t ContactIDFound_ = 0;
  int32_t rowsFound_ = 0;
  std::string dataFound_;
  Shell* shellObject_ = nullptr;

  ShadeLine lblHeader_{"lblHeader"};
  Frame fraSearchCriteria_{"fraSearchCriteria"};
  TabControl FindTab_{"FindTab"};
  Label lblSearchField_{"lblSearchField"};
  Label lblSearchText_{"lblSearchText"};
  Label lblViews_{"lblViews"};
  ComboBox cboField2_{"cboField", 2};
  ComboBox cboField3_{"cboField", 3};
  TextBox txtField_{"txtField", 0};
  std::array<CheckBox, 2> chkField_{CheckBox{"chkField", 0}, CheckBox{"chkField", 1}};
  std::array<OptionButton, 2> optSearchClients_{OptionButton{"optSearchClients", 0},
                                                OptionButton{"optSearchClients", 1}};
  CommandButton cmdFind_{"cmdFind"};
  CommandButton cmdSearchComputerFiles_{"cmdSearchComputerFiles"};
  ListView FindResults_{"FindResults"};
  CommandButton cmdGoTo_{"cmdGoTo"};
  CommandButton cmdCancel_{"cmdCancel"};
};

}  // namespace qb
