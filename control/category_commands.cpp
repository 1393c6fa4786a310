// The category commands: add, edit and delete the selected node's category.
// They keep the visible tree in step by hand (the nodes change, the tree is
// not filled again), and the category editor writes the category to the
// store. The client's main category and the categories of its merge
// documents can't be edited or deleted.

#include "control/nv_document_quillbox.h"
#include "control/row_tags.h"
#include "dialogs/frm_edit_doc_category.h"
#include "services/errors/procedure.h"
#include "services/host/locale_reference.h"
#include "services/host/message_object.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_category_class.h"

namespace qb {

namespace {

std::string trace(const char* procedure) {
  return std::string("Orvanta.exe-nvDocumentQuillbox-") + procedure;
}

// The picture of a node the component adds itself: the first of the
// category pictures.
constexpr int32_t kNewNodeImage = 1;

OwnerForm* ownerForm() { return objectOf(moduleState().localeReference).getOwnerForm(); }

}  // namespace

std::shared_ptr<docQuillboxCategoryClass> nvDocumentQuillbox::loadSelectedCategory(
    Procedure& proc) {
  auto category = std::make_shared<docQuillboxCategoryClass>();
  bool isCategory = false;
  proc.step([&] {
    isCategory = rowTags::isCategoryKey(qb::objectOf(tvClientDocumentation_.SelectedItem()).Key());
  });
  if (!isCategory) return nullptr;
  proc.step([&] {
    category->setCategoryID(
        rowTags::categoryIDFromKey(tvClientDocumentation_.SelectedItem()->Key()));
  });
  proc.step([&] {
    bool loadDocuments = false;
    bool loaded = false;
    category->loadCategory(loadDocuments, loaded);
  });
  return category;
}

bool nvDocumentQuillbox::refusesProtectedCategory(Procedure& proc,
                                                  docQuillboxCategoryClass& category,
                                                  const std::string& verb) {
  bool refused = false;
  proc.step([&] {
    // The name comes from the store, not from the node.
    const int32_t type = category.categorySpecialType();
    std::string text;
    if (type == 1) {
      text = verb + category.categoryName() + " category because it is the main category.";
    } else if (type == 2 || type == 3) {
      text = verb + category.categoryName() +
             " category because it contains a shortcut to all of the merge documents created for "
             "this client by the " +
             objectOf(moduleState().localeReference).getProductLabel() + " Pad.";
    } else {
      return;
    }
    refused = true;
    objectOf(moduleState().msgboxClass).showMessage(text, 10, ownerForm());
  });
  return refused;
}

void nvDocumentQuillbox::addNewDocumentCategory() {
  Procedure proc(trace("addNewDocumentCategory"));
  auto category = std::make_shared<docQuillboxCategoryClass>();
  Node* parentNode = nullptr;
  bool isCategory = false;
  proc.step([&] {
    parentNode = tvClientDocumentation_.SelectedItem();
    isCategory = rowTags::isCategoryKey(qb::objectOf(parentNode).Key());
  });
  if (!proc.leaving() && !isCategory) return;

  int32_t parentID = -1;
  proc.step([&] { parentID = rowTags::categoryIDFromKey(qb::objectOf(parentNode).Key()); });
  proc.step([&] {
    category->setParentCategoryNum(parentID);
    category->setCompanyIDNum(companyIDNum_);
    category->setContactIDNum(contactIDNum_);
    category->setCategoryName("New Category");
  });
  bool cancelled = true;
  proc.step([&] {
    frmEditDocCategory form;
    form.initialize(category);
    cancelled = form.cancelFlag();
    form.Unload();
  });

  if (!cancelled) {
    // The editor shows the parent only: a parent that changed anyway is
    // looked for among the nodes, and the old node stays the parent when it
    // is not there.
    proc.step([&] {
      if (category->parentCategoryNum() == parentID) return;
      Node* moved =
          tvClientDocumentation_.Nodes().find(rowTags::categoryKey(category->parentCategoryNum()));
      if (moved == nullptr) return;
      parentNode = moved;
      tvClientDocumentation_.setSelectedItem(parentNode);
      if (!parentNode->Visible()) parentNode->EnsureVisible();
    });
    Node* added = nullptr;
    proc.step([&] {
      added = &tvClientDocumentation_.Nodes().Add(Variant(qb::objectOf(parentNode).Key()), tvwChild,
                                                  rowTags::categoryKey(category->categoryID()),
                                                  category->categoryName(), Variant(kNewNodeImage),
                                                  Variant(kNewNodeImage));
    });
    proc.step([&] {
      Node& node = qb::objectOf(added);
      node.setExpanded(true);
      node.setSelected(true);
      tvClientDocumentation_.setSelectedItem(&node);
    });
  }
  // A cancelled add refreshes too.
  proc.step([&] { tvClientDocumentation_.Refresh(); });
  proc.step([&] { setupDocumentsDisplay(); });
  proc.step([&] { tvClientDocumentation_.SetFocus(); });
}

void nvDocumentQuillbox::editSelectedDocCategoryNode() {
  Procedure proc(trace("editSelectedDocCategoryNode"));
  std::shared_ptr<docQuillboxCategoryClass> category = loadSelectedCategory(proc);
  if (category == nullptr) return;
  if (refusesProtectedCategory(proc, *category, "You cannot edit the ")) return;
  bool cancelled = true;
  proc.step([&] {
    frmEditDocCategory form;
    form.initialize(category);
    cancelled = form.cancelFlag();
  });
  if (cancelled) return;
  proc.step([&] {
    qb::objectOf(tvClientDocumentation_.SelectedItem()).setText(category->categoryName());
  });
  proc.step([&] { setupDocumentsDisplay(); });
}

void nvDocumentQuillbox::deleteSelectedDocCategory() {
  Procedure proc(trace("deleteSelectedDocCategory"));
  std::shared_ptr<docQuillboxCategoryClass> category = loadSelectedCategory(proc);
  if (category == nullptr) return;
  if (refusesProtectedCategory(proc, *category, "You cannot delete the ")) return;
  Node* node = nullptr;
  int32_t answer = 1;
  proc.step([&] {
    node = &qb::objectOf(tvClientDocumentation_.SelectedItem());
    // The question names the node's text.
    objectOf(moduleState().msgboxClass)
        .askMessage("Are you sure you want to remove the category '" + node->Text() +
                        "' and all sub categories and file links within this category?",
                    4, ownerForm(), answer);
  });
  if (answer != 0) return;

  // The tree and the list change first, the store last.
  proc.step([&] {
    Node* next = node->Previous();
    if (next == nullptr) next = node->Next();
    if (next == nullptr) next = node->Parent();
    // A top-level node alone at the top leaves nothing to select, and the
    // tree refuses an empty selection here.
    if (next == nullptr) throw RuntimeError(err::kInvalidProperty, "Invalid property value");
    tvClientDocumentation_.setSelectedItem(next);
  });
  proc.step([&] { tvClientDocumentation_.Nodes().Remove(node->Index()); });
  proc.step([&] { setupDocumentsDisplay(); });
  proc.step([&] {
    bool includeSubCategories = true;
    bool deleted = false;
    category->deleteCategory(includeSubCategories, deleted);
  });
}

}  // namespace qb
