// Drag and drop on the list, the tree and the two frames: files from a file
// window are linked into the category they fall on, rows dropped on a node
// move their links to that category, and a node dropped on another moves
// the category with its subtree. The fields and their rules are DragState's;
// the handlers here find what was hit and do the work. In a move of rows the
// tree and the list change first; for a category the node moves before the
// store is written, so a node dropped on its own descendant is refused by
// the tree and the store is not touched.

#include <string>
#include <vector>

#include "control/nv_document_quillbox.h"
#include "control/row_tags.h"
#include "services/controls/data_object.h"
#include "services/controls/platform.h"
#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/host/module_state.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"
#include "services/store/database_reference.h"

namespace qb {

namespace {

std::string trace(const char* procedure) {
  return std::string("Orvanta.exe-nvDocumentQuillbox-") + procedure;
}

// A statement on one key: "<sql><id>;".
std::string keyed(const char* sql, int32_t id) { return sql + std::to_string(id) + ";"; }

}  // namespace

// ---- Arming ------------------------------------------------------------------

void nvDocumentQuillbox::lvDocuments_MouseDown(int16_t button, int16_t, float x, float y) {
  Procedure proc(trace("lvDocuments_MouseDown"));
  if (button != 1) return;
  ListItem* row = nullptr;
  proc.step([&] { row = lvDocuments_.HitTest(x, y); });
  if (row == nullptr) return;
  std::string ids;
  proc.step([&] {
    // The selection as the list reports it at the press, in list order.
    const int16_t count = CInt(Variant(lvDocuments_.ListItems().Count()));
    for (int16_t i = 1; i <= count; ++i) {
      const ListItem& item = lvDocuments_.ListItems().item(i);
      if (!item.Selected()) continue;
      if (!ids.empty()) ids += "|";
      ids += std::to_string(getDocIDFromTag(item.Tag()));
    }
  });
  proc.step([&] { drag_.pressOnRow(isBlankValue(Variant(ids)) ? "" : ids); });
}

void nvDocumentQuillbox::tvClientDocumentation_MouseDown(int16_t, int16_t, float x, float y) {
  Procedure proc(trace("tvClientDocumentation_MouseDown"));
  Node* node = nullptr;
  proc.step([&] { node = tvClientDocumentation_.HitTest(x, y); });
  proc.step([&] {
    const bool hasParent = node != nullptr && node->Parent() != nullptr;
    if (hasParent) node->setSelected(true);
    drag_.pressOnTree(node != nullptr, hasParent, hasParent ? node->Index() : 0);
  });
}

// ---- Start of a drag ---------------------------------------------------------

void nvDocumentQuillbox::lvDocuments_OLEStartDrag(DataObject&, int32_t& allowedEffects) {
  Procedure proc(trace("lvDocuments_OLEStartDrag"));
  proc.step([&] { allowedEffects = drag_.startFromList().allowedEffects; });
}

void nvDocumentQuillbox::tvClientDocumentation_OLEStartDrag(DataObject& data,
                                                            int32_t& allowedEffects) {
  Procedure proc(trace("tvClientDocumentation_OLEStartDrag"));
  proc.step([&] {
    DragState::Start start = drag_.startFromTree(data.GetFormat(CF_HDROP), [this] {
      return rowTags::categoryIDFromKey(qb::objectOf(tvClientDocumentation_.SelectedItem()).Key());
    });
    if (start.dragMode >= 0) tvClientDocumentation_.setOLEDragMode(start.dragMode);
    if (start.dropMode >= 0) tvClientDocumentation_.setOLEDropMode(start.dropMode);
    allowedEffects = start.allowedEffects;
  });
}

// ---- While dragging ----------------------------------------------------------

void nvDocumentQuillbox::lvDocuments_OLEDragOver(DataObject& data, int32_t& effect, int16_t,
                                                 int16_t, float, float, int16_t) {
  Procedure proc(trace("lvDocuments_OLEDragOver"));
  proc.step([&] { effect = drag_.overList(data.GetFormat(CF_HDROP), effect); });
}

void nvDocumentQuillbox::tvClientDocumentation_OLEDragOver(DataObject& data, int32_t& effect,
                                                           int16_t, int16_t, float x, float y,
                                                           int16_t) {
  Procedure proc(trace("tvClientDocumentation_OLEDragOver"));
  proc.step([&] {
    const bool onNode = tvClientDocumentation_.HitTest(x, y) != nullptr;
    effect = drag_.overTree(data.GetFormat(CF_HDROP), onNode, effect);
  });
}

// ---- Drops -------------------------------------------------------------------

void nvDocumentQuillbox::linkDroppedFiles(Procedure& proc, DataObject& data) {
  proc.step([&] { screen().setMousePointer(11); });
  // The drop shares one file-facts operation: a dead share is waited on once.
  FileFactsOperation fileQueries;
  int32_t count = 0;
  proc.step([&] { count = data.Files().Count(); });
  for (int32_t i = 1; i <= count && !proc.leaving(); ++i) {
    proc.step([&] { linkDocumentFile(data.Files().item(i)); });
  }
  proc.step([&] { screen().setMousePointer(0); });
  proc.step([&] { setupDocumentsDisplay(); });
}

void nvDocumentQuillbox::lvDocuments_OLEDragDrop(DataObject& data, int32_t&, int16_t, int16_t,
                                                 float, float) {
  Procedure proc(trace("lvDocuments_OLEDragDrop"));
  // Rows dropped on the list stay where they are.
  bool files = false;
  proc.step([&] { files = data.GetFormat(CF_HDROP); });
  if (!files) return;
  linkDroppedFiles(proc, data);
}

void nvDocumentQuillbox::fraDocumentInfo_OLEDragDrop(int16_t, DataObject& data, int32_t& effect,
                                                     int16_t button, int16_t shift, float x,
                                                     float y) {
  Procedure proc(trace("fraDocumentInfo_OLEDragDrop"));
  proc.step([&] { lvDocuments_OLEDragDrop(data, effect, button, shift, x, y); });
}

void nvDocumentQuillbox::tvClientDocumentation_OLEDragDrop(DataObject& data, int32_t& effect,
                                                           int16_t, int16_t, float x, float y) {
  // The tree's drop handler traces under the list's old name.
  Procedure proc(trace("DocumentListView_OLEDragDrop"));
  Node* node = nullptr;
  proc.step([&] { node = tvClientDocumentation_.HitTest(x, y); });
  // On empty space nothing happens, and no field is cleared.
  if (node == nullptr) return;

  bool files = false;
  proc.step([&] { files = data.GetFormat(CF_HDROP); });
  if (files) {
    // The files go to the node under the mouse, which stays selected.
    proc.step([&] { tvClientDocumentation_.setSelectedItem(node); });
    proc.step([&] { setupDocumentsDisplay(); });
    linkDroppedFiles(proc, data);
  }

  if (drag_.draggingDocuments) {
    proc.step([&] { tvClientDocumentation_.setSelectedItem(node); });
    proc.step([&] { setupDocumentsDisplay(); });
    std::vector<std::string> ids;
    proc.step([&] { ids = Split(drag_.draggedDocumentIDs, "|"); });
    for (const std::string& id : ids) {
      proc.step(
          [&] { moveDocumentToDocCategory(CLng(Variant(id)), getCurrentlySelectedCategoryID()); });
    }
    proc.step([&] { setupDocumentsDisplay(); });
    proc.step([&] { drag_.rowsDropped(); });
  }

  if (drag_.draggingCategory) {
    // One step: a node the tree refuses to move leaves the store untouched,
    // whatever the user answers to the failure.
    proc.step([&] {
      if (node->Index() == drag_.dragNodeIndex) return;
      if (!node->Visible()) node->EnsureVisible();
      tvClientDocumentation_.Nodes()
          .item(rowTags::categoryKey(drag_.dragCategoryID))
          .setParent(node);
      moveDocCategoryToDocCategory(drag_.dragCategoryID, rowTags::categoryIDFromKey(node->Key()));
    });
    proc.step([&] {
      drag_.categoryDropped();
      effect = DROPEFFECT_NONE;
    });
  }
  proc.step([&] { tvClientDocumentation_.SetFocus(); });
}

// ---- The moves -----------------------------------------------------------------

namespace {

// Writes target into DocCategoryNum of the one row the statement selects,
// through a writable recordset, as steps of the caller; nothing while the
// store is not connected, nor for a target below 0.
void moveRow(Procedure& proc, const std::string& sql, int32_t target) {
  DatabaseReference* db = nullptr;
  bool connected = false;
  proc.step([&] {
    db = &objectOf(moduleState().databaseReference);
    connected = db->isConnected();
  });
  if (!connected) return;
  RecordsetHandle handle = 0;
  if (!proc.step([&] { handle = db->openRecordset(sql, adOpenKeyset, adLockOptimistic); })) return;
  proc.step([&] {
    if (db->moveFirstRecord(handle) && target >= 0)
      db->updateFieldValue(handle, "DocCategoryNum", std::to_string(target));
  });
  proc.step([&] { db->closeRecordset(handle); });
}

}  // namespace

void nvDocumentQuillbox::moveDocumentToDocCategory(int32_t documentID, int32_t categoryID) {
  Procedure proc(trace("moveDocumentToDocCategory"));
  moveRow(proc,
          keyed("SELECT Documents.DocumentID, Documents.DocCategoryNum FROM Documents WHERE "
                "DocumentID = ",
                documentID),
          categoryID);
}

void nvDocumentQuillbox::moveDocCategoryToDocCategory(int32_t categoryID, int32_t parentID) {
  Procedure proc(trace("moveDocCategoryToDocCategory"));
  moveRow(proc,
          keyed("SELECT DocCategories.DocCategoryID, DocCategories.DocCategoryNum FROM "
                "DocCategories WHERE DocCategoryID = ",
                categoryID),
          parentID);
}

}  // namespace qb
