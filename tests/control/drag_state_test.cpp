// The drag state's rules, case by case: the fields before (as DragState::dump
// writes them), one event, and the fields and the effect after.

#include "control/drag_state.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "services/controls/data_object.h"

namespace qb {
namespace {

// Fields from their dump: "cat docs started node=3 id=7 ids=12|15".
DragState fields(const std::string& text) {
  DragState state;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    if (word == "cat") state.draggingCategory = true;
    if (word == "docs") state.draggingDocuments = true;
    if (word == "started") state.categoryDragStarted = true;
    if (word.starts_with("node=")) state.dragNodeIndex = std::stoi(word.substr(5));
    if (word.starts_with("id=")) state.dragCategoryID = std::stoi(word.substr(3));
    if (word.starts_with("ids=")) state.draggedDocumentIDs = word.substr(4);
  }
  return state;
}

struct Case {
  const char* before;
  const char* event;
  std::function<int32_t(DragState&)> apply;  // the effect or allowed effects it gives
  int32_t result;
  const char* after;
};

// An effect a handler leaves alone comes back as it was proposed.
constexpr int32_t kProposed = 7;

void check(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    DragState state = fields(c.before);
    const int32_t result = c.apply(state);
    EXPECT_EQ(result, c.result) << "[" << c.before << "] " << c.event;
    EXPECT_EQ(state.dump(), c.after) << "[" << c.before << "] " << c.event;
  }
}

TEST(DragState, PressesArmAndDisarm) {
  auto row = [](const std::string& ids) {
    return [ids](DragState& s) { return s.pressOnRow(ids), 0; };
  };
  auto tree = [](bool hit, bool hasParent, int32_t index) {
    return [=](DragState& s) { return s.pressOnTree(hit, hasParent, index), 0; };
  };
  check({
      {"", "press on a row with two selected", row("12|15"), 0, "docs ids=12|15"},
      {"docs ids=1", "press on a row with none selected", row(""), 0, "docs"},
      {"cat node=3", "press on a row", row("9"), 0, "cat docs node=3 ids=9"},
      {"", "press on a child node", tree(true, true, 4), 0, "cat node=4"},
      {"cat node=4", "press on another child node", tree(true, true, 6), 0, "cat node=6"},
      {"", "press on a top-level node", tree(true, false, 1), 0, ""},
      {"cat node=4", "press on a top-level node", tree(true, false, 1), 0, "cat node=4"},
      {"cat started node=4", "press on empty tree space", tree(false, false, 0), 0,
       "started node=4"},
      {"cat docs node=4", "the tree loses the focus",
       [](DragState& s) { return s.treeLostFocus(), 0; }, 0, "docs node=4"},
  });
}

TEST(DragState, StartsDecideWhatTheDragAllowsAndTheTreesModes) {
  // The effects allowed, then the tree's drag and drop modes (-1: left).
  auto fromTree = [](bool files, std::vector<int32_t> expectModes) {
    return [files, expectModes](DragState& s) {
      DragState::Start start = s.startFromTree(files, [] { return 42; });
      EXPECT_EQ(start.dragMode, expectModes[0]);
      EXPECT_EQ(start.dropMode, expectModes[1]);
      return start.allowedEffects;
    };
  };
  auto fromList = [](DragState& s) { return s.startFromList().allowedEffects; };
  check({
      {"", "a drag of rows from the list", fromList, DROPEFFECT_MOVE, "docs"},
      {"cat node=3", "a drag from the list", fromList, DROPEFFECT_MOVE, "cat docs node=3"},
      // A category: moved, with the selected node's category.
      {"cat node=3", "a drag of a node", fromTree(false, {1, 1}), DROPEFFECT_MOVE,
       "cat started node=3 id=42"},
      {"cat docs node=3 ids=5", "a drag of a node after a press on a row", fromTree(false, {1, 1}),
       DROPEFFECT_MOVE, "cat started node=3 id=42 ids=5"},
      // Rows armed: the tree's drag carries them.
      {"docs ids=5", "a drag from a top-level node", fromTree(false, {1, 1}), DROPEFFECT_MOVE,
       "docs ids=5"},
      {"", "a drag from the tree with nothing armed", fromTree(false, {-1, -1}), DROPEFFECT_NONE,
       ""},
      // Files clear both flags, and then nothing is allowed.
      {"cat docs node=3", "a drag of files from the tree", fromTree(true, {0, 1}), DROPEFFECT_NONE,
       "node=3"},
  });
}

TEST(DragState, TheTableOfEffectsRunsItsTestsInOrder) {
  auto overList = [](bool files) {
    return [files](DragState& s) { return s.overList(files, kProposed); };
  };
  auto overTree = [](bool files, bool onNode) {
    return [=](DragState& s) { return s.overTree(files, onNode, kProposed); };
  };
  check({
      // Over the list.
      {"cat docs started", "files over the list", overList(true), DROPEFFECT_COPY, "started"},
      {"cat docs started", "a category over the list", overList(false), DROPEFFECT_NONE, "started"},
      {"docs ids=4", "rows over the list", overList(false), DROPEFFECT_NONE, "docs ids=4"},
      {"", "anything else over the list", overList(false), kProposed, ""},
      // Over the tree.
      {"cat docs", "files over the tree", overTree(true, true), DROPEFFECT_COPY, ""},
      {"cat started", "a started category over a node", overTree(false, true), DROPEFFECT_MOVE,
       "cat started"},
      {"cat started", "a started category over empty space", overTree(false, false),
       DROPEFFECT_NONE, "cat started"},
      {"cat", "an armed category that never started", overTree(false, true), DROPEFFECT_NONE,
       "cat"},
      {"docs", "rows over a node", overTree(false, true), DROPEFFECT_MOVE, "docs"},
      {"docs", "rows over empty tree space", overTree(false, false), DROPEFFECT_MOVE, "docs"},
      // Both armed: the rows' test comes last and decides.
      {"cat docs started", "a category and rows over empty space", overTree(false, false),
       DROPEFFECT_MOVE, "cat docs started"},
      // A category that touched the list is over: no row applies on the tree.
      {"started", "a category back on the tree", overTree(false, true), kProposed, "started"},
  });
}

TEST(DragState, DropsEndTheirDrags) {
  check({
      {"docs ids=4|5", "rows dropped on a node", [](DragState& s) { return s.rowsDropped(), 0; }, 0,
       "ids=4|5"},
      // A category drop ends the drag, moved or not; the ids stay for the
      // next drag to start from.
      {"cat started node=3 id=9", "a category dropped",
       [](DragState& s) { return s.categoryDropped(), 0; }, 0, "node=3 id=9"},
  });
}

}  // namespace
}  // namespace qb
