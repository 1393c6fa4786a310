// Input that the control decides on: right clicks open the component's
// pop-up menus through the menu service, a choice runs the entry's command;
// dragging the splitter bar moves the divider.

#include <QCursor>
#include <QMenu>

#include "gui/popup_placement.h"
#include "gui/qt_platform.h"
#include "gui/twips.h"
#include "services/controls/platform.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {

namespace {

// What the menu service was asked to show, and the entry chosen on it.
struct MenuRecord {
  std::vector<std::string> menus;       // the menus' model names, in order
  std::vector<std::string> firstTexts;  // the first entry's text of each
  std::string choose;                   // the name of the entry to choose, "" for none
  std::vector<QRect> places;            // where each menu opened, on the screen
};

void recordMenus(gui::QtPlatform& platform, MenuRecord& record) {
  platform.setMenuRunner([&record](gui::PopupMenu& menu, const QPoint& at) -> QAction* {
    record.menus.push_back(menu.model().Name());
    record.places.emplace_back(at, menu.menu().sizeHint());
    record.firstTexts.push_back(menu.menu().actions().value(0)->text().toStdString());
    return record.choose.empty() ? nullptr : menu.actionNamed(record.choose);
  });
}

}  // namespace

TEST_F(DeskTest, RightClicksOpenTheComponentsMenus) {
  MenuRecord record;
  recordMenus(window_->platform(), record);
  clickCategory("Correspondence");
  gui::DocumentListWidget& list = listWidget();
  QAbstractItemView& view = list.currentView();

  // On a row: the row menu; choosing Details there switches the view.
  record.choose = "mnuDetailsView2";
  const QRect row = view.visualRect(view.model()->index(0, 0));
  click(*view.viewport(), row.center(), Qt::RightButton);
  ASSERT_EQ(record.menus, (std::vector<std::string>{"subMnuListViewNodeRightClick"}));
  EXPECT_EQ(record.firstTexts.back(), "Open Shortcuts");
  EXPECT_EQ(quillbox().lvDocuments().View(), lvwReport);
  EXPECT_EQ(&list.currentView(), &list.detailsView());

  // On empty space: the list menu; Icons switches back.
  record.choose = "mnuIconsView";
  QWidget& viewport = *list.currentView().viewport();
  click(viewport, QPoint(viewport.width() - 5, viewport.height() - 5), Qt::RightButton);
  ASSERT_EQ(record.menus.size(), 2u);
  EXPECT_EQ(record.menus[1], "subMnuListViewRightClick");
  EXPECT_EQ(record.firstTexts[1], "Add Shortcuts");
  EXPECT_EQ(quillbox().lvDocuments().View(), lvwIcon);

  // The tree: a right click opens the node menu and leaves the selection to
  // the control; a top-level node that was right-clicked stays unselected.
  record.choose.clear();
  gui::CategoryTreeWidget& tree = treeWidget();
  const TreeView& model = quillbox().tvClientDocumentation();
  Node& child = nodeNamed("Financial Statements");
  click(*tree.viewport(), tree.visualItemRect(tree.itemOf(&child)).center(), Qt::RightButton);
  EXPECT_EQ(record.menus.back(), "subMnuDocTreeViewNodeRightClick");
  Node* selected = model.SelectedItem();
  ASSERT_NE(selected, nullptr);
  Node* root = model.roots().front();
  ASSERT_NE(selected, root);
  click(*tree.viewport(), tree.visualItemRect(tree.itemOf(root)).center(), Qt::RightButton);
  EXPECT_EQ(record.menus.back(), "subMnuDocTreeViewNodeRightClick");
  EXPECT_EQ(model.SelectedItem(), selected);
  EXPECT_EQ(tree.nodeOf(tree.currentItem()), selected);
  // Empty tree space: the short menu.
  click(*tree.viewport(), QPoint(5, tree.viewport()->height() - 5), Qt::RightButton);
  EXPECT_EQ(record.menus.back(), "subMnuDocTreeViewRightClick");
  // The component's window got its message before every menu.
  EXPECT_EQ(sentMessages().size(), record.menus.size());
}

TEST(PopupPlacement, MenusStayOnTheWindowAndTheScreen) {
  const QRect screen(0, 0, 1600, 1200);
  const QRect window(100, 100, 800, 600);
  const QSize menu(200, 300);
  // Right-aligned at the point, or left-aligned.
  EXPECT_EQ(gui::popupPosition({500, 200}, menu, true, window, screen), QPoint(300, 200));
  EXPECT_EQ(gui::popupPosition({500, 200}, menu, false, window, screen), QPoint(500, 200));
  // Near the window's left edge a right-aligned menu opens to the right of
  // the point; near its right edge a left-aligned one to the left.
  EXPECT_EQ(gui::popupPosition({150, 200}, menu, true, window, screen), QPoint(150, 200));
  EXPECT_EQ(gui::popupPosition({850, 200}, menu, false, window, screen), QPoint(650, 200));
  // Near the screen's bottom it opens upwards; it never leaves the screen.
  EXPECT_EQ(gui::popupPosition({500, 1100}, menu, true, window, screen), QPoint(300, 800));
  EXPECT_EQ(gui::popupPosition({1590, 5}, menu, false, QRect(1500, 0, 100, 100), screen),
            QPoint(1390, 5));
  EXPECT_EQ(gui::popupPosition({10, 100}, QSize(200, 1500), true, QRect(), screen), QPoint(10, 0));
}

TEST_F(DeskTest, APopUpMenuNearTheWindowsLeftEdgeStaysOnTheWindow) {
  MenuRecord record;
  recordMenus(window_->platform(), record);
  gui::CategoryTreeWidget& tree = treeWidget();
  const QPoint nearTheEdge(4, tree.viewport()->height() - 5);
  QCursor::setPos(tree.viewport()->mapToGlobal(nearTheEdge));
  click(*tree.viewport(), nearTheEdge, Qt::RightButton);
  ASSERT_EQ(record.places.size(), 1u);
  const QRect shown(window_->mapToGlobal(QPoint(0, 0)), window_->size());
  EXPECT_GE(record.places[0].left(), shown.left());
  EXPECT_LE(record.places[0].right(), shown.right());
}

TEST_F(DeskTest, DraggingTheSplitterBarMovesTheDivider) {
  Splitter& splitter = quillbox().clientDocumentationSplitter();
  QWidget& bar = widgetOf(splitter.picSplitter);
  QWidget& ghost = widgetOf(splitter.picMover);
  QWidget& treeSide = widgetOf(quillbox().fraDocumentInfo(0));
  QWidget& listSide = widgetOf(quillbox().fraDocumentInfo(1));
  QWidget& tree = treeWidget();
  EXPECT_EQ(bar.cursor().shape(), Qt::SizeHorCursor);
  const int position = splitter.SplitterPosition();
  const int treeSideWidth = treeSide.width();
  const int treeWidth = tree.width();
  const int listSideWidth = listSide.width();

  const QPoint grip = bar.rect().center();
  const QPoint moved = grip + QPoint(120, 0);
  mouse(bar, QEvent::MouseButtonPress, grip, Qt::LeftButton, Qt::LeftButton);
  mouse(bar, QEvent::MouseMove, moved, Qt::NoButton, Qt::LeftButton);
  settle();
  // While the button is down only the ghost moves.
  EXPECT_TRUE(ghost.isVisible());
  EXPECT_GT(ghost.x(), bar.x() + 100);
  EXPECT_EQ(treeSide.width(), treeSideWidth);
  mouse(bar, QEvent::MouseButtonRelease, moved, Qt::LeftButton, Qt::NoButton);
  settle();

  EXPECT_FALSE(ghost.isVisible());
  EXPECT_GT(splitter.SplitterPosition(), position);
  EXPECT_EQ(quillbox().splitterPosition(), splitter.SplitterPosition());
  EXPECT_NEAR(treeSide.width(), treeSideWidth + 120, 2);
  EXPECT_NEAR(tree.width(), treeWidth + 120, 2);
  EXPECT_NEAR(listSide.width(), listSideWidth - 120, 2);
  EXPECT_EQ(bar.x(), treeSide.geometry().right() + 1);
  // The model and the widgets agree to the pixel.
  EXPECT_EQ(tree.width(), gui::toPixels(quillbox().tvClientDocumentation().Left() +
                                        quillbox().tvClientDocumentation().Width()) -
                              gui::toPixels(quillbox().tvClientDocumentation().Left()));
}

}  // namespace qb::test
