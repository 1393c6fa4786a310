#include "control/drag_state.h"

#include "services/controls/data_object.h"

namespace qb {

void DragState::pressOnRow(const std::string& ids) {
  draggedDocumentIDs = ids;
  if (!ids.empty()) draggingDocuments = true;
}

void DragState::pressOnTree(bool hit, bool hasParent, int32_t nodeIndex) {
  if (!hit) {
    draggingCategory = false;
    return;
  }
  // A top-level node can't be dragged.
  if (!hasParent) return;
  dragNodeIndex = nodeIndex;
  draggingCategory = true;
}

void DragState::treeLostFocus() { draggingCategory = false; }

DragState::Start DragState::startFromList() {
  draggingDocuments = true;
  return Start{DROPEFFECT_MOVE};
}

DragState::Start DragState::startFromTree(bool dataHoldsFiles,
                                          const std::function<int32_t()>& selectedCategoryID) {
  Start start;
  if (dataHoldsFiles) {
    start = Start{DROPEFFECT_MOVE, vbOLEDragManual, vbOLEDropManual};
    draggingCategory = false;
    draggingDocuments = false;
  }
  // The file case above falls through to the last branch: with both flags
  // cleared, nothing is allowed.
  if (draggingCategory) {
    start = Start{DROPEFFECT_MOVE, vbOLEDragAutomatic, vbOLEDropManual};
    dragCategoryID = selectedCategoryID();
    categoryDragStarted = true;
    draggingDocuments = false;
  } else if (draggingDocuments) {
    start = Start{DROPEFFECT_MOVE, vbOLEDragAutomatic, vbOLEDropManual};
    draggingCategory = false;
  } else {
    start.allowedEffects = DROPEFFECT_NONE;
  }
  return start;
}

int32_t DragState::overList(bool dataHoldsFiles, int32_t effect) {
  if (dataHoldsFiles) {
    effect = DROPEFFECT_COPY;
    draggingCategory = false;
    draggingDocuments = false;
  }
  if (draggingCategory) {
    effect = DROPEFFECT_NONE;
    draggingCategory = false;
    draggingDocuments = false;
  }
  if (draggingDocuments) {
    effect = DROPEFFECT_NONE;
    draggingCategory = false;
  }
  return effect;
}

int32_t DragState::overTree(bool dataHoldsFiles, bool onNode, int32_t effect) {
  if (dataHoldsFiles) {
    effect = DROPEFFECT_COPY;
    draggingCategory = false;
    draggingDocuments = false;
  }
  if (draggingCategory) effect = onNode && categoryDragStarted ? DROPEFFECT_MOVE : DROPEFFECT_NONE;
  if (draggingDocuments) effect = DROPEFFECT_MOVE;
  return effect;
}

void DragState::rowsDropped() { draggingDocuments = false; }

void DragState::categoryDropped() {
  categoryDragStarted = false;
  draggingCategory = false;
}

std::string DragState::dump() const {
  std::string text;
  auto add = [&text](const std::string& part) { text += (text.empty() ? "" : " ") + part; };
  if (draggingCategory) add("cat");
  if (draggingDocuments) add("docs");
  if (categoryDragStarted) add("started");
  if (dragNodeIndex != 0) add("node=" + std::to_string(dragNodeIndex));
  if (dragCategoryID != 0) add("id=" + std::to_string(dragCategoryID));
  if (!draggedDocumentIDs.empty()) add("ids=" + draggedDocumentIDs);
  return text;
}

}  // namespace qb
