#include "dialogs/frm_edit_doc_category.h"

#include "services/controls/control_array.h"
#include "services/controls/platform.h"
#include "services/errors/object_required.h"
#include "services/errors/procedure.h"
#include "services/host/locale_reference.h"
#include "services/host/message_object.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/doc_quillbox_category_list_class.h"
#include "services/runtime/conversions.h"
#include "services/shell/folder_browser.h"
#include "services/util/general_utilities_class.h"

namespace qb {

namespace {

std::string trace(const char* procedure) {
  return std::string("Orvanta.exe-frmEditDocCategory-") + procedure;
}

FormHelper& formHelper() {
  return objectOf(objectOf(moduleState().localeReference).getFormHelper());
}

}  // namespace

frmEditDocCategory::frmEditDocCategory() : Form("frmEditDocCategory") {
  buildControls();
  wireEvents();
}

void frmEditDocCategory::buildControls() {
  add(lblHeader_);
  add(fraCategoryInformation_);
  add(fraFolderSynchronization_);
  add(cmdOK_);
  add(cmdCancel_);
  lblHeader_.setCaption("Edit Category");
  fraCategoryInformation_.setCaption("Category Information");
  fraFolderSynchronization_.setCaption("Folder Synchronization Options");
  static const char* const kLabels[] = {"Category Name:", "Create Category In:", "Description:"};
  Control* fields[] = {&txtField_[0], &cboField_, &txtField2_};
  for (size_t i = 0; i < lblField_.size(); ++i) {
    lblField_[i].setCaption(kLabels[i]);
    fraCategoryInformation_.add(lblField_[i]);
    fraCategoryInformation_.add(*fields[i]);
  }
  txtField2_.setMultiLine(true);
  lblFolderNote_.setCaption(
      "You can specify a folder on your computer or network which Orvanta will automatically "
      "show all the file contents in this category.");
  fraFolderSynchronization_.add(lblFolderNote_);
  fraFolderSynchronization_.add(txtField_[1]);
  fraFolderSynchronization_.add(cmdBrowse_);
  cmdBrowse_.setCaption("Browse...");
  cmdOK_.setCaption("OK");
  cmdCancel_.setCaption("Cancel");
}

void frmEditDocCategory::wireEvents() {
  for (int16_t index : {0, 1}) {
    TextBox& box = txtField(index);
    box.KeyPress = [this, index](int16_t& key) { txtField_KeyPress(index, key); };
    box.KeyUp = [this, index](int16_t key, int16_t shift) { txtField_KeyUp(index, key, shift); };
    box.GotFocus = [this, index] { txtField_GotFocus(index); };
    box.LostFocus = [this, index] { txtField_LostFocus(index); };
  }
  txtField2_.GotFocus = [this] { txtField2_GotFocus(0); };
  txtField2_.LostFocus = [this] { txtField2_LostFocus(0); };
  cboField_.KeyPress = [this](int16_t& key) { cboField_KeyPress(0, key); };
  cboField_.GotFocus = [this] { cboField_GotFocus(0); };
  cboField_.LostFocus = [this] { cboField_LostFocus(0); };
  cmdOK_.Click = [this] { cmdOK_Click(); };
  cmdCancel_.Click = [this] { cmdCancel_Click(); };
  cmdBrowse_.Click = [this] { cmdBrowse_Click(); };
  Unloaded = [this] { Form_Unload(); };
}

Label& frmEditDocCategory::lblField(int16_t index) { return controlAt(lblField_, index); }

TextBox& frmEditDocCategory::txtField(int16_t index) { return controlAt(txtField_, index); }

TextBox& frmEditDocCategory::txtField2(int16_t index) { return onlyControl(txtField2_, index); }

ComboBox& frmEditDocCategory::cboField(int16_t index) { return onlyControl(cboField_, index); }

// ---- Opening -----------------------------------------------------------------

void frmEditDocCategory::initialize(const std::shared_ptr<docQuillboxCategoryClass>& category) {
  Procedure proc(trace("initialize"));
  proc.step([&] { docQuillboxCategoryClass_ = category; });
  proc.step([&] { cancelFlag_ = false; });
  // The caption stands for a new and an existing category alike.
  proc.step([&] { setCaption("Add New Document Category"); });
  proc.step([&] { setupForm(); });
  proc.step([&] { screen().setMousePointer(0); });
  proc.step([&] { Show(1, objectOf(moduleState().localeReference).getOwnerForm()); });
}

void frmEditDocCategory::setupForm() {
  Procedure proc(trace("setupForm"));
  proc.step([&] { formHelper().prepareForm(*this); });
  proc.step([&] {
    docQuillboxCategoryClass& category = objectOf(docQuillboxCategoryClass_);
    txtField_[0].setText(category.categoryName());
    txtField_[1].setText(category.synchFolder());
    txtField2_.setText(category.categoryDescription());
  });
  proc.step([&] {
    // The folder of the merge documents can be neither typed over nor
    // browsed for.
    if (!objectOf(docQuillboxCategoryClass_).holdsMergeDocuments()) return;
    txtField_[1].setLocked(true);
    cmdBrowse_.setEnabled(false);
  });
  proc.step([&] { populateParentCategoriesComboBox(); });
}

void frmEditDocCategory::populateParentCategoriesComboBox() {
  Procedure proc(trace("populateParentCategoriesComboBox"));
  // For display only: saveChanges does not read the choice.
  proc.step([&] {
    docQuillboxCategoryClass& category = objectOf(docQuillboxCategoryClass_);
    docQuillboxCategoryListClass list;
    list.setCompanyIDNum(category.companyIDNum());
    list.setContactIDNum(category.contactIDNum());
    list.setComboBox(cboField_);
    list.populateComboBox();
  });
  proc.step([&] {
    objectOf(moduleState().generalUtilities)
        .selectComboItemByData(cboField_, objectOf(docQuillboxCategoryClass_).parentCategoryNum(),
                               true);
  });
}

// ---- Saving and leaving --------------------------------------------------------

bool frmEditDocCategory::saveChanges() {
  Procedure proc(trace("saveChanges"));
  bool saved = false;
  bool blank = false;
  proc.step([&] { blank = isBlankValue(Variant(txtField_[0].Text())); });
  if (blank) {
    proc.step([&] {
      objectOf(moduleState().msgboxClass).showMessage("You must enter a category name.", 3, this);
    });
    proc.step([&] { txtField_[0].SetFocus(); });
    return false;
  }
  proc.step([&] {
    docQuillboxCategoryClass& category = objectOf(docQuillboxCategoryClass_);
    category.setCategoryName(txtField_[0].Text());
    category.setSynchFolder(txtField_[1].Text());
    category.setCategoryDescription(txtField2_.Text());
  });
  proc.step([&] {
    objectOf(docQuillboxCategoryClass_).saveCategory();
    saved = true;
  });
  return saved;
}

void frmEditDocCategory::cmdOK_Click() {
  Procedure proc(trace("cmdOK_Click"));
  bool saved = false;
  proc.step([&] { saved = saveChanges(); });
  if (saved) proc.step([&] { Hide(); });
}

void frmEditDocCategory::cmdCancel_Click() {
  Procedure proc(trace("cmdCancel_Click"));
  proc.step([&] { cancelFlag_ = true; });
  proc.step([&] { Hide(); });
}

void frmEditDocCategory::cmdBrowse_Click() {
  Procedure proc(trace("cmdBrowse_Click"));
  std::optional<ShellFolder> folder;
  proc.step([&] {
    folder = BrowseForFolder(0, "Choose a folder that will be synchronized with this category",
                             BIF_RETURNONLYFSDIRS | BIF_EDITBOX, "");
  });
  if (!folder) return;  // cancelled: the folder box keeps what it had
  proc.step([&] {
    // A place with no path in the file system empties the box.
    txtField_[1].setText(isBlankValue(Variant(folder->Path)) ? "" : folder->Path);
  });
}

void frmEditDocCategory::Form_Unload() { Procedure proc(trace("Form_Unload")); }

// ---- Keys and focus ------------------------------------------------------------

void frmEditDocCategory::cboField_KeyPress(int16_t index, int16_t& keyAscii) {
  Procedure proc(trace("cboField_KeyPress"));
  proc.step([&] {
    keyAscii =
        objectOf(moduleState().generalUtilities).comboAutoComplete(cboField(index), keyAscii);
  });
}

void frmEditDocCategory::txtField_KeyPress(int16_t index, int16_t&) {
  Procedure proc(trace("txtField_KeyPress"));
  if (index != 1) return;
  proc.step([&] {
    if (!txtField_[1].Locked()) return;
    ModuleState& module = moduleState();
    objectOf(module.msgboxClass)
        .showMessage(
            "You cannot change the synchronization folder location because this category links "
            "to the folder which contains copies of all the merge documents created for this "
            "client by the " +
                objectOf(module.localeReference).getProductLabel() + " Pad.",
            10, this);
  });
}

void frmEditDocCategory::txtField_KeyUp(int16_t index, int16_t keyCode, int16_t shift) {
  Procedure proc(trace("txtField_KeyUp"));
  proc.step([&] { formHelper().controlKeyUp(txtField(index), keyCode, shift); });
}

// The focus handlers of txtField trace under the name of another handler,
// and keep it.
void frmEditDocCategory::txtField_GotFocus(int16_t index) {
  Procedure proc(trace("txtField2_KeyUp"));
  proc.step([&] { formHelper().controlGotFocus(txtField(index)); });
}

void frmEditDocCategory::txtField_LostFocus(int16_t index) {
  Procedure proc(trace("txtField2_KeyUp"));
  proc.step([&] { formHelper().controlLostFocus(txtField(index)); });
}

void frmEditDocCategory::txtField2_GotFocus(int16_t index) {
  Procedure proc(trace("txtField2_GotFocus"));
  proc.step([&] { formHelper().controlGotFocus(txtField2(index)); });
}

void frmEditDocCategory::txtField2_LostFocus(int16_t index) {
  Procedure proc(trace("txtField2_LostFocus"));
  proc.step([&] { formHelper().controlLostFocus(txtField2(index)); });
}

void frmEditDocCategory::cboField_GotFocus(int16_t index) {
  Procedure proc(trace("cboField_GotFocus"));
  proc.step([&] { formHelper().controlGotFocus(cboField(index)); });
}

void frmEditDocCategory::cboField_LostFocus(int16_t index) {
  Procedure proc(trace("cboField_LostFocus"));
  proc.step([&] { formHelper().controlLostFocus(cboField(index)); });
}

}  // namespace qb
