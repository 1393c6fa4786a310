// Adding documents: the file dialog, and the step that links one file into
// the selected category, which file drops share.

#include <string>
#include <vector>

#include "control/nv_document_quillbox.h"
#include "services/controls/platform.h"
#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/host/locale_reference.h"
#include "services/host/message_object.h"
#include "services/host/module_state.h"
#include "services/host/working_folder.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/runtime/strings.h"
#include "services/shell/common_dialog.h"
#include "services/util/file_utilities_class.h"

namespace qb {

namespace {
// Hide the read-only box, several files at once, the files must exist, the
// explorer-style dialog.
constexpr int32_t kAddFilesFlags =
    cdlOFNHideReadOnly | cdlOFNAllowMultiselect | cdlOFNFileMustExist | cdlOFNExplorer;
static_assert(kAddFilesFlags == 528900);
}  // namespace

void nvDocumentQuillbox::linkDocumentFile(const std::string& path) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-linkDocumentFile");
  ModuleState& module = moduleState();
  FileFactsOperation fileQueries;  // the file is asked once for all the tests
  bool isFile = false;
  bool isFolder = false;
  proc.step([&] { isFile = objectOf(module.fileUtilities).fileExists(path); });
  if (isFile) {
    std::shared_ptr<docQuillboxDocumentClass> document;
    int32_t category = -1;
    proc.step([&] { document = std::make_shared<docQuillboxDocumentClass>(); });
    // Asked afresh for each file: the selection may change during a batch.
    proc.step([&] { category = getCurrentlySelectedCategoryID(); });
    proc.step([&] { objectOf(document).setDocCategoryNum(category); });
    proc.step([&] {
      std::string file = path;
      objectOf(document).addDocument(file, category);
    });
    proc.step([&] { document.reset(); });
    return;
  }
  proc.step([&] { isFolder = objectOf(module.fileUtilities).folderExists(path); });
  std::string text;
  proc.step([&] {
    const std::string product = objectOf(module.localeReference).getProductLabel();
    text = isFolder ? "You are trying to add the folder '" + path +
                          "'.  You cannot add a folder to the " + product + " Quillbox."
                    : product + " could not add the file '" + path + "' to the Document Quillbox.";
  });
  proc.step([&] { screen().setMousePointer(0); });
  proc.step([&] {
    objectOf(module.msgboxClass)
        .showMessage(text, 4, objectOf(module.localeReference).getOwnerForm());
  });
  proc.step([&] { screen().setMousePointer(11); });
}

bool nvDocumentQuillbox::addDocumentFiles() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-addDocumentFiles");
  ModuleState& module = moduleState();
  auto dialog = std::make_unique<CommonDialog>();
  proc.step([&] {
    dialog->setInitDir(
        objectOf(module.fileUtilities)
            .addTrailingBackslash(objectOf(module.workingFolderReference).getDataFolder()) +
        "Data");
  });
  proc.step([&] { dialog->setDialogTitle("Select client files"); });
  proc.step([&] { dialog->setFilter("All Files (*.*)|*.*"); });
  proc.step([&] { dialog->setFilterIndex(0); });
  proc.step([&] { dialog->setFlags(kAddFilesFlags); });
  proc.step([&] {
    dialog->setHWndOwner(qb::objectOf(objectOf(module.localeReference).getOwnerForm()).hWnd());
  });
  bool chosen = false;
  proc.step([&] { chosen = dialog->ShowOpen(); });
  if (!chosen) return false;  // cancelled: the list is not touched

  std::string result;
  proc.step([&] { result = dialog->FileName(); });
  proc.step([&] { dialog.reset(); });
  proc.step([&] { screen().setMousePointer(11); });
  // The batch shares one file-facts operation: a dead share is waited on once.
  FileFactsOperation fileQueries;
  const std::string separator(1, '\0');
  if (InStr(result, separator) == 0) {
    proc.step([&] { linkDocumentFile(result); });
  } else {
    // The folder first, then the names; a refused item does not stop the
    // batch.
    std::vector<std::string> pieces;
    proc.step([&] { pieces = Split(result, separator); });
    for (size_t i = 0; i < pieces.size() && !proc.leaving(); ++i) {
      if (i > 0) {
        proc.step([&] {
          linkDocumentFile(objectOf(module.fileUtilities).addTrailingBackslash(pieces[0]) +
                           pieces[i]);
        });
      }
      proc.step([&] { DoEvents(); });
      proc.step([&] { DoEvents(); });
    }
  }
  proc.step([&] { screen().setMousePointer(0); });
  proc.step([&] { setupDocumentsDisplay(); });
  return false;
}

}  // namespace qb
