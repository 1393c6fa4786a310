#pragma once
// frmDocProperties: the modal dialog that shows one document link: its
// stored data, the facts of the file it points at, and, when the file is
// missing, why and what to do. The user can rename the link and, when the
// file has moved, point it at the file's new place (Browse: the folder may
// change, never the name). Close always saves; there is no cancel.
//
// Tab 0 "File Properties" shows the link and the file; tab 1 "Missing File
// Info" is there only while the file is missing, with one of the three
// explanations of missing_file_diagnosis.h. Every procedure traces as
// "Orvanta.exe-frmDocProperties-<procedure>".

#include <array>
#include <memory>
#include <string>

#include "services/controls/command_button.h"
#include "services/controls/form.h"
#include "services/controls/frame.h"
#include "services/controls/image_box.h"
#include "services/controls/label.h"
#include "services/controls/tab_control.h"
#include "services/controls/text_box.h"

namespace qb {

class docQuillboxDocumentClass;

class frmDocProperties : public Form {
 public:
  // The captions of the labels beside the fields, in order: the link's
  // name, date added and user, then the file's location, size and dates.
  static constexpr std::array<const char*, 8> kFieldCaptions = {
      "Document Name:", "Date Added:",   "File Added by:",      "File Location:",
      "File Size:",     "Date Created:", "Date Last Modified:", "Date Last Accessed:"};

  frmDocProperties();

  // Keeps the document, fills the dialog from it and its file, and shows it
  // modally over the host's form. Returns when the dialog has closed; the
  // document then holds what Close saved.
  void Initialize(const std::shared_ptr<docQuillboxDocumentClass>& refDocumentClass);

  // The path the dialog works on: the document's until Browse finds the file
  // elsewhere. It goes back to the document on Close.
  const std::string& workingPath() const { return workingPath_; }

  // ---- Handlers ------------------------------------------------------------

  // Lets the user look for the file under its name; a file of another name
  // is refused with a message.
  void cmdBrowse_Click();
  // Saves the name and the working path to the document, then unloads.
  void cmdClose_Click();
  // The file manager's own properties window for the working path.
  void cmdFileProperties_Click();
  // The window's close box and Escape close as Close does (and so save).
  void userClose() override { cmdClose_Click(); }

  // ---- Controls ------------------------------------------------------------

  TabControl& PropertiesTab() { return PropertiesTab_; }
  Frame& fraLinkInformation() { return fraLinkInformation_; }
  Frame& fraFileInformation() { return fraFileInformation_; }
  // The label beside each field, in the order of kFieldCaptions.
  Label& lblFieldCaption(int16_t index);
  TextBox& txtField(int16_t index = 0);  // 0: the display name, editable
  TextBox& txtDateAdded() { return txtDateAdded_; }
  TextBox& txtUserAdded() { return txtUserAdded_; }
  TextBox& txtFileLocation() { return txtFileLocation_; }
  TextBox& txtFileSize() { return txtFileSize_; }
  TextBox& txtCreated() { return txtCreated_; }
  TextBox& txtModified() { return txtModified_; }
  TextBox& txtAccessed() { return txtAccessed_; }
  Label& Label16() { return Label16_; }
  Label& lblReadOnly() { return lblReadOnly_; }
  CommandButton& cmdFileProperties() { return cmdFileProperties_; }
  Label& Label9() { return Label9_; }
  Label& lblErrorDescription() { return lblErrorDescription_; }
  CommandButton& cmdBrowse() { return cmdBrowse_; }
  Frame& fraHelp() { return fraHelp_; }
  // The help frame's texts, in order (the last one names the help site).
  Label& lblHelp(int16_t index);
  static constexpr int16_t kHelpLabels = 5;
  Label& lblFileName() { return lblFileName_; }
  ImageBox& IconImage() { return IconImage_; }
  CommandButton& cmdClose() { return cmdClose_; }

 private:
  void buildControls();
  void wireEvents();
  void saveChanges();
  void hideMissingFileInfo();
  void showMissingFileInfo();
  // The file's location, size and dates from the working path.
  void showFileFacts();

  std::shared_ptr<docQuillboxDocumentClass> refDocumentClass_;
  std::string workingPath_;
  std::string computerName_;

  TabControl PropertiesTab_{"PropertiesTab"};
  Frame fraLinkInformation_{"fraLinkInformation"};
  Frame fraFileInformation_{"fraFileInformation"};
  std::array<Label, 8> lblFieldCaption_{Label{"lblFieldCaption", 0}, Label{"lblFieldCaption", 1},
                                        Label{"lblFieldCaption", 2}, Label{"lblFieldCaption", 3},
                                        Label{"lblFieldCaption", 4}, Label{"lblFieldCaption", 5},
                                        Label{"lblFieldCaption", 6}, Label{"lblFieldCaption", 7}};
  TextBox txtField_{"txtField", 0};
  TextBox txtDateAdded_{"txtDateAdded"};
  TextBox txtUserAdded_{"txtUserAdded"};
  TextBox txtFileLocation_{"txtFileLocation"};
  TextBox txtFileSize_{"txtFileSize"};
  TextBox txtCreated_{"txtCreated"};
  TextBox txtModified_{"txtModified"};
  TextBox txtAccessed_{"txtAccessed"};
  Label Label16_{"Label16"};
  Label lblReadOnly_{"lblReadOnly"};
  CommandButton cmdFileProperties_{"cmdFileProperties"};
  Label Label9_{"Label9"};
  Label lblErrorDescription_{"lblErrorDescription"};
  CommandButton cmdBrowse_{"cmdBrowse"};
  Frame fraHelp_{"fraHelp"};
  std::array<Label, kHelpLabels> lblHelp_{Label{"lblHelp", 0}, Label{"lblHelp", 1},
                                          Label{"lblHelp", 2}, Label{"lblHelp", 3},
                                          Label{"lblHelp", 4}};
  Label lblFileName_{"lblFileName"};
  ImageBox IconImage_{"IconImage"};
  CommandButton cmdClose_{"cmdClose"};
};

}  // namespace qb
