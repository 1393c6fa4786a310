// The category tree: its fill through the library's category object, and the
// tree's handlers (its drag handlers are in drag_and_drop.cpp). The list follows the tree only at a
// left button release, a collapse of a node other than the category on show, and the commands; a
// node click or an arrow key leaves the list on the category shown before.

#include "control/nv_document_quillbox.h"
#include "services/controls/platform.h"
#include "services/errors/procedure.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/doc_quillbox_client_categories_class.h"

namespace qb {

namespace {
// The message the component sends its own window before a pop-up menu:
// WM_MOUSEMOVE (512) with the right-button-down code (516) as lParam.
constexpr int32_t kMouseMoveMessage = 512;
constexpr int32_t kRightButtonDownCode = 516;
// Pop-up menus open right-aligned at the mouse.
constexpr int32_t kPopupRightAlign = 8;
}  // namespace

void nvDocumentQuillbox::populateClientDocumentCategories() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-populateClientDocumentCategories");
  // A recordset with no current row is passed over without a report.
  proc.ignoreError(err::kNoCurrentRecord);
  std::shared_ptr<DocQuillboxClientCategoriesClass> categories;
  proc.step([&] { categories = clientCategories_; });
  proc.step([&] { objectOf(categories).clearCategories(); });
  proc.step([&] { objectOf(categories).setCompanyIDNum(companyIDNum_); });
  proc.step([&] { objectOf(categories).setContactIDNum(contactIDNum_); });
  proc.step([&] { objectOf(categories).populateCategories(); });
  proc.step([&] { categories.reset(); });
}

void nvDocumentQuillbox::DocQuillboxClientCategoriesClass_setupCategoryDocumentsDisplay() {
  Procedure proc(
      "Orvanta.exe-nvDocumentQuillbox-"
      "DocQuillboxClientCategoriesClass_setupCategoryDocumentsDisplay");
}

void nvDocumentQuillbox::showRightClickMenu(Procedure& proc, bool hit, MenuItem& whenEmpty,
                                            MenuItem& whenHit) {
  // The message goes before the menu, always; its answer is not looked at.
  proc.step([&] { SendMessageA(hWnd(), kMouseMoveMessage, 0, kRightButtonDownCode); });
  proc.step([&] { PopupMenu(hit ? whenHit : whenEmpty, kPopupRightAlign); });
}

void nvDocumentQuillbox::tvClientDocumentation_MouseUp(int16_t button, int16_t, float x, float y) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-tvClientDocumentation_MouseUp");
  if (button == 1) {
    proc.step([&] { setupDocumentsDisplay(); });
  } else if (button == 2) {
    // The node under the mouse is not selected here: the menu's commands work
    // on the node that is selected.
    bool hit = false;
    proc.step([&] { hit = tvClientDocumentation_.HitTest(x, y) != nullptr; });
    showRightClickMenu(proc, hit, *subMnuDocTreeViewRightClick_, *subMnuDocTreeViewNodeRightClick_);
  }
}

void nvDocumentQuillbox::tvClientDocumentation_Collapse(Node& node) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-tvClientDocumentation_Collapse");
  // The id comes from the node's Tag read as a row tag; a Tag that is no row
  // tag gives -1, so such a collapse always refreshes.
  int32_t collapsedID = 0;
  int32_t shownID = 0;
  proc.step([&] { collapsedID = getDocIDFromTag(node.Tag()); });
  proc.step([&] { shownID = objectOf(category_).categoryID(); });
  proc.step([&] {
    if (collapsedID != shownID) setupDocumentsDisplay();
  });
}

void nvDocumentQuillbox::tvClientDocumentation_NodeClick(Node&) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-tvClientDocumentation_NodeClick");
}

void nvDocumentQuillbox::tvClientDocumentation_DblClick() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-tvClientDocumentation_DblClick");
  proc.step([&] { editSelectedDocCategoryNode(); });
}

void nvDocumentQuillbox::tvClientDocumentation_KeyUp(int16_t key, int16_t) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-tvClientDocumentation_KeyUp");
  constexpr int16_t kDelete = 46;
  constexpr int16_t kEnter = 13;
  proc.step([&] {
    if (key == kDelete) {
      deleteSelectedDocCategory();
    } else if (key == kEnter) {
      editSelectedDocCategoryNode();
    }
  });
}

void nvDocumentQuillbox::tvClientDocumentation_LostFocus() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-tvClientDocumentation_LostFocus");
  proc.step([&] { drag_.treeLostFocus(); });
}

}  // namespace qb
