// Finding a document: the search dialog, and the client change or the
// selection that follows from what the user picked.

#include <memory>

#include "control/nv_document_quillbox.h"
#include "dialogs/frm_find_document.h"
#include "services/errors/procedure.h"

namespace qb {

bool nvDocumentQuillbox::findDocumentFiles() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-findDocumentFiles");
  std::unique_ptr<frmFindDocument> form;
  enumDocQuillboxClientType oldType = clientType_;
  int32_t oldID = -1;
  proc.step([&] { form = std::make_unique<frmFindDocument>(); });
  proc.step([&] {
    // With no client the dialog is not set up (and not shown).
    if (clientType_ == enumDocQuillboxClientTypeCompany) {
      oldID = companyIDNum_;
      form->initializeFind(companyIDNum_, -1);
    } else if (clientType_ == enumDocQuillboxClientTypeContact) {
      oldID = contactIDNum_;
      form->initializeFind(-1, contactIDNum_);
    }
  });
  proc.step([&] {
    if (form->cancelFlag() || form->DocumentIDFound() < 0) return;
    int32_t documentFound = form->DocumentIDFound();
    // The client found is taken over directly, not through the id
    // properties' rules.
    bool clientFound = false;
    if (form->CompanyIDFound() >= 0) {
      clientType_ = enumDocQuillboxClientTypeCompany;
      companyIDNum_ = form->CompanyIDFound();
      clientFound = true;
    }
    if (!clientFound && form->ContactIDFound() >= 0) {
      clientType_ = enumDocQuillboxClientTypeContact;
      contactIDNum_ = form->ContactIDFound();
    }
    bool clientChanged = false;
    if (clientType_ != oldType) {
      if (clientType_ == enumDocQuillboxClientTypeCompany) {
        changeCompany.raise(companyIDNum_, documentFound);
      } else if (clientType_ == enumDocQuillboxClientTypeContact) {
        changeContact.raise(contactIDNum_, documentFound);
      }
      clientChanged = true;
    } else if (clientType_ == enumDocQuillboxClientTypeCompany) {
      if (companyIDNum_ != oldID) changeCompany.raise(companyIDNum_, documentFound);
      clientChanged = true;
    } else if (clientType_ == enumDocQuillboxClientTypeContact) {
      if (contactIDNum_ != oldID) changeContact.raise(contactIDNum_, documentFound);
      clientChanged = true;
    }
    // A document of the current client raises nothing and is not selected:
    // the host, told of a change, takes over; with no change the list stays.
    if (!clientChanged) goToDocument(documentFound);
  });
  proc.step([&] { form->Unload(); });
  proc.step([&] { form.reset(); });
  return false;
}

}  // namespace qb
