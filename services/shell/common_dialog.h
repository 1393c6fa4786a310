#pragma once
// CommonDialog: the common file dialog object, as the control and the
// properties dialog set it up: initial folder, title, filter, filter index,
// flags, owner window, file name. ShowOpen shows the platform's open dialog
// through this thread's file dialog service (the GUI's is the desktop's file
// dialog; a test's acts as the user) and tells whether the user chose.
//
// The chosen name comes back in FileName in one of two forms: one path, or,
// for several files picked at once (flag cdlOFNAllowMultiselect), the folder
// and the file names separated by characters of code 0.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace qb {

// Flags of the open dialog.
constexpr int32_t cdlOFNHideReadOnly = 0x4;
constexpr int32_t cdlOFNAllowMultiselect = 0x200;
constexpr int32_t cdlOFNFileMustExist = 0x1000;
constexpr int32_t cdlOFNExplorer = 0x80000;

class CommonDialog {
 public:
  const std::string& InitDir() const { return initDir_; }
  void setInitDir(std::string value) { initDir_ = std::move(value); }
  const std::string& DialogTitle() const { return dialogTitle_; }
  void setDialogTitle(std::string value) { dialogTitle_ = std::move(value); }
  // Pairs of description and pattern, "|"-separated: "All Files (*.*)|*.*".
  const std::string& Filter() const { return filter_; }
  void setFilter(std::string value) { filter_ = std::move(value); }
  int16_t FilterIndex() const { return filterIndex_; }
  void setFilterIndex(int16_t value) { filterIndex_ = value; }
  int32_t Flags() const { return flags_; }
  void setFlags(int32_t value) { flags_ = value; }
  // The owner's window handle.
  int64_t hWndOwner() const { return hWndOwner_; }
  void setHWndOwner(int64_t value) { hWndOwner_ = value; }
  // Before ShowOpen the name offered; after it the choice.
  const std::string& FileName() const { return fileName_; }
  void setFileName(std::string value) { fileName_ = std::move(value); }

  // Shows the open dialog; false when the user cancelled (FileName then
  // stays as it was) or no file dialog service is installed.
  bool ShowOpen();

 private:
  std::string initDir_;
  std::string dialogTitle_;
  std::string filter_;
  int16_t filterIndex_ = 0;
  int32_t flags_ = 0;
  int64_t hWndOwner_ = 0;
  std::string fileName_;
};

// The file dialog service: shows the dialog for the object's settings, sets
// FileName to the choice and returns true, or returns false when the user
// cancelled.
using FileDialogService = std::function<bool(CommonDialog& dialog)>;
void installFileDialogService(FileDialogService service);

// The name result of several files: the folder, then each name, separated
// by characters of code 0.
std::string multipleFileResult(const std::string& folder, const std::vector<std::string>& names);

}  // namespace qb
