#pragma once
// DragState: the component's drag and drop state — its six fields and the
// rules that change them as the mouse presses, a drag starts, passes over
// the list or the tree, and ends in a drop. It knows no control: the
// component's handlers hand it what they found (a hit, the files of the data
// object) and do what it decides (the effect shown, the modes of the tree,
// the moves).
//
// Three drags are served: files from a file window (the data holds the file
// format), rows of the list (armed by a press on a row, carrying the
// selected rows' ids) and a category node of the tree (armed by a press on a
// node that has a parent). The fields outlive a drag that ends elsewhere:
// the next drag may start from what an earlier one left, as it always has.

#include <cstdint>
#include <functional>
#include <string>

namespace qb {

struct DragState {
  bool draggingCategory = false;
  bool draggingDocuments = false;
  int32_t dragCategoryID = 0;
  bool categoryDragStarted = false;
  int32_t dragNodeIndex = 0;
  // The ids of the rows the drag carries, in list order, joined with "|".
  std::string draggedDocumentIDs;

  // What a start handler decides: the effects the drag allows (0 refuses
  // it) and, when the tree's modes change, the modes to set (-1: as they
  // are).
  struct Start {
    int32_t allowedEffects = 0;
    int16_t dragMode = -1;
    int16_t dropMode = -1;
  };

  // A left press on a row of the list: ids are the selected rows' ids in
  // list order, joined with "|". A non-blank list arms a rows drag; a blank
  // one leaves draggingDocuments as it was.
  void pressOnRow(const std::string& ids);
  // A press on the tree with any button: on empty space (hit False) a
  // category drag is disarmed; on a node with a parent one is armed from
  // that node's index; a top-level node changes nothing.
  void pressOnTree(bool hit, bool hasParent, int32_t nodeIndex);
  // The tree lost the keyboard focus: a category drag is disarmed.
  void treeLostFocus();

  // A drag starts from the list: rows, moved.
  Start startFromList();
  // A drag starts from the tree. dataHoldsFiles: the data object holds the
  // file format; selectedCategoryID: reads the category of the tree's
  // selected node, asked only for a category drag (it may fail, and then
  // the fields stay as far as they got).
  Start startFromTree(bool dataHoldsFiles, const std::function<int32_t()>& selectedCategoryID);

  // The effect shown while the drag passes over the list or the tree, by
  // the table of effects, its tests run in order on the same event (a later
  // test that applies decides). effect comes in as the effect proposed and
  // stays when no test applies. Passing over changes the fields: a category
  // drag that touches the list is over, while rows may pass over the list
  // and still be dropped on the tree.
  int32_t overList(bool dataHoldsFiles, int32_t effect);
  int32_t overTree(bool dataHoldsFiles, bool onNode, int32_t effect);

  // The ends of a drop on a tree node: after the rows were moved, and after
  // a category drop (moved or not, the drag is over).
  void rowsDropped();
  void categoryDropped();

  // The fields as a short text, for tests: "cat docs started node=3 id=7
  // ids=12|15" with only the flags that are set.
  std::string dump() const;
};

}  // namespace qb
