// Categories and drag and drop on screen, in the client window: the category
// editor with real widgets and the desktop's folder dialog; files dropped
// from a file manager (synthetic text/uri-list drags) on the list, a frame
// and a node; rows and nodes dragged onto nodes, with a screenshot of a
// drag in progress; and a drop of 500 files.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>
#include <iostream>

#include "app/desk/desktop_services.h"
#include "gui/file_dialog_service.h"
#include "tests/gui/desk_fixture.h"
#include "tests/gui/dialog_helpers.h"

namespace qb::test {

namespace {

QMimeData* filesData(const std::vector<std::string>& paths) {
  auto* data = new QMimeData;
  QList<QUrl> urls;
  for (const std::string& path : paths) urls << QUrl::fromLocalFile(QString::fromStdString(path));
  data->setUrls(urls);
  return data;
}

// A drag entering target and moving to a point of it, as the desktop's drag
// manager sends them; the action the target takes (IgnoreAction: refused).
Qt::DropAction dragOver(QWidget& target, const QPoint& at, const QMimeData& data,
                        Qt::DropActions offered) {
  QDragEnterEvent enter(at, offered, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &enter);
  QDragMoveEvent move(at, offered, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &move);
  return move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
}

// The drop that ends the drag, and what follows it.
Qt::DropAction dropOn(QWidget& target, const QPoint& at, const QMimeData& data,
                      Qt::DropActions offered) {
  QDropEvent drop(at, offered, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &drop);
  settle();
  return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
}

}  // namespace

class CategoriesGuiTest : public DeskTest {
 protected:
  QWidget& treeViewport() { return *treeWidget().viewport(); }
  QWidget& listViewport() { return *listWidget().currentView().viewport(); }
  QPoint pointOn(const std::string& category) {
    QTreeWidgetItem* item = treeWidget().itemOf(&nodeNamed(category));
    EXPECT_NE(item, nullptr) << category;
    treeWidget().scrollToItem(item);
    return treeWidget().visualItemRect(item).center();
  }
  QPoint pointOnRow(int index) {
    QAbstractItemView& view = listWidget().currentView();
    return view.visualRect(view.model()->index(index, 0)).center();
  }
  std::string parentOf(const std::string& category) {
    Node* parent = nodeNamed(category).Parent();
    return parent ? parent->Text() : "";
  }
  std::string rows() {
    std::string text;
    ListItemCollection& items = quillbox().lvDocuments().ListItems();
    for (int32_t i = 1; i <= items.Count(); ++i) text += items.item(i).Text() + ";";
    return text;
  }
};

TEST_F(CategoriesGuiTest, TheEditorAddsACategoryWhoseFolderIsChosenInTheFolderDialog) {
  clickCategory("Correspondence");
  const std::string synced = folder_.file("files/Scans");
  folder_.writeFile("files/Scans/Receipt 1.pdf", "%PDF");
  folder_.writeFile("files/Scans/Receipt 2.png", "png");
  QString folderTitle;
  bool foldersOnly = false;
  window_->desktop().fileDialogService().setShownHook([&](QFileDialog& dialog) {
    folderTitle = dialog.windowTitle();
    foldersOnly =
        dialog.fileMode() == QFileDialog::Directory && dialog.testOption(QFileDialog::ShowDirsOnly);
    dialog.setDirectory(QString::fromStdString(folder_.file("files")));
    dialog.selectFile(QString::fromStdString(synced));
    QMetaObject::invokeMethod(&dialog, "accept", Qt::DirectConnection);
  });
  std::string parentShown;
  whenDialogShows([&](QDialog& dialog, Form&) {
    EXPECT_EQ(dialog.windowTitle(), "Add New Document Category");
    expectNoTextCut(dialog);
    saveDialog(dialog, "category-editor", folder_);
    auto& name = widgetNamed<QLineEdit>(dialog, "txtField(0)");
    EXPECT_EQ(name.text(), "New Category");
    parentShown = widgetNamed<QComboBox>(dialog, "cboField(0)").currentText().toStdString();
    name.selectAll();
    type(name, "Scanned Receipts");
    type(widgetNamed<QPlainTextEdit>(dialog, "txtField2(0)"), "From the scanner\rin the office");
    widgetNamed<QPushButton>(dialog, "cmdBrowse").click();
    settle();
    EXPECT_EQ(widgetNamed<QLineEdit>(dialog, "txtField(1)").text().toStdString(), synced);
    saveDialog(dialog, "category-editor-filled", folder_);
    widgetNamed<QPushButton>(dialog, "cmdOK").click();
  });
  QWidget& addButton = widgetOf(quillbox().cmdDocManager(4));
  click(addButton, addButton.rect().center());
  settle();

  EXPECT_EQ(parentShown, "    Correspondence");
  EXPECT_EQ(folderTitle, "Choose a folder that will be synchronized with this category");
  EXPECT_TRUE(foldersOnly);
  Node& added = nodeNamed("Scanned Receipts");
  EXPECT_EQ(parentOf("Scanned Receipts"), "Correspondence");
  EXPECT_EQ(quillbox().tvClientDocumentation().SelectedItem(), &added);
  EXPECT_EQ(treeWidget().currentItem(), treeWidget().itemOf(&added));
  // The folder's files show at once: the category keeps what its editor
  // promised.
  EXPECT_EQ(rows(), "Receipt 1.pdf;Receipt 2.png;");
  screenshot("category-added-with-its-folder");

  // Enter on the node opens the editor again; its description kept the line.
  std::string description;
  whenDialogShows([&](QDialog& dialog, Form&) {
    description = widgetNamed<QPlainTextEdit>(dialog, "txtField2(0)").toPlainText().toStdString();
  });
  press(treeWidget(), Qt::Key_Return);
  EXPECT_EQ(description, "From the scanner\nin the office");
}

TEST_F(CategoriesGuiTest, FilesDraggedFromAFileManagerAreLinkedWhereTheyAreDropped) {
  clickCategory("Correspondence");
  const std::string a = folder_.writeFile("Downloads/Invoice 77.pdf", "%PDF");
  const std::string b = folder_.writeFile("Downloads/Minutes.txt", "minutes");
  std::unique_ptr<QMimeData> files(filesData({a, b}));
  const Qt::DropActions fileManager = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
  const int before = quillbox().lvDocuments().ListItems().Count();

  // Over the list: a copy, never a move, and the list shows it can take them.
  EXPECT_EQ(dragOver(listViewport(), QPoint(20, 20), *files, fileManager), Qt::CopyAction);
  settle();
  screenshot("drag-files-over-list");
  EXPECT_EQ(dropOn(listViewport(), QPoint(20, 20), *files, fileManager), Qt::CopyAction);
  EXPECT_EQ(quillbox().lvDocuments().ListItems().Count(), before + 2);
  EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(a)));

  // Dropped on the help text below the list: the frame takes it for the list.
  QWidget& note = widgetOf(quillbox().lblNote(1));
  EXPECT_EQ(dragOver(note, QPoint(10, 5), *files, fileManager), Qt::CopyAction);
  EXPECT_EQ(dropOn(note, QPoint(10, 5), *files, fileManager), Qt::CopyAction);
  EXPECT_EQ(quillbox().lvDocuments().ListItems().Count(), before + 4);

  // On a node: the files go into that category, which is shown.
  const QPoint onTaxes = pointOn("2025");
  EXPECT_EQ(dragOver(treeViewport(), onTaxes, *files, fileManager), Qt::CopyAction);
  dropOn(treeViewport(), onTaxes, *files, fileManager);
  EXPECT_EQ(quillbox().tvClientDocumentation().SelectedItem(), &nodeNamed("2025"));
  EXPECT_NE(rows().find("Invoice 77.pdf;"), std::string::npos);

  // A source that only offers to move its files is refused: the file
  // manager would remove what it dragged.
  const std::string linked = rows();
  EXPECT_EQ(dragOver(listViewport(), QPoint(20, 20), *files, Qt::MoveAction), Qt::IgnoreAction);
  EXPECT_EQ(dropOn(listViewport(), QPoint(20, 20), *files, Qt::MoveAction), Qt::IgnoreAction);
  EXPECT_EQ(rows(), linked);
}

TEST_F(CategoriesGuiTest, RowsAndNodesDraggedOntoANodeMoveThereAndTheTargetShows) {
  clickCategory("Correspondence");
  const std::string shown = rows();
  ASSERT_FALSE(shown.empty());
  const std::string first = shown.substr(0, shown.find(';'));
  // A press on a row arms the drag of the selection; the drag carries it.
  // The tree, left for the list, no longer drags the category pressed there.
  EXPECT_TRUE(quillbox().draggingCategory());
  // (A synthetic click does not move the focus: it goes as a real click
  // would take it.)
  QApplication::setActiveWindow(window_.get());
  treeWidget().setFocus(Qt::MouseFocusReason);
  listWidget().currentView().setFocus(Qt::MouseFocusReason);
  click(listViewport(), pointOnRow(0));
  EXPECT_FALSE(quillbox().draggingCategory());
  int32_t allowed = 0;
  std::unique_ptr<QMimeData> rowsData = listWidget().binding().oleDrag().beginDrag(allowed);
  ASSERT_NE(rowsData, nullptr);
  EXPECT_EQ(allowed, DROPEFFECT_MOVE);
  // Not over the list itself; over a node, a move, and the node shows it.
  EXPECT_EQ(dragOver(listViewport(), QPoint(30, 30), *rowsData, Qt::MoveAction), Qt::IgnoreAction);
  const QPoint onFinancial = pointOn("Financial Statements");
  EXPECT_EQ(dragOver(treeViewport(), onFinancial, *rowsData, Qt::MoveAction), Qt::MoveAction);
  settle();
  QTreeWidgetItem* target = treeWidget().itemOf(&nodeNamed("Financial Statements"));
  EXPECT_NE(target->background(0).style(), Qt::NoBrush);
  screenshot("drag-rows-over-category");
  EXPECT_EQ(dropOn(treeViewport(), onFinancial, *rowsData, Qt::MoveAction), Qt::MoveAction);
  EXPECT_EQ(quillbox().tvClientDocumentation().SelectedItem(), &nodeNamed("Financial Statements"));
  EXPECT_NE(rows().find(first + ";"), std::string::npos);
  EXPECT_EQ(treeWidget().itemOf(&nodeNamed("Financial Statements"))->background(0).style(),
            Qt::NoBrush);

  // A node pressed and dragged onto another moves with its subtree.
  mouse(treeViewport(), QEvent::MouseButtonPress, pointOn("Tax Returns"), Qt::LeftButton,
        Qt::LeftButton);
  std::unique_ptr<QMimeData> nodeData = treeWidget().binding().oleDrag().beginDrag(allowed);
  ASSERT_NE(nodeData, nullptr);
  const QPoint onCorrespondence = pointOn("Correspondence");
  EXPECT_EQ(dragOver(treeViewport(), onCorrespondence, *nodeData, Qt::MoveAction), Qt::MoveAction);
  dropOn(treeViewport(), onCorrespondence, *nodeData, Qt::MoveAction);
  EXPECT_EQ(parentOf("Tax Returns"), "Correspondence");
  EXPECT_EQ(parentOf("2025"), "Tax Returns");
  QTreeWidgetItem* moved = treeWidget().itemOf(&nodeNamed("Tax Returns"));
  ASSERT_NE(moved, nullptr);
  EXPECT_EQ(moved->parent(), treeWidget().itemOf(&nodeNamed("Correspondence")));

  // Onto its own child: refused, in the tree and in the store.
  treeWidget().expandAll();
  settle();
  mouse(treeViewport(), QEvent::MouseButtonPress, pointOn("Correspondence"), Qt::LeftButton,
        Qt::LeftButton);
  nodeData = treeWidget().binding().oleDrag().beginDrag(allowed);
  ASSERT_NE(nodeData, nullptr);
  dragOver(treeViewport(), pointOn("2024"), *nodeData, Qt::MoveAction);
  dropOn(treeViewport(), pointOn("2024"), *nodeData, Qt::MoveAction);
  EXPECT_EQ(parentOf("Correspondence"), nodeNamed("Correspondence").Root()->Text());
  EXPECT_TRUE(quillbox().tvClientDocumentation().isConsistent());
}

TEST_F(CategoriesGuiTest, FiveHundredFilesDroppedAtOnceAreLinkedWithTheProgressShown) {
  clickCategory("Correspondence");
  std::vector<std::string> paths;
  for (int i = 0; i < 500; ++i)
    paths.push_back(folder_.writeFile("Bulk/Scan " + std::to_string(1000 + i) + ".pdf", "%PDF"));
  std::unique_ptr<QMimeData> files(filesData(paths));
  bool progressShown = false;
  const int32_t watching =
      quillbox().picDocProgress().addObserver([&](const Control& control, ControlChange change) {
        if (change == ControlChange::Visibility && control.Visible()) progressShown = true;
      });
  const int before = quillbox().lvDocuments().ListItems().Count();
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ(dragOver(listViewport(), QPoint(20, 20), *files, Qt::CopyAction), Qt::CopyAction);
  dropOn(listViewport(), QPoint(20, 20), *files, Qt::CopyAction);
  std::cout << "[ figures  ] 500 files dropped and linked, list rebuilt: " << timer.elapsed()
            << " ms\n";
  quillbox().picDocProgress().removeObserver(watching);
  EXPECT_EQ(quillbox().lvDocuments().ListItems().Count(), before + 500);
  EXPECT_TRUE(progressShown);
  EXPECT_FALSE(quillbox().picDocProgress().Visible());
  EXPECT_TRUE(window_->isVisible());
}

}  // namespace qb::test
