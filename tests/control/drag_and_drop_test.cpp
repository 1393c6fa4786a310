// Drag and drop through the component's handlers, as the GUI raises them:
// files dropped on the list, a frame and a tree node; rows dragged onto a
// node; a node dragged onto another, onto itself and onto its own
// descendant; drops with the store gone.

#include <filesystem>

#include "services/controls/data_object.h"
#include "services/controls/platform.h"
#include "tests/control/category_test.h"

namespace qb::test {
namespace {

class DragAndDropTest : public CategoryTest {
 protected:
  // A file drop on the control: enter, over, drop, as the GUI raises them.
  int32_t dropFiles(Control& target, const std::vector<std::string>& paths, float y) {
    DataObject data = DataObject::withFiles(paths);
    int32_t effect = DROPEFFECT_NONE;
    target.OLEDragOver.raise(data, effect, 1, 0, 100, y, vbEnter);
    target.OLEDragOver.raise(data, effect, 1, 0, 100, y, vbOver);
    const int32_t shown = effect;
    target.OLEDragDrop.raise(data, effect, 1, 0, 100, y);
    return shown;
  }
  // Rows pressed (after selecting them), dragged over the list and dropped
  // on a node; the effect shown over the node.
  int32_t dragRows(std::initializer_list<const char*> texts, int32_t targetCategory) {
    ListView& list = quillbox.lvDocuments();
    list.setSelectedItem(nullptr);
    for (const char* text : texts) row(text).setSelected(true);
    list.MouseDown.raise(1, 0, 100, yOf(row(*texts.begin())));
    DataObject data;
    int32_t allowed = DROPEFFECT_NONE;
    list.OLEStartDrag.raise(data, allowed);
    EXPECT_EQ(allowed, DROPEFFECT_MOVE);
    int32_t effect = DROPEFFECT_NONE;
    list.OLEDragOver.raise(data, effect, 1, 0, 100, 100, vbOver);
    EXPECT_EQ(effect, DROPEFFECT_NONE);  // not on the list itself
    return overAndDrop(data, targetCategory);
  }
  // A node pressed, dragged and dropped on another node.
  int32_t dragNode(int32_t categoryID, int32_t targetCategory) {
    TreeView& tree = quillbox.tvClientDocumentation();
    tree.MouseDown.raise(1, 0, 100, yOf(categoryID));
    DataObject data;
    int32_t allowed = DROPEFFECT_NONE;
    tree.OLEStartDrag.raise(data, allowed);
    return allowed == DROPEFFECT_NONE ? DROPEFFECT_NONE : overAndDrop(data, targetCategory);
  }
  int32_t overAndDrop(DataObject& data, int32_t targetCategory) {
    TreeView& tree = quillbox.tvClientDocumentation();
    const float y = yOf(targetCategory);
    int32_t effect = DROPEFFECT_NONE;
    tree.OLEDragOver.raise(data, effect, 1, 0, 100, y, vbOver);
    const int32_t shown = effect;
    tree.OLEDragDrop.raise(data, effect, 1, 0, 100, y);
    return shown;
  }
  std::string parentOf(int32_t categoryID) {
    return db.scalar("SELECT DocCategoryNum FROM DocCategories WHERE DocCategoryID = " +
                     std::to_string(categoryID));
  }
  std::string categoryOf(int32_t documentID) {
    return db.scalar("SELECT DocCategoryNum FROM Documents WHERE DocumentID = " +
                     std::to_string(documentID));
  }
};

TEST_F(DragAndDropTest, FilesDroppedOnTheListAFrameOrANodeAreLinkedWhereTheyFall) {
  start(quillbox);
  show(quillbox, 3);
  const std::string scan = db.folder().writeFile("inbox/scan.pdf", "pdf");
  const std::string memo = db.folder().writeFile("inbox/memo.txt", "memo");
  const std::string folder = (db.folder().path() / "inbox").string();
  const std::string nowhere = folder + "/gone.txt";
  ListView& list = quillbox.lvDocuments();
  EXPECT_EQ(dropFiles(list, {scan, folder, nowhere, memo}, 100), DROPEFFECT_COPY);
  EXPECT_EQ(rows(), "Letter;memo.txt;scan.pdf;");
  // The folder and the path that is neither are refused, and the rest goes on.
  EXPECT_EQ(messageTexts(),
            (std::vector<std::string>{
                "You are trying to add the folder '" + folder +
                    "'.  You cannot add a folder to the Orvanta Quillbox.",
                "Orvanta could not add the file '" + nowhere + "' to the Document Quillbox."}));
  EXPECT_EQ(messages->messages[0].style, 4);
  // Busy for the batch, back to the default around each message and at the end.
  std::vector<int16_t> pointers = screen().pointerHistory();
  EXPECT_EQ(std::vector<int16_t>(pointers.end() - 4, pointers.end()),
            (std::vector<int16_t>{11, 0, 11, 0}));

  // A frame passes its drop on to the list: into the selected category.
  dropFiles(quillbox.fraDocumentInfo(1), {memo}, 100);
  EXPECT_EQ(count("Documents", "DocCategoryNum = 3 AND DocPath = '" + memo + "'"), "2");

  // On a node: the node is selected first, and the files go there.
  TreeView& tree = quillbox.tvClientDocumentation();
  EXPECT_EQ(dropFiles(tree, {scan}, yOf(4)), DROPEFFECT_COPY);
  EXPECT_EQ(tree.SelectedItem(), &node(4));
  EXPECT_EQ(rows(), "scan.pdf;");
  EXPECT_TRUE(tree.hasFocus());

  // On empty tree space nothing happens.
  const std::string before = count("Documents", "1 = 1");
  EXPECT_EQ(dropFiles(tree, {scan}, 100000), DROPEFFECT_COPY);
  EXPECT_EQ(count("Documents", "1 = 1"), before);
  EXPECT_TRUE(std::filesystem::exists(scan));
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(DragAndDropTest, RowsDraggedOntoANodeMoveThereAndRowsDroppedOnTheListStay) {
  start(quillbox);
  show(quillbox, 2);
  EXPECT_EQ(dragRows({"Notes", "Budget"}, 3), DROPEFFECT_MOVE);
  EXPECT_EQ(categoryOf(11), "3");
  EXPECT_EQ(categoryOf(12), "3");
  EXPECT_EQ(categoryOf(10), "2");
  EXPECT_EQ(quillbox.tvClientDocumentation().SelectedItem(), &node(3));
  EXPECT_EQ(rows(), "Budget;Letter;Notes;");
  EXPECT_FALSE(quillbox.draggingDocuments());

  // Dropped back on the list the rows stay where they are.
  ListView& list = quillbox.lvDocuments();
  list.setSelectedItem(&row("Letter"));
  list.MouseDown.raise(1, 0, 100, yOf(row("Letter")));
  DataObject rowsData;
  int32_t allowed = 0, effect = 0;
  list.OLEStartDrag.raise(rowsData, allowed);
  list.OLEDragDrop.raise(rowsData, effect, 1, 0, 100, 100);
  EXPECT_EQ(categoryOf(13), "3");
  EXPECT_EQ(rows(), "Budget;Letter;Notes;");

  // A press on empty list space arms nothing new; one on a row with the
  // selection empty keeps the earlier arming.
  EXPECT_EQ(quillbox.dragState().draggedDocumentIDs, "13");
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(DragAndDropTest, NodesDraggedOntoNodesMoveWithTheirSubtreeButNeverUnderThemselves) {
  start(quillbox);
  show(quillbox, 2);
  TreeView& tree = quillbox.tvClientDocumentation();
  node(2).setExpanded(true);
  // Taxes with its child onto Letters.
  EXPECT_EQ(dragNode(2, 3), DROPEFFECT_MOVE);
  EXPECT_EQ(parentOf(2), "3");
  EXPECT_EQ(node(2).Parent(), &node(3));
  EXPECT_EQ(node(6).Parent(), &node(2));
  EXPECT_EQ(quillbox.dragState().dump(), "node=" + std::to_string(node(2).Index()) + " id=2");
  EXPECT_TRUE(tree.isConsistent());

  // Onto its own child: the tree refuses before the store is touched.
  node(3).setExpanded(true);
  node(2).setExpanded(true);
  EXPECT_EQ(dragNode(2, 6), DROPEFFECT_MOVE);
  EXPECT_EQ(parentOf(2), "3");
  EXPECT_EQ(node(2).Parent(), &node(3));
  ASSERT_EQ(errors->failures.size(), 1u);
  EXPECT_EQ(errors->failures[0].stack.back(),
            "Orvanta.exe-nvDocumentQuillbox-DocumentListView_OLEDragDrop");
  // The user's answer left the handler before the end of the drop.
  EXPECT_TRUE(quillbox.draggingCategory());
  EXPECT_TRUE(tree.isConsistent());

  // Onto itself: nothing moves, and the drag is over.
  dragNode(3, 3);
  EXPECT_EQ(parentOf(3), "1");
  EXPECT_FALSE(quillbox.draggingCategory());
  EXPECT_FALSE(quillbox.dragState().categoryDragStarted);

  // A top-level node can't be dragged.
  EXPECT_EQ(dragNode(1, 3), DROPEFFECT_NONE);
  EXPECT_EQ(parentOf(1), "");

  // A category that passes over the list is no longer dragged: dropped on a
  // node it moves nothing.
  tree.MouseDown.raise(1, 0, 100, yOf(4));
  DataObject data;
  int32_t allowed = 0, effect = 0;
  tree.OLEStartDrag.raise(data, allowed);
  quillbox.lvDocuments().OLEDragOver.raise(data, effect, 1, 0, 100, 100, vbOver);
  EXPECT_EQ(effect, DROPEFFECT_NONE);
  effect = DROPEFFECT_COPY;
  overAndDrop(data, 3);
  EXPECT_EQ(parentOf(4), "1");
  EXPECT_EQ(errors->failures.size(), 1u);
}

TEST_F(DragAndDropTest, WithTheStoreGoneAMoveChangesNothingInTheStore) {
  start(quillbox);
  show(quillbox, 2);
  db.store().close();
  dragRows({"Notes"}, 3);
  dragNode(4, 3);
  db.store().open(db.path());
  EXPECT_EQ(categoryOf(11), "2");
  EXPECT_EQ(parentOf(4), "1");
}

}  // namespace
}  // namespace qb::test
