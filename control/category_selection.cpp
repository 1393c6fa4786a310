// Which category the selected tree node stands for, as the commands that
// add to the selected category ask it.

#include "control/nv_document_quillbox.h"
#include "control/row_tags.h"
#include "services/errors/procedure.h"

namespace qb {

int32_t nvDocumentQuillbox::getCurrentlySelectedCategoryID() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-getCurrentlySelectedCategoryID");
  int32_t result = -1;
  proc.step([&] {
    const Node* node = tvClientDocumentation_.SelectedItem();
    if (node != nullptr && rowTags::isCategoryKey(node->Key()))
      result = rowTags::categoryIDFromKey(node->Key());
  });
  return result;
}

}  // namespace qb
