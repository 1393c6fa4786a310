#include "dialogs/frm_doc_properties.h"

#include "data/mod_database_functions.h"
#include "dialogs/missing_file_diagnosis.h"
#include "services/controls/control_array.h"
#include "services/controls/platform.h"
#include "services/errors/object_required.h"
#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/host/locale_reference.h"
#include "services/host/message_object.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/runtime/format.h"
#include "services/runtime/strings.h"
#include "services/shell/common_dialog.h"
#include "services/shell/shell.h"
#include "services/util/file_size_text.h"
#include "services/util/file_utilities_class.h"

namespace qb {

namespace {

std::string trace(const char* procedure) {
  return std::string("Orvanta.exe-frmDocProperties-") + procedure;
}

constexpr const char* kDateAddedFormat = "mmmm d, yyyy";
constexpr const char* kFileDateFormat = "ddd, mmm d yyyy  h:nn am/pm";
constexpr const char* kUnknown = "Unknown";

fileUtilitiesClass& files() { return objectOf(moduleState().fileUtilities); }

}  // namespace

frmDocProperties::frmDocProperties() : Form("frmDocProperties") {
  buildControls();
  wireEvents();
}

void frmDocProperties::wireEvents() {
  cmdBrowse_.Click = [this] { cmdBrowse_Click(); };
  cmdClose_.Click = [this] { cmdClose_Click(); };
  cmdFileProperties_.Click = [this] { cmdFileProperties_Click(); };
}

void frmDocProperties::buildControls() {
  setCaption("Document Properties");
  add(lblFileName_);
  add(IconImage_);
  add(PropertiesTab_);
  add(cmdClose_);
  PropertiesTab_.setTabs(2);
  PropertiesTab_.setTabCaption(0, "File Properties");
  PropertiesTab_.setTabCaption(1, "Missing File Info");

  // Tab 0: the link, the file, the read-only note and the file manager's
  // properties window.
  PropertiesTab_.place(fraLinkInformation_, 0);
  PropertiesTab_.place(fraFileInformation_, 0);
  fraLinkInformation_.setCaption("Link Information");
  fraFileInformation_.setCaption("File Information");
  TextBox* fields[] = {&txtField_,    &txtDateAdded_, &txtUserAdded_, &txtFileLocation_,
                       &txtFileSize_, &txtCreated_,   &txtModified_,  &txtAccessed_};
  for (size_t i = 0; i < std::size(fields); ++i) {
    Frame& group = i < 3 ? fraLinkInformation_ : fraFileInformation_;
    lblFieldCaption_[i].setCaption(kFieldCaptions[i]);
    group.add(lblFieldCaption_[i]);
    group.add(*fields[i]);
    fields[i]->setLocked(i != 0);
  }
  PropertiesTab_.place(Label16_, 0);
  PropertiesTab_.place(lblReadOnly_, 0);
  PropertiesTab_.place(cmdFileProperties_, 0);
  Label16_.setCaption("Note:");
  lblReadOnly_.setCaption("This file is read-only and cannot be modified.");
  cmdFileProperties_.setCaption("Show Window's File Property");

  // Tab 1: why the file is missing, Browse, and the fixed help.
  PropertiesTab_.place(Label9_, 1);
  PropertiesTab_.place(lblErrorDescription_, 1);
  PropertiesTab_.place(cmdBrowse_, 1);
  PropertiesTab_.place(fraHelp_, 1);
  Label9_.setCaption("File Not Found");
  cmdBrowse_.setCaption("Browse");
  fraHelp_.setCaption("How To Make Files Available To All Orvanta Users");
  static const char* const kHelp[kHelpLabels] = {
      "The easiest way to make all of your clients' files available to all Orvanta users on a "
      "network is to store all the files on a single network computer.",
      "You want to make sure that the network computer storing all of your clients' files is "
      "accessible from each of the computers running Orvanta. The next step is to map a network "
      "drive letter to the common network folder on each computer running Orvanta.",
      "Note:", "You must use the same mapped drive letter to the same location on all computers.",
      "More help on sharing client files: https://quillbox.example/help/shared-files"};
  for (int16_t i = 0; i < kHelpLabels; ++i) {
    lblHelp_[i].setCaption(kHelp[i]);
    fraHelp_.add(lblHelp_[i]);
  }
  cmdClose_.setCaption("Close");
}

Label& frmDocProperties::lblFieldCaption(int16_t index) {
  return controlAt(lblFieldCaption_, index);
}

TextBox& frmDocProperties::txtField(int16_t index) { return onlyControl(txtField_, index); }

Label& frmDocProperties::lblHelp(int16_t index) { return controlAt(lblHelp_, index); }

void frmDocProperties::Initialize(
    const std::shared_ptr<docQuillboxDocumentClass>& refDocumentClass) {
  Procedure proc(trace("Initialize"));
  ModuleState& module = moduleState();
  {
    // The file is asked once for all the facts the dialog shows.
    FileFactsOperation fileQueries;
    proc.step([&] { refDocumentClass_ = refDocumentClass; });
    proc.step([&] { screen().setMousePointer(11); });
    proc.step([&] { PropertiesTab_.setTab(0); });
    proc.step(
        [&] { objectOf(objectOf(module.localeReference).getFormHelper()).prepareForm(*this); });
    proc.step([&] {
      workingPath_ = objectOf(refDocumentClass_).documentPath();
      computerName_ = refDocumentClass_->hostComputerName();
    });
    proc.step([&] { lblFileName_.setCaption(objectOf(refDocumentClass_).documentName()); });
    proc.step([&] { IconImage_.setPicture(objectOf(refDocumentClass_).largeIconPicture()); });
    proc.step([&] {
      txtDateAdded_.setText(Format(objectOf(refDocumentClass_).dateAdded(), kDateAddedFormat));
    });
    proc.step([&] {
      txtUserAdded_.setText(
          modDatabaseFunctions::getUserNameFromUserID(objectOf(refDocumentClass_).addedByUserID()));
    });
    proc.step([&] { txtField_.setText(objectOf(refDocumentClass_).documentName()); });
    proc.step([&] {
      if (files().fileExists(workingPath_)) {
        hideMissingFileInfo();
      } else {
        showMissingFileInfo();
      }
    });
  }
  proc.step([&] { screen().setMousePointer(0); });
  proc.step([&] { Show(1, objectOf(module.localeReference).getOwnerForm()); });
}

void frmDocProperties::showFileFacts() {
  fileUtilitiesClass& fileUtilities = files();
  txtFileLocation_.setText(workingPath_);
  txtFileSize_.setText(megabytesText(fileUtilities.getFileSize(workingPath_)) + " Mbytes");
  txtCreated_.setText(
      Format(fileUtilities.getFileDate(workingPath_, fileDateCreated, true), kFileDateFormat));
  txtModified_.setText(
      Format(fileUtilities.getFileDate(workingPath_, fileDateLastModified, true), kFileDateFormat));
  txtAccessed_.setText(
      Format(fileUtilities.getFileDate(workingPath_, fileDateLastAccessed, true), kFileDateFormat));
}

void frmDocProperties::hideMissingFileInfo() {
  Procedure proc(trace("hideMissingFileInfo"));
  proc.step([&] { PropertiesTab_.setTabVisible(1, false); });
  proc.step([&] { showFileFacts(); });
  // Only the note's text follows the file here; its "Note:" stays as designed.
  proc.step([&] { lblReadOnly_.setVisible(!files().isFileWritable(workingPath_)); });
}

void frmDocProperties::showMissingFileInfo() {
  Procedure proc(trace("showMissingFileInfo"));
  proc.step([&] { PropertiesTab_.setTabVisible(1, true); });
  proc.step([&] { PropertiesTab_.setTab(1); });
  proc.step([&] {
    txtFileLocation_.setText(workingPath_);
    for (TextBox* unknown : {&txtFileSize_, &txtCreated_, &txtModified_, &txtAccessed_})
      unknown->setText(kUnknown);
    lblReadOnly_.setVisible(false);
  });
  proc.step([&] {
    MissingFileState state = diagnoseMissingFile(files(), workingPath_, computerName_);
    lblErrorDescription_.setCaption(missingFileDescription(state, computerName_));
    cmdBrowse_.setVisible(missingFileCanBrowse(state));
  });
}

void frmDocProperties::cmdBrowse_Click() {
  Procedure proc(trace("cmdBrowse_Click"));
  CommonDialog dialog;
  proc.step([&] {
    fileUtilitiesClass& fileUtilities = files();
    std::string folder = fileUtilities.getFolderFromPath(workingPath_);
    dialog.setInitDir(fileUtilities.folderExists(folder)
                          ? folder
                          : fileUtilities.getSpecialFolder(Control::hWnd(), 5));
  });
  proc.step([&] {
    dialog.setDialogTitle("Find Document File");
    dialog.setFilter("All Files (*.*)|*.*");
    dialog.setFilterIndex(1);
    dialog.setFlags(cdlOFNFileMustExist);
    dialog.setHWndOwner(Control::hWnd());
    dialog.setFileName(files().getFileNameFromPath(workingPath_));
  });
  bool chosen = false;
  proc.step([&] { chosen = dialog.ShowOpen(); });
  if (!chosen) return;

  bool sameName = false;
  proc.step([&] {
    sameName = UCase(files().getFileNameFromPath(dialog.FileName())) ==
               UCase(files().getFileNameFromPath(workingPath_));
  });
  if (!sameName) {
    // Only the folder may change, never the name.
    proc.step([&] {
      objectOf(moduleState().msgboxClass)
          .showMessage(
              "You file you selected is not the same name as the one you are searching "
              "for.",
              3, this);
    });
    return;
  }
  FileFactsOperation fileQueries;
  proc.step([&] { workingPath_ = files().normalizeFilePath(dialog.FileName()); });
  proc.step([&] { showFileFacts(); });
  // Unlike the opening, both the note and its text follow the file here.
  proc.step([&] {
    const bool readOnly = !files().isFileWritable(workingPath_);
    Label16_.setVisible(readOnly);
    lblReadOnly_.setVisible(readOnly);
  });
  proc.step([&] { lblErrorDescription_.setCaption(kFileLocationFixed); });
  proc.step([&] { cmdBrowse_.setVisible(false); });
  proc.step([&] { PropertiesTab_.setTab(0); });
}

void frmDocProperties::saveChanges() {
  Procedure proc(trace("saveChanges"));
  // The name is taken as typed, an empty one too.
  proc.step([&] { objectOf(refDocumentClass_).setDocumentName(txtField_.Text()); });
  proc.step([&] { objectOf(refDocumentClass_).setDocumentPath(workingPath_); });
  proc.step([&] {
    bool saved = false;
    objectOf(refDocumentClass_).saveDocument(saved);
  });
}

void frmDocProperties::cmdClose_Click() {
  Procedure proc(trace("cmdClose_Click"));
  // Close always writes, also when nothing changed.
  proc.step([&] { saveChanges(); });
  proc.step([&] { Unload(); });
}

void frmDocProperties::cmdFileProperties_Click() {
  Procedure proc(trace("cmdFileProperties_Click"));
  proc.step([&] {
    SHELLEXECUTEINFO info;
    info.cbSize = 60;
    info.fMask = 1100;  // invoke the verb's handler, keep the process, no error window
    info.hwnd = Control::hWnd();
    info.lpVerb = "properties";
    info.lpFile = workingPath_;
    shell().ShellExecuteEx(info);  // the answer is not looked at
  });
}

}  // namespace qb
