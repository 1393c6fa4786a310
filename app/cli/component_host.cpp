#include "app/cli/component_host.h"

#include "app/cli/command.h"
#include "app/cli/dialog_host.h"
#include "app/cli/session.h"
#include "control/row_tags.h"
#include "dialogs/frm_edit_doc_category.h"
#include "services/controls/data_object.h"
#include "services/controls/platform.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/doc_quillbox_document_class.h"

namespace qb::cli {

namespace {

// The component's size: room for its tree and list to lay themselves out.
constexpr float kWidth = 12000;
constexpr float kHeight = 8000;
// Where the mouse points on a row: a little inside it.
constexpr float kInside = 30;

}  // namespace

ComponentHost::ComponentHost(Session& session, const std::string& databasePath, int32_t companyID,
                             int32_t contactID)
    : messages_(hostDialogs(session, databasePath)),
      component_(std::make_unique<nvDocumentQuillbox>()) {
  messages_->defaultAnswer = 0;  // yes
  ModuleState& module = moduleState();
  nvDocumentQuillbox& quillbox = *component_;
  quillbox.Initialize();
  quillbox.setErrorClass(module.errorClass);
  quillbox.setMsgboxClass(messages_);
  quillbox.setDatabaseReference(module.databaseReference);
  quillbox.setWorkingFolderReference(module.workingFolderReference);
  quillbox.setLocaleReference(module.localeReference);
  if (companyID >= 0) {
    quillbox.setCompanyIDNum(companyID);
  } else {
    quillbox.setContactIDNum(contactID);
  }
  quillbox.StartDocQuillboxControl();
  quillbox.populateClientDocumentCategories();
  quillbox.Move(0, 0, kWidth, kHeight);
  quillbox.resizeDocQuillbox();
}

ComponentHost::~ComponentHost() {
  installFormService({});
  component_.reset();
}

int ComponentHost::finish(Context& context, Session& session) const {
  bool said = false;
  for (const RecordingMessageObject::Message& message : messages_->messages) {
    if (message.question) continue;
    context.err << "quillbox: " << message.text << "\n";
    said = true;
  }
  return said ? 1 : session.exitStatus();
}

bool ComponentHost::ownerOfCategory(int32_t categoryID, int32_t& companyID, int32_t& contactID) {
  docQuillboxCategoryClass category;
  category.setCategoryID(categoryID);
  bool documents = false, found = false;
  category.loadCategory(documents, found);
  companyID = category.companyIDNum();
  contactID = category.contactIDNum();
  return found;
}

bool ComponentHost::ownerOfDocument(int32_t documentID, int32_t& companyID, int32_t& contactID,
                                    int32_t& categoryID) {
  docQuillboxDocumentClass document;
  document.setDocumentID(documentID);
  bool facts = false, found = false;
  document.loadDocument(facts, found);
  companyID = document.companyIDNum();
  contactID = document.contactIDNum();
  categoryID = document.docCategoryNum();
  return found;
}

bool ComponentHost::select(int32_t categoryID) {
  TreeView& tree = component_->tvClientDocumentation();
  Node* node = tree.Nodes().find(rowTags::categoryKey(categoryID));
  if (node == nullptr) return false;
  tree.setSelectedItem(node);
  component_->setupDocumentsDisplay();
  return true;
}

int32_t ComponentHost::mainCategory() {
  const auto& roots = component_->tvClientDocumentation().roots();
  return roots.empty() ? -1 : rowTags::categoryIDFromKey(roots.front()->Key());
}

void ComponentHost::inEditor(std::function<void(frmEditDocCategory&)> act) {
  installFormService([act](Form& form, OwnerForm*) {
    if (auto* editor = dynamic_cast<frmEditDocCategory*>(&form)) act(*editor);
  });
}

void ComponentHost::pressOnNode(Node& node) {
  TreeView& tree = component_->tvClientDocumentation();
  node.EnsureVisible();
  tree.MouseDown.raise(1, 0, kInside, tree.rowTop(node) + kInside);
}

void ComponentHost::dropOnNode(DataObject& data, Node& target) {
  TreeView& tree = component_->tvClientDocumentation();
  target.EnsureVisible();
  const float y = tree.rowTop(target) + kInside;
  int32_t effect = DROPEFFECT_NONE;
  tree.OLEDragOver.raise(data, effect, 1, 0, kInside, y, vbOver);
  tree.OLEDragDrop.raise(data, effect, 1, 0, kInside, y);
}

bool ComponentHost::dragCategory(int32_t categoryID, int32_t targetID) {
  TreeView& tree = component_->tvClientDocumentation();
  Node* node = tree.Nodes().find(rowTags::categoryKey(categoryID));
  Node* target = tree.Nodes().find(rowTags::categoryKey(targetID));
  if (node == nullptr || target == nullptr) return false;
  pressOnNode(*node);
  DataObject data;
  int32_t allowed = DROPEFFECT_NONE;
  tree.OLEStartDrag.raise(data, allowed);
  if (allowed == DROPEFFECT_NONE) return false;
  dropOnNode(data, *target);
  return true;
}

bool ComponentHost::dragDocument(int32_t documentID, int32_t targetID) {
  int32_t company = -1, contact = -1, category = -1;
  ownerOfDocument(documentID, company, contact, category);
  Node* target = component_->tvClientDocumentation().Nodes().find(rowTags::categoryKey(targetID));
  if (target == nullptr || !select(category)) return false;
  ListView& list = component_->lvDocuments();
  ListItem* row = nullptr;
  for (int32_t i = 1; i <= list.ListItems().Count() && row == nullptr; ++i) {
    if (component_->getDocIDFromTag(list.ListItems().item(i).Tag()) == documentID)
      row = &list.ListItems().item(i);
  }
  if (row == nullptr) return false;
  list.setSelectedItem(nullptr);
  row->setSelected(true);
  list.setScrollTop(row->Index() - 1);
  list.MouseDown.raise(1, 0, kInside, list.rowTop(*row) + kInside);
  DataObject data;
  int32_t allowed = DROPEFFECT_NONE;
  list.OLEStartDrag.raise(data, allowed);
  if (allowed == DROPEFFECT_NONE) return false;
  dropOnNode(data, *target);
  return true;
}

}  // namespace qb::cli
