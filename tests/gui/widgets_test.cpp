// The widgets on their own, over models a test builds: geometry and state
// follow the model, the list and the tree keep selection, expansion and
// columns in step both ways, input arrives as the model's events, menus are
// built from the menu model.

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>

#include "gui/colors.h"
#include "gui/control_widgets.h"
#include "gui/input_codes.h"
#include "gui/popup_menu.h"
#include "gui/theme_icons.h"
#include "services/controls/frame.h"
#include "services/controls/label.h"
#include "services/controls/menu_item.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {

namespace {

class WidgetsTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { ensureApplication(); }
};

// The widgets of a model tree in a window of their own. Declared after the
// models, it goes (and its widgets stop observing) before they do.
struct Rendered {
  explicit Rendered(Control& control) : window(std::make_unique<QWidget>()) {
    window->resize(800, 600);
    gui::createControlWidgets(control, window.get(), &widgets);
    window->show();
    settle();
  }
  template <class W>
  W& widget(const Control& control) {
    return dynamic_cast<W&>(*widgets.value(&control));
  }

  std::unique_ptr<QWidget> window;
  gui::ControlWidgetMap widgets;
};

void fillRows(ListView& list, const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    ListItem& row = list.ListItems().Add(0, "", name);
    row.ListSubItems().Add(1, "", std::to_string(name.size()) + " Mb");
  }
}

}  // namespace

TEST(InputCodes, QtInputAsTheModelsCodes) {
  auto key = [](int qtKey) {
    return gui::keyCode(QKeyEvent(QEvent::KeyPress, qtKey, Qt::NoModifier));
  };
  EXPECT_EQ(key(Qt::Key_Delete), 46);
  EXPECT_EQ(key(Qt::Key_Return), 13);
  EXPECT_EQ(key(Qt::Key_Enter), 13);
  EXPECT_EQ(key(Qt::Key_Left), 37);
  EXPECT_EQ(key(Qt::Key_Up), 38);
  EXPECT_EQ(key(Qt::Key_Right), 39);
  EXPECT_EQ(key(Qt::Key_Down), 40);
  EXPECT_EQ(key(Qt::Key_F2), 113);
  EXPECT_EQ(key(Qt::Key_A), 65);
  EXPECT_EQ(key(Qt::Key_7), 55);
  EXPECT_EQ(key(Qt::Key_Escape), 27);
  EXPECT_EQ(key(Qt::Key_VolumeUp), 0);
  EXPECT_EQ(gui::buttonNumber(Qt::RightButton), 2);
  EXPECT_EQ(gui::buttonNumber(Qt::MiddleButton), 4);
  EXPECT_EQ(gui::buttonState(Qt::LeftButton | Qt::RightButton), 3);
  EXPECT_EQ(gui::shiftState(Qt::ShiftModifier | Qt::AltModifier), 5);
  // Colours: 0x00BBGGRR, and the system's colours from the palette.
  EXPECT_EQ(gui::toQColor(0x00804000, QPalette()), QColor(0, 0x40, 0x80));
  QPalette palette;
  palette.setColor(QPalette::Window, Qt::magenta);
  EXPECT_EQ(gui::toQColor(0x8000000F, palette), QColor(Qt::magenta));
}

TEST_F(WidgetsTest, WidgetsFollowTheirModels) {
  Frame form("frmTest");
  Frame frame("fraTest");
  Label label("lblTest", 2);
  form.add(frame);
  frame.add(label);
  frame.Move(150, 150, 6000, 3000);
  frame.setBorderStyle(1);
  label.Move(30, 44, 1500, 300);
  label.setCaption("Client name");
  label.setToolTipText("The client");
  Rendered rendered(form);
  QWidget& frameWidget = rendered.widget<QWidget>(frame);
  auto& labelWidget = rendered.widget<QLabel>(label);
  EXPECT_EQ(labelWidget.objectName(), "lblTest(2)");
  EXPECT_EQ(frameWidget.geometry(), QRect(10, 10, 400, 200));
  // Inside the 30-twip border; edges rounded to the nearest pixel.
  EXPECT_EQ(labelWidget.geometry(), QRect(4, 5, 100, 20));
  EXPECT_EQ(labelWidget.text(), "Client name");
  EXPECT_EQ(labelWidget.toolTip(), "The client");

  label.setCaption("Maple Leaf Bakery");
  label.setVisible(false);
  frame.setEnabled(false);
  frame.Move(300, 0, 3000, 1500);
  EXPECT_EQ(labelWidget.text(), "Maple Leaf Bakery");
  EXPECT_FALSE(labelWidget.isVisible());
  EXPECT_FALSE(frameWidget.isEnabled());
  EXPECT_EQ(frameWidget.geometry(), QRect(20, 0, 200, 100));
  label.setMousePointer(11);
  EXPECT_EQ(labelWidget.cursor().shape(), Qt::WaitCursor);

  // Input on the widget reaches the model in twips, relative to the control.
  label.setVisible(true);
  std::vector<std::string> events;
  label.MouseDown = [&](int16_t b, int16_t s, float x, float y) {
    events.push_back("down " + std::to_string(b) + " " + std::to_string(s) + " " +
                     std::to_string(int(x)) + "," + std::to_string(int(y)));
  };
  label.Click = [&] { events.push_back("click"); };
  label.KeyUp = [&](int16_t key, int16_t) { events.push_back("key " + std::to_string(key)); };
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(3, 4), QPointF(3, 4), Qt::RightButton,
                    Qt::RightButton, Qt::ShiftModifier);
  QApplication::sendEvent(&labelWidget, &press);
  mouse(labelWidget, QEvent::MouseButtonRelease, QPoint(3, 4), Qt::RightButton, Qt::NoButton);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Delete, Qt::NoModifier);
  QApplication::sendEvent(&labelWidget, &release);
  EXPECT_EQ(events, (std::vector<std::string>{"down 2 1 45,60", "click", "key 46"}));
}

TEST_F(WidgetsTest, DocumentListKeepsRowsSelectionAndColumnsInStep) {
  ListView list("lvTest");
  list.Move(0, 0, 7500, 4500);
  list.setMultiSelect(true);
  list.ColumnHeaders().Add(0, "", "Name", 3000);
  list.ColumnHeaders().Add(0, "", "Size", 1500, lvwColumnRight);
  list.setView(lvwReport);
  fillRows(list, {"b.pdf", "a.txt", "c.docx"});
  Rendered rendered(list);
  auto& widget = rendered.widget<gui::DocumentListWidget>(list);
  QAbstractItemModel& shown = *widget.detailsView().model();
  ASSERT_EQ(shown.rowCount(), 3);
  EXPECT_EQ(shown.index(1, 1).data().toString(), "5 Mb");
  EXPECT_EQ(shown.index(1, 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight,
            Qt::AlignRight);
  // A row without a picture still shows an icon: the drawn page.
  const QIcon drawn = qvariant_cast<QIcon>(shown.index(0, 0).data(Qt::DecorationRole));
  EXPECT_FALSE(drawn.isNull());

  // Sorting moves the rows: the views follow.
  list.setSorted(true);
  EXPECT_EQ(shown.index(0, 0).data().toString(), "a.txt");

  // Selection, both ways.
  QItemSelectionModel& selection = *widget.detailsView().selectionModel();
  selection.select(shown.index(2, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
  selection.setCurrentIndex(shown.index(2, 0), QItemSelectionModel::NoUpdate);
  EXPECT_EQ(list.dump(true), "[a.txt|5 Mb][b.pdf|5 Mb][*c.docx|6 Mb]");
  EXPECT_EQ(list.SelectedItem(), &list.ListItems()(3));
  list.ListItems()(1).setSelected(true);
  EXPECT_TRUE(selection.isRowSelected(0, QModelIndex()));
  EXPECT_TRUE(selection.isRowSelected(2, QModelIndex()));
  list.setSelectedItem(nullptr);
  EXPECT_FALSE(selection.hasSelection());

  // Columns: widths from the model; a resize or a move by the user goes back.
  QHeaderView& header = *widget.detailsView().header();
  EXPECT_EQ(header.sectionSize(0), 200);
  header.resizeSection(1, 120);
  EXPECT_EQ(list.ColumnHeaders()(2).Width(), 1800);
  header.moveSection(1, 0);
  EXPECT_EQ(list.ColumnHeaders()(2).Position(), 1);
  EXPECT_EQ(list.ColumnHeaders()(1).Position(), 2);
  std::string clicked;
  list.ColumnClick = [&](ColumnHeader& column) { clicked = column.Text(); };
  emit header.sectionClicked(1);
  EXPECT_EQ(clicked, "Size");

  // A click on a row: ItemClick with that row; HitTest finds the same row.
  std::vector<std::string> events;
  list.ItemClick = [&](ListItem& item) { events.push_back(item.Text()); };
  list.Click = [&] { events.push_back("click"); };
  QWidget& viewport = *widget.detailsView().viewport();
  const QPoint onRow = widget.detailsView().visualRect(shown.index(1, 0)).center();
  click(viewport, onRow);
  EXPECT_EQ(events, (std::vector<std::string>{"b.pdf", "click"}));
  const QPoint inList = viewport.mapTo(&widget, onRow);
  EXPECT_EQ(list.HitTest(inList.x() * 15.0f, inList.y() * 15.0f), &list.ListItems()(2));
  EXPECT_EQ(list.HitTest(15.0f * 5, 15.0f * (widget.height() - 5)), nullptr);
}

TEST_F(WidgetsTest, CategoryTreeFollowsNodesBothWays) {
  TreeView tree("tvTest");
  tree.Move(0, 0, 4500, 4500);
  Node& main = tree.Nodes().Add(nullptr, tvwLast, "Category:1", "Main");
  tree.Nodes().Add(&main, tvwChild, "Category:2", "Taxes");
  Node& letters = tree.Nodes().Add(&main, tvwChild, "Category:3", "Letters");
  tree.setSelectedItem(&main);
  Rendered rendered(tree);
  auto& widget = rendered.widget<gui::CategoryTreeWidget>(tree);
  ASSERT_EQ(widget.topLevelItemCount(), 1);
  EXPECT_EQ(widget.topLevelItem(0)->childCount(), 2);
  EXPECT_EQ(widget.currentItem(), widget.itemOf(&main));
  EXPECT_FALSE(widget.topLevelItem(0)->icon(0).isNull());

  // Expanding in the widget is the user's expand; the model's is shown.
  std::vector<std::string> events;
  tree.Expand = [&](Node& node) { events.push_back("expand " + node.Text()); };
  tree.Collapse = [&](Node& node) { events.push_back("collapse " + node.Text()); };
  tree.NodeClick = [&](Node& node) { events.push_back("click " + node.Text()); };
  widget.expandItem(widget.itemOf(&main));
  EXPECT_TRUE(main.Expanded());
  main.setExpanded(false);
  EXPECT_FALSE(widget.itemOf(&main)->isExpanded());
  main.setExpanded(true);
  settle();

  // A left click selects as the user's click; the arrow keys move the
  // selection without one.
  click(*widget.viewport(), widget.visualItemRect(widget.itemOf(&letters)).center());
  EXPECT_EQ(tree.SelectedItem(), &letters);
  QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
  QApplication::sendEvent(&widget, &up);
  EXPECT_EQ(tree.SelectedItem()->Text(), "Taxes");
  EXPECT_EQ(events, (std::vector<std::string>{"expand Main", "click Letters"}));

  // Nodes added, renamed and removed in the model show at once.
  tree.Nodes().Add(&letters, tvwChild, "Category:4", "2025");
  letters.setText("Correspondence");
  EXPECT_EQ(widget.itemOf(&letters)->text(0), "Correspondence");
  EXPECT_EQ(widget.itemOf(&letters)->childCount(), 1);
  const QPoint onTaxes =
      widget.visualItemRect(widget.itemOf(tree.Nodes().find("Category:2"))).center();
  const QPoint inTree = widget.viewport()->mapTo(&widget, onTaxes);
  EXPECT_EQ(tree.HitTest(inTree.x() * 15.0f, inTree.y() * 15.0f)->Text(), "Taxes");
  tree.Nodes().Remove("Category:3");
  EXPECT_EQ(widget.topLevelItem(0)->childCount(), 1);
  tree.Nodes().Clear();
  EXPECT_EQ(widget.topLevelItemCount(), 0);
  EXPECT_EQ(widget.currentItem(), nullptr);
}

TEST_F(WidgetsTest, PopupMenusFollowTheMenuModel) {
  MenuItem menu("subMnuTest", "Test");
  int added = 0;
  menu.add("mnuAdd", "Add Shortcuts").Click = [&] { ++added; };
  menu.add("mnuSeparator", "-");
  MenuItem& view = menu.add("mnuView", "View");
  view.add("mnuIcons", "Icons");
  view.add("mnuDetails", "Details").setEnabled(false);
  menu.add("mnuHidden", "Hidden").setVisible(false);
  gui::PopupMenu popup(menu, nullptr);
  QList<QAction*> actions = popup.menu().actions();
  ASSERT_EQ(actions.size(), 3);
  EXPECT_TRUE(actions[1]->isSeparator());
  ASSERT_NE(actions[2]->menu(), nullptr);
  EXPECT_EQ(actions[2]->menu()->actions().size(), 2);
  EXPECT_FALSE(popup.actionNamed("mnuDetails")->isEnabled());
  EXPECT_EQ(popup.actionNamed("mnuHidden"), nullptr);
  popup.choose(popup.actionNamed("mnuAdd"));
  popup.choose(nullptr);
  EXPECT_EQ(added, 1);
}

}  // namespace qb::test
