// The client screen: the component's tree and list rendered by the widgets,
// a category chosen by a click on the tree, the four views, client
// navigation through the component's buttons.

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QStyledItemDelegate>

#include "app/common/client_roster.h"
#include "gui/theme_icons.h"
#include "services/controls/platform.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {

namespace {

// The view on show has exactly the model's rows, each laid out where the
// view finds it again, with the model's texts in every column.
void expectListShowsModel(gui::DocumentListWidget& widget) {
  const ListView& list = widget.control();
  QAbstractItemView& view = widget.currentView();
  QAbstractItemModel& shown = *view.model();
  ASSERT_EQ(shown.rowCount(), list.ListItems().Count());
  const int columns = std::max(1, list.ColumnHeaders().Count());
  ASSERT_EQ(shown.columnCount(), columns);
  for (int row = 0; row < shown.rowCount(); ++row) {
    const ListItem& item = list.ListItems().item(row + 1);
    for (int column = 0; column < columns; ++column) {
      EXPECT_EQ(shown.index(row, column).data().toString().toStdString(), item.SubItems(column))
          << "row " << row << " column " << column;
    }
    const QRect place = view.visualRect(shown.index(row, 0));
    EXPECT_FALSE(place.isEmpty());
    EXPECT_EQ(view.indexAt(place.center()).row(), row);
  }
}

std::vector<std::string> rowTexts(const ListView& list) {
  std::vector<std::string> texts;
  for (int32_t i = 1; i <= list.ListItems().Count(); ++i)
    texts.push_back(list.ListItems()(i).Text());
  return texts;
}

}  // namespace

TEST_F(DeskTest, ShowsTheClientAndFollowsAClickOnTheTree) {
  EXPECT_EQ(window_->windowTitle().toStdString(),
            "Client Documents — Rideau Valley Accounting LLP");
  EXPECT_EQ(quillbox().lblClientName().Caption(), "  Maple Leaf Bakery Ltd.");
  expectListShowsModel(listWidget());

  // The tree shows the model's nodes, the selected one current.
  gui::CategoryTreeWidget& tree = treeWidget();
  const TreeView& model = quillbox().tvClientDocumentation();
  EXPECT_EQ(tree.topLevelItemCount(), static_cast<int>(model.roots().size()));
  EXPECT_EQ(tree.nodeOf(tree.currentItem()), model.SelectedItem());

  // A left click on a category: the model selects it, its MouseUp fills the
  // list, and the widget shows the new rows.
  int mouseUps = 0;
  auto handler = quillbox().tvClientDocumentation().MouseUp;
  quillbox().tvClientDocumentation().MouseUp = [&](int16_t button, int16_t shift, float x,
                                                   float y) {
    ++mouseUps;
    handler(button, shift, x, y);
  };
  clickCategory("Correspondence");
  EXPECT_EQ(mouseUps, 1);
  EXPECT_EQ(model.SelectedItem(), &nodeNamed("Correspondence"));
  EXPECT_EQ(quillbox().headerGradient().Caption(), "  Correspondence");
  EXPECT_EQ(
      rowTexts(quillbox().lvDocuments()),
      (std::vector<std::string>{"Engagement Letter", "Meeting notes", "Missing receipts letter"}));
  expectListShowsModel(listWidget());
}

TEST_F(DeskTest, ShowsTheFourViewsAndSavesScreenshots) {
  clickCategory("Correspondence");
  gui::DocumentListWidget& widget = listWidget();

  quillbox().changeDocListViewView(viewDetails);
  settle();
  ASSERT_EQ(&widget.currentView(), &widget.detailsView());
  const ColumnHeaderCollection& columns = quillbox().lvDocuments().ColumnHeaders();
  QHeaderView& header = *widget.detailsView().header();
  ASSERT_EQ(header.count(), columns.Count());
  for (int32_t i = 1; i <= columns.Count(); ++i) {
    EXPECT_EQ(header.model()->headerData(i - 1, Qt::Horizontal).toString().toStdString(),
              columns(i).Text());
    EXPECT_EQ(header.sectionSize(i - 1), static_cast<int>(columns(i).Width() / 15 + 0.5))
        << columns(i).Text();
  }
  expectListShowsModel(widget);
  screenshot("client-documents-details");

  quillbox().changeDocListViewView(viewIcons);
  settle();
  ASSERT_EQ(&widget.currentView(), &widget.listView());
  EXPECT_EQ(widget.listView().viewMode(), QListView::IconMode);
  EXPECT_EQ(widget.listView().iconSize(), QSize(32, 32));
  expectListShowsModel(widget);
  screenshot("client-documents-icons");

  quillbox().changeDocListViewView(viewSmallIcons);
  EXPECT_EQ(widget.listView().viewMode(), QListView::ListMode);
  EXPECT_EQ(widget.listView().flow(), QListView::LeftToRight);
  settle();
  expectListShowsModel(widget);
  screenshot("client-documents-small-icons");
  quillbox().changeDocListViewView(viewList);
  EXPECT_EQ(widget.listView().flow(), QListView::TopToBottom);
  settle();
  expectListShowsModel(widget);
  screenshot("client-documents-list");

  // The window's view menu follows the component.
  for (QAction* action : window_->findChildren<QAction*>()) {
    if (action->isCheckable()) {
      EXPECT_EQ(action->isChecked(), action->text() == "&List") << action->text().toStdString();
    }
  }
}

// Every row of the icon views fills its grid cell, whichever row comes
// first; under large icons the cell has room for the whole name.
void expectRowsFillTheirCells(QListView& view, const std::string& where) {
  const QSize cell = view.gridSize() - QSize(2, 2);
  QAbstractItemModel& rows = *view.model();
  ASSERT_GT(rows.rowCount(), 1) << where;
  for (int row = 0; row < rows.rowCount(); ++row) {
    const QModelIndex index = rows.index(row, 0);
    const QRect place = view.visualRect(index);
    if (view.viewMode() == QListView::IconMode) {
      EXPECT_EQ(place.size(), cell) << where << " row " << row;
      // The name wrapped in the cell's width, as the plain delegate lays it.
      QStyleOptionViewItem option;
      option.initFrom(&view);
      option.font = view.font();
      option.decorationSize = view.iconSize();
      option.decorationPosition = QStyleOptionViewItem::Top;
      option.displayAlignment = Qt::AlignCenter;
      option.features = QStyleOptionViewItem::WrapText;
      option.rect = QRect(QPoint(), cell);
      const QSize natural = QStyledItemDelegate().sizeHint(option, index);
      EXPECT_LE(natural.height(), place.height())
          << where << ": " << index.data().toString().toStdString();
    } else {
      EXPECT_EQ(place.width(), cell.width()) << where << " row " << row;
    }
  }
}

TEST_F(DeskTest, IconViewsShowWholeNamesInEitherSortAndAfterARestart) {
  gui::CategoryTreeWidget& tree = treeWidget();
  tree.expandItem(tree.itemOf(&nodeNamed("Tax Returns")));
  settle();
  clickCategory("2024");
  QListView& view = listWidget().listView();
  for (enumListViewSort sort : {sortAscending, SortDescending}) {
    quillbox().changeDocListViewSort(sort);
    for (enumListViewViews shown : {viewIcons, viewSmallIcons}) {
      quillbox().changeDocListViewView(shown);
      settle();
      expectRowsFillTheirCells(view,
                               "sort " + std::to_string(sort) + " view " + std::to_string(shown));
    }
  }
  quillbox().changeDocListViewView(viewIcons);
  ASSERT_TRUE(window_->close());
  ASSERT_TRUE(window_->openDatabase(QString::fromStdString(folder_.file("firm.db"))));
  ASSERT_TRUE(window_->showClient(true, 2));  // the bakery again
  settle();
  EXPECT_EQ(quillbox().ListViewSort(), SortDescending);
  EXPECT_EQ(quillbox().ListViewViews(), viewIcons);
  gui::CategoryTreeWidget& reopened = treeWidget();
  reopened.expandItem(reopened.itemOf(&nodeNamed("Tax Returns")));
  settle();
  clickCategory("2024");
  EXPECT_EQ(quillbox().lvDocuments().ListItems()(1).Text(), "Notice of Assessment 2024");
  expectRowsFillTheirCells(listWidget().listView(), "after the restart");
  screenshot("client-documents-icons-descending");
}

TEST_F(DeskTest, PdfRowsShowThePdfIconAndTheFillShowsTheBusyPointer) {
  std::vector<int16_t> pointers;
  int32_t watch = screen().addObserver([&](int16_t pointer) {
    pointers.push_back(QApplication::overrideCursor() ? 11 : 0);
    (void)pointer;
  });
  gui::CategoryTreeWidget& tree = treeWidget();
  tree.expandItem(tree.itemOf(&nodeNamed("Tax Returns")));
  settle();
  EXPECT_TRUE(nodeNamed("Tax Returns").Expanded());
  clickCategory("2024");
  screen().removeObserver(watch);
  // Busy while the list fills, back to normal after.
  EXPECT_EQ(pointers, (std::vector<int16_t>{11, 0}));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);

  const ListView& list = quillbox().lvDocuments();
  ASSERT_EQ(list.ListItems().Count(), 2);
  for (int32_t i = 1; i <= 2; ++i) {
    ASSERT_NE(list.ListItems()(i).Tag().find(".pdf"), std::string::npos);
    const QIcon icon =
        qvariant_cast<QIcon>(listWidget().itemModel().index(i - 1, 0).data(Qt::DecorationRole));
    EXPECT_FALSE(icon.isNull());
    // The PDF icon (the theme's or the shipped one), not the drawn page.
    EXPECT_NE(icon.cacheKey(), gui::themeIcon("text-x-generic").cacheKey());
    EXPECT_NE(icon.cacheKey(), gui::drawnPageIcon().cacheKey());
    EXPECT_FALSE(icon.pixmap(32).isNull());
  }
}

TEST_F(DeskTest, NavigationButtonsMoveThroughTheFirmsClients) {
  const int start = window_->currentClient();
  ASSERT_GE(start, 0);
  auto& next = dynamic_cast<QPushButton&>(widgetOf(quillbox().cmdClientNav(2)));
  EXPECT_EQ(next.toolTip(), "Next Client");
  EXPECT_FALSE(next.icon().isNull());
  click(next, next.rect().center());
  ASSERT_EQ(window_->currentClient(), start + 1);
  const hosts::Client& shown = window_->roster().at(start + 1);
  EXPECT_EQ(quillbox().lblClientName().Caption(), "  " + shown.name);
  expectListShowsModel(listWidget());

  auto& last = dynamic_cast<QPushButton&>(widgetOf(quillbox().cmdClientNav(3)));
  click(last, last.rect().center());
  EXPECT_EQ(window_->currentClient(), window_->roster().size() - 1);
  EXPECT_FALSE(
      window_->roster().at(window_->currentClient()).isCompany);  // contacts come after companies
}

}  // namespace qb::test
