// Opening the selected documents: the walk over the selected rows, the
// question for a file in use, the properties dialog for a file that is gone,
// the host's merge editor for its own documents and the desktop's default
// application for every other file.

#include <memory>
#include <string>

#include "control/nv_document_quillbox.h"
#include "dialogs/frm_doc_properties.h"
#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/host/locale_reference.h"
#include "services/host/message_object.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/runtime/conversions.h"
#include "services/shell/shell.h"
#include "services/util/file_utilities_class.h"

namespace qb {

namespace {

// The host's document type for its own merge documents.
constexpr int16_t kMergeDocumentType = 7;
// SW_SHOWDEFAULT: the application shows its window as it sees fit.
constexpr int32_t kShowDefault = 10;

std::string inUseQuestion(const std::string& name) {
  return "The file " + name +
         " is already in use by another user.  Are you sure you want continue opening this "
         "file?\r\n\r\nNote: Most files cannot be opened by more than one person.  However, some "
         "files can be opened in multi-user environments, for example, some database and "
         "accounting software data files.  Make sure you know if this file can be opened by "
         "more than one user.";
}

}  // namespace

bool nvDocumentQuillbox::openSelectedDocumentsFiles() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-openSelectedDocumentsFiles");
  ModuleState& module = moduleState();
  // One question per file for the whole walk; a dead share is waited on once.
  FileFactsOperation fileQueries;
  int16_t count = 0;
  proc.step([&] { count = CInt(Variant(lvDocuments_.ListItems().Count())); });
  for (int16_t i = count; i >= 1 && !proc.leaving(); --i) {
    bool selected = false;
    proc.step([&] {
      // A dialog opened for an earlier row may have left the list shorter.
      selected =
          i <= lvDocuments_.ListItems().Count() && lvDocuments_.ListItems().item(i).Selected();
    });
    if (!selected) continue;

    bool open = false;
    std::string tag;
    std::string path;
    std::string name;
    proc.step([&] {
      const ListItem& row = lvDocuments_.ListItems().item(i);
      tag = row.Tag();
      name = row.Text();
      path = getDocPathFromTag(tag);
    });
    if (isBlankValue(Variant(path))) continue;

    bool exists = false;
    proc.step([&] { exists = objectOf(module.fileUtilities).fileExists(path); });
    if (exists) {
      proc.step([&] {
        if (!objectOf(module.fileUtilities).isFileInUse(path)) {
          open = true;
          return;
        }
        int32_t answer = 1;
        objectOf(module.msgboxClass)
            .askMessage(inUseQuestion(name), 4, objectOf(module.localeReference).getOwnerForm(),
                        answer);
        open = answer == 0;
      });
    }
    proc.step([&] {
      if (objectOf(module.fileUtilities).fileExists(path)) return;
      // Gone, or on a computer that can't be reached: the dialog explains and
      // lets the user find the file; the walk goes on after it.
      auto document = std::make_shared<docQuillboxDocumentClass>();
      document->setDocumentID(getDocIDFromTag(tag));
      bool loadAll = true;
      bool loaded = false;
      document->loadDocument(loadAll, loaded);
      frmDocProperties dialog;
      dialog.Initialize(document);
    });
    if (!open) continue;
    proc.step([&] {
      std::string extension = objectOf(module.fileUtilities).getFileExtension(path);
      bool merge = false;
      docQuillboxDocumentClass().isMergeDocument(extension, merge);
      if (merge) {
        int16_t docType = kMergeDocumentType;
        std::string docPath = path;
        openDocMerge.raise(docType, docPath);
      } else {
        // A failure to launch shows nothing.
        shell().ShellExecuteA(hWnd(), "open", path, "", "", kShowDefault);
      }
    });
  }
  return false;
}

}  // namespace qb
