// The button rows: client navigation in the header, which the host answers
// by changing the client, and the document manager buttons.

#include "control/nv_document_quillbox.h"
#include "services/errors/procedure.h"
#include "services/host/module_state.h"
#include "services/store/database_reference.h"

namespace qb {

void nvDocumentQuillbox::cmdClientNav_Click(int16_t index) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-cmdClientNav_Click");
  // The host is asked for another client only while the store takes queries.
  proc.step([&] {
    if (!objectOf(moduleState().databaseReference).isConnected()) return;
    switch (index) {
      case 0:
        moveFirst.raise();
        break;
      case 1:
        movePrevious.raise();
        break;
      case 2:
        moveNext.raise();
        break;
      case 3:
        moveLast.raise();
        break;
      case 4:
        findClient.raise();
        break;
      default:
        break;
    }
  });
}

void nvDocumentQuillbox::cmdDocManager_Click(int16_t index) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-cmdDocManager_Click");
  // No test of the store here, unlike the navigation buttons.
  proc.step([&] {
    switch (index) {
      case 0:
        addDocumentFiles();
        break;
      case 1:
        openSelectedDocumentsFiles();
        break;
      case 2:
        deleteSelectedDocuments();
        break;
      case 3:
        findDocumentFiles();
        break;
      case 4:
        addNewDocumentCategory();
        break;
      default:
        break;
    }
  });
}

}  // namespace qb
