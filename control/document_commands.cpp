// The commands on links that stand in the list: a link's properties, the
// removal of the selected links, and bringing one document into view.

#include <memory>
#include <string>

#include "control/nv_document_quillbox.h"
#include "control/row_tags.h"
#include "data/mod_database_functions.h"
#include "dialogs/frm_doc_properties.h"
#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/runtime/conversions.h"
#include "services/runtime/format.h"
#include "services/util/file_size_text.h"
#include "services/util/file_utilities_class.h"

namespace qb {

namespace {

constexpr const char* kFileDateFormat = "m/d/yy  h:nn am/pm";

// True while the row is still one of the list's rows.
bool listHolds(const ListView& list, const ListItem* row) {
  for (int32_t i = 1; i <= list.ListItems().Count(); ++i)
    if (&list.ListItems().item(i) == row) return true;
  return false;
}

}  // namespace

bool nvDocumentQuillbox::openDocumentProperties() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-openDocumentProperties");
  ModuleState& module = moduleState();
  // The focused row alone, also when several are selected.
  ListItem* row = nullptr;
  proc.step([&] { row = lvDocuments_.SelectedItem(); });
  if (row == nullptr) return false;

  auto document = std::make_shared<docQuillboxDocumentClass>();
  proc.step([&] { document->setDocumentID(getDocIDFromTag(row->Tag())); });
  proc.step([&] {
    bool loadAll = true;
    bool loaded = false;
    document->loadDocument(loadAll, loaded);
  });
  proc.step([&] {
    frmDocProperties dialog;
    dialog.Initialize(document);
  });
  if (!listHolds(lvDocuments_, row)) return false;  // the list was rebuilt meanwhile
  proc.step([&] { row->setText(document->documentName()); });
  proc.step(
      [&] { row->setTag(rowTags::documentTag(document->documentID(), document->documentPath())); });

  // Seven sub-items go in at the front; the row's earlier ones move behind
  // them, past the last column. The list is rebuilt at the next refresh.
  FileFactsOperation fileQueries;
  proc.step([&] {
    fileUtilitiesClass& files = objectOf(module.fileUtilities);
    const std::string& path = document->documentPath();
    auto fileDate = [&](int16_t kind) {
      return Format(files.getFileDate(path, kind, true), kFileDateFormat);
    };
    ListSubItemCollection& subItems = row->ListSubItems();
    subItems.Add(1, "", megabytesText(files.getFileSize(path)) + " Mbytes");
    subItems.Add(2, "", fileDate(fileDateLastModified));
    subItems.Add(3, "", path);
    subItems.Add(4, "", document->hostComputerName());
    subItems.Add(5, "", fileDate(fileDateCreated));
    subItems.Add(6, "", fileDate(fileDateLastAccessed));
    subItems.Add(7, "", modDatabaseFunctions::getUserNameFromUserID(document->addedByUserID()));
  });
  return false;
}

bool nvDocumentQuillbox::deleteSelectedDocuments() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-deleteSelectedDocuments");
  // No question: the note under the list says only the shortcut goes.
  auto document = std::make_shared<docQuillboxDocumentClass>();
  int16_t count = 0;
  proc.step([&] { count = CInt(Variant(lvDocuments_.ListItems().Count())); });
  for (int16_t i = count; i >= 1 && !proc.leaving(); --i) {
    proc.step([&] {
      if (!lvDocuments_.ListItems().item(i).Selected()) return;
      int32_t id = getDocIDFromTag(lvDocuments_.ListItems().item(i).Tag());
      bool deleted = false;
      document->deleteDocument(id, deleted);  // the row goes whatever the result
      lvDocuments_.ListItems().Remove(i);
    });
  }
  proc.step([&] { document.reset(); });
  return false;
}

bool nvDocumentQuillbox::goToDocument(int32_t& documentID) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-goToDocument");
  auto document = std::make_shared<docQuillboxDocumentClass>();
  int32_t category = -1;
  proc.step([&] {
    document->setDocumentID(documentID);
    bool loadAll = true;
    bool loaded = false;
    document->loadDocument(loadAll, loaded);
    category = document->docCategoryNum();
  });
  std::string key;
  proc.step([&] { key = rowTags::categoryKey(category); });
  proc.step([&] {
    // With no node selected the read of its key fails.
    if (key == qb::objectOf(tvClientDocumentation_.SelectedItem()).Key()) return;
    NodeCollection& nodes = tvClientDocumentation_.Nodes();
    for (int32_t i = 1; i <= nodes.Count(); ++i) {
      Node& node = nodes.item(i);
      if (node.Key() != key) continue;
      tvClientDocumentation_.setSelectedItem(&node);
      if (!node.Visible()) node.EnsureVisible();
      setupDocumentsDisplay();
      break;
    }
  });
  // By display name, not by id: of two links of one name the first in list
  // order is selected.
  ListItem* row = nullptr;
  proc.step(
      [&] { row = lvDocuments_.FindItem(document->documentName(), lvwText, 1, lvwWholeWord); });
  if (row != nullptr) {
    proc.step([&] { lvDocuments_.setSelectedItem(nullptr); });
    proc.step([&] { lvDocuments_.setSelectedItem(row); });
    proc.step([&] { lvDocuments_.SetFocus(); });
    proc.step([&] { Refresh(); });
  }
  proc.step([&] { document.reset(); });
  return false;
}

}  // namespace qb
