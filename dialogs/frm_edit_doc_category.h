#pragma once
// frmEditDocCategory: the modal dialog in which a document category is
// named, described and tied to a folder, for a new category and an existing
// one alike. The caller prepares the category object (for a new one the
// client, the parent and the name "New Category") and reads cancelFlag when
// initialize returns. OK writes the fields into the object and saves it (a
// new category gets its id there); Cancel leaves the object untouched. The
// parent combo only shows where the category stands: moving a category is
// done by dragging it in the tree. For the category of the client's merge
// documents the folder can't be changed. Every procedure traces as
// "Orvanta.exe-frmEditDocCategory-<procedure>".

#include <array>
#include <cstdint>
#include <memory>

#include "services/controls/combo_box.h"
#include "services/controls/command_button.h"
#include "services/controls/form.h"
#include "services/controls/frame.h"
#include "services/controls/label.h"
#include "services/controls/shade_line.h"
#include "services/controls/text_box.h"

namespace qb {

class docQuillboxCategoryClass;

class frmEditDocCategory : public Form {
 public:
  frmEditDocCategory();

  // The caller's result: True when the user left by Cancel.
  bool cancelFlag() const { return cancelFlag_; }
  void setCancelFlag(bool value) { cancelFlag_ = value; }

  // Keeps the category, fills the dialog from it and shows it modally over
  // the host's form; returns when the dialog is hidden. The caption is
  // "Add New Document Category" and the header "Edit Category", for a new
  // category and an existing one alike.
  void initialize(const std::shared_ptr<docQuillboxCategoryClass>& category);

  // ---- Handlers ------------------------------------------------------------

  // Saves and hides the dialog; a blank name is refused and the dialog stays.
  void cmdOK_Click();
  // Hides the dialog with cancelFlag True; the category is not touched.
  void cmdCancel_Click();
  // The desktop's folder dialog; a folder chosen goes into the folder box.
  void cmdBrowse_Click();
  // Type-ahead in the parent combo.
  void cboField_KeyPress(int16_t index, int16_t& keyAscii);
  // On the locked folder box every key is answered with the reason.
  void txtField_KeyPress(int16_t index, int16_t& keyAscii);
  void txtField_KeyUp(int16_t index, int16_t keyCode, int16_t shift);
  void txtField_GotFocus(int16_t index);
  void txtField_LostFocus(int16_t index);
  void txtField2_GotFocus(int16_t index);
  void txtField2_LostFocus(int16_t index);
  void cboField_GotFocus(int16_t index);
  void cboField_LostFocus(int16_t index);
  void Form_Unload();
  // The window's close box and Escape cancel.
  void userClose() override { cmdCancel_Click(); }

  // ---- Controls ------------------------------------------------------------

  ShadeLine& lblHeader() { return lblHeader_; }
  Frame& fraCategoryInformation() { return fraCategoryInformation_; }
  Frame& fraFolderSynchronization() { return fraFolderSynchronization_; }
  // The labels beside the name, the parent and the description.
  Label& lblField(int16_t index);  // 0 to 2
  Label& lblFolderNote() { return lblFolderNote_; }
  TextBox& txtField(int16_t index);       // 0 the name, 1 the folder
  TextBox& txtField2(int16_t index = 0);  // the description (several lines)
  ComboBox& cboField(int16_t index = 0);  // the parent, for display
  CommandButton& cmdBrowse() { return cmdBrowse_; }
  CommandButton& cmdOK() { return cmdOK_; }
  CommandButton& cmdCancel() { return cmdCancel_; }

 private:
  void buildControls();
  void wireEvents();
  void setupForm();
  void populateParentCategoriesComboBox();
  bool saveChanges();

  std::shared_ptr<docQuillboxCategoryClass> docQuillboxCategoryClass_;
  bool cancelFlag_ = false;

  ShadeLine lblHeader_{"lblHeader"};
  Frame fraCategoryInformation_{"fraCategoryInformation"};
  Frame fraFolderSynchronization_{"fraFolderSynchronization"};
  std::array<Label, 3> lblField_{Label{"lblField", 0}, Label{"lblField", 1}, Label{"lblField", 2}};
  Label lblFolderNote_{"lblFolderNote"};
  std::array<TextBox, 2> txtField_{TextBox{"txtField", 0}, TextBox{"txtField", 1}};
  TextBox txtField2_{"txtField2", 0};
  ComboBox cboField_{"cboField", 0};
  CommandButton cmdBrowse_{"cmdBrowse"};
  CommandButton cmdOK_{"cmdOK"};
  CommandButton cmdCancel_{"cmdCancel"};
};

}  // namespace qb
