// The document list and the tree's handlers: the fill, its progress and
// pointer, re-entry from the event pump, the row tags, the column sort and
// the points at which the list follows the tree.

#include <regex>

#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/file_icons.h"
#include "services/util/file_utilities_class.h"
#include "tests/control/quillbox_test.h"

namespace qb::test {
namespace {

using DocumentListTest = QuillboxTest;

std::string texts(const ListView& list) {
  std::string result;
  for (int32_t i = 1; i <= list.ListItems().Count(); ++i)
    result += list.ListItems().item(i).Text() + ";";
  return result;
}

TEST_F(DocumentListTest, FillShowsEachLinkWithItsFileFactsSortedWithItsOwnIcons) {
  start(quillbox);  // a new user: sorted ascending by name
  std::string shown;
  quillbox.picDocProgress().addObserver([&](const Control& c, ControlChange change) {
    if (change == ControlChange::Visibility) shown += c.Visible() ? "shown " : "hidden";
  });
  size_t pointers = screen().pointerHistory().size();
  show(quillbox, 2);

  ListView& list = quillbox.lvDocuments();
  ASSERT_EQ(texts(list), "2025 Return;Budget;Notes;");
  const ListItem& pdf = list.ListItems().item(1);
  EXPECT_EQ(pdf.Tag(), "Document:10*/" + returnPdf);
  EXPECT_EQ(pdf.SubItems(1) + "|" + pdf.SubItems(2) + "|" + pdf.SubItems(3) + "|" + pdf.SubItems(4),
            "1.5 Mb|3/5/24  2:07 pm|" + returnPdf + "|OFFICE-1");
  EXPECT_TRUE(
      std::regex_match(pdf.SubItems(5), std::regex(R"(\d{1,2}/\d{1,2}/\d\d  \d{1,2}:\d\d [ap]m)")));
  EXPECT_EQ(pdf.SubItems(6) + "|" + pdf.SubItems(7), "3/5/24  2:07 pm|jsmith");
  EXPECT_EQ(list.ListItems().item(2).SubItems(1), "0 Mb");  // 2,048 bytes
  EXPECT_EQ(list.ListItems().item(2).SubItems(7), "");      // an unknown user
  EXPECT_EQ(list.ListItems().item(3).SubItems(1), "0 Mb");
  EXPECT_EQ(quillbox.headerGradient().Caption(), "  Taxes");
  EXPECT_EQ(quillbox.lblClientName().Caption(), "  Acme Holdings");

  // Pictures were numbered in load order (return, notes, budget) before the
  // rows sorted: each row still shows the icon of its own file type.
  ASSERT_EQ(list.Icons(), &quillbox.iglListViewIcons());
  ASSERT_EQ(list.SmallIcons(), &quillbox.iglListViewSmallIcons());
  for (int32_t i = 1; i <= 3; ++i) {
    const ListItem& row = list.ListItems().item(i);
    std::string icon = quillboxLibrary::iconNameForExtension(
        fileUtilitiesClass().getFileExtension(row.SubItems(3)));
    EXPECT_EQ(quillbox.iglListViewIcons().pictureOf(Variant(row.Icon())),
              Picture::themeIcon(icon, 32));
    EXPECT_EQ(quillbox.iglListViewSmallIcons().pictureOf(Variant(row.SmallIcon())),
              Picture::themeIcon(icon, 16));
  }
  EXPECT_EQ(list.ListItems().item(2).Icon(), 3);

  EXPECT_EQ(shown, "shown hidden");
  EXPECT_EQ(quillbox.Progress1().Max(), 3);
  EXPECT_EQ(quillbox.Progress1().Value(), 3);
  const auto& history = screen().pointerHistory();
  EXPECT_EQ(std::vector<int16_t>(history.begin() + pointers, history.end()),
            (std::vector<int16_t>{11, 0}));
  EXPECT_EQ(doEventsCount(), 6);
  EXPECT_TRUE(list.isConsistent());
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(DocumentListTest, AnEmptyCategoryOrNoSelectionEmptiesTheList) {
  start(quillbox);
  show(quillbox, 2);
  ListView& list = quillbox.lvDocuments();
  db.exec("UPDATE Companies SET CompanyName = 'Acme Group' WHERE CompanyID = 1;");

  show(quillbox, 4);  // "Empty": its header and the client's new name, no rows
  EXPECT_EQ(list.ListItems().Count(), 0);
  EXPECT_EQ(quillbox.headerGradient().Caption(), "  Empty");
  EXPECT_EQ(quillbox.lblClientName().Caption(), "  Acme Group");
  // The list lets go of the image lists and stays unbound until rows come.
  EXPECT_EQ(list.Icons(), nullptr);
  EXPECT_EQ(list.SmallIcons(), nullptr);
  EXPECT_EQ(quillbox.iglListViewIcons().ListImages().Count(), 0);

  show(quillbox, 3);
  ASSERT_EQ(list.ListItems().Count(), 1);
  quillbox.tvClientDocumentation().setSelectedItem(nullptr);
  quillbox.setupDocumentsDisplay();  // no selection: cleared, the old header stays
  EXPECT_EQ(list.ListItems().Count(), 0);
  EXPECT_EQ(quillbox.headerGradient().Caption(), "  Letters");
  EXPECT_EQ(screen().MousePointer(), 0);

  // A node whose key is no category's is left alone: no failure, and the
  // pointer is back.
  show(quillbox, 3);
  Node& other = quillbox.tvClientDocumentation().Nodes().Add(Variant(), tvwNext, "Plan:3", "Plan");
  quillbox.tvClientDocumentation().setSelectedItem(&other);
  quillbox.setupDocumentsDisplay();
  EXPECT_EQ(list.ListItems().Count(), 0);
  EXPECT_EQ(screen().MousePointer(), 0);
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(DocumentListTest, AFillReenteredFromTheEventPumpEndsConsistent) {
  start(quillbox);
  bool clicked = false;
  installEventPump([&] {
    if (!clicked) clicked = true, show(quillbox, 3);  // a click on another category mid-fill
  });
  show(quillbox, 2);
  ListView& list = quillbox.lvDocuments();
  EXPECT_TRUE(clicked);
  EXPECT_EQ(texts(list), "Letter;");
  EXPECT_EQ(list.ListItems().item(1).Tag(), "Document:13*/" + letterDoc);
  EXPECT_EQ(list.ListItems().item(1).Icon(), 1);
  EXPECT_EQ(quillbox.iglListViewIcons().ListImages().Count(), 1);
  EXPECT_EQ(quillbox.headerGradient().Caption(), "  Letters");
  EXPECT_EQ(screen().MousePointer(), 0);
  EXPECT_TRUE(list.isConsistent());
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(DocumentListTest, TheListFollowsTheTreeOnlyAtItsPoints) {
  start(quillbox);
  show(quillbox, 2);
  TreeView& tree = quillbox.tvClientDocumentation();
  size_t fills = screen().pointerHistory().size();
  auto refreshed = [&] {
    bool more = screen().pointerHistory().size() > fills;
    fills = screen().pointerHistory().size();
    return more;
  };
  tree.userClickNode(tree.Nodes().item("Category:3"));  // a node click or an arrow key: no refresh
  tree.KeyUp.raise(40, 0);
  EXPECT_FALSE(refreshed());
  tree.MouseUp.raise(1, 0, 100, 100000);  // a left release on empty space refreshes
  EXPECT_TRUE(refreshed());
  EXPECT_EQ(texts(quillbox.lvDocuments()), "Letter;");
  // Collapse reads the node's Tag as a row tag: the library's "Category:3"
  // gives -1, so collapsing the category on show still refreshes.
  Node& letters = tree.Nodes().item("Category:3");
  tree.userCollapse(letters);
  EXPECT_TRUE(refreshed());
  letters.setTag("Document:3*/");
  tree.userCollapse(letters);
  EXPECT_FALSE(refreshed());
}

TEST_F(DocumentListTest, RightClickSendsTheMessageThenShowsTheMenuForWhatWasHit) {
  start(quillbox);
  show(quillbox, 2);
  std::string log;  // each message to the component's window, then each menu shown
  installMessageRouter([&](const WindowMessage& m) {
    log += std::to_string(m.hWnd == quillbox.hWnd()) + ":" + std::to_string(m.msg) + "/" +
           std::to_string(m.wParam) + "/" + std::to_string(m.lParam) + " ";
    return 0;
  });
  installPopupMenuHandler([&](MenuItem& m, int32_t flags, auto, auto) {
    log += m.Name() + " " + std::to_string(flags) + ";";
  });
  Node* selected = quillbox.tvClientDocumentation().SelectedItem();
  quillbox.tvClientDocumentation().MouseUp.raise(2, 0, 100, 10);      // on the first node
  quillbox.tvClientDocumentation().MouseUp.raise(2, 0, 100, 100000);  // below the nodes
  quillbox.lvDocuments().MouseUp.raise(2, 0, 100, 10);
  quillbox.lvDocuments().MouseUp.raise(2, 0, 100, 100000);
  EXPECT_EQ(
      log,
      "1:512/0/516 subMnuDocTreeViewNodeRightClick 8;1:512/0/516 subMnuDocTreeViewRightClick 8;"
      "1:512/0/516 subMnuListViewNodeRightClick 8;1:512/0/516 subMnuListViewRightClick 8;");
  // The hit node is not selected.
  EXPECT_EQ(quillbox.tvClientDocumentation().SelectedItem(), selected);
}

TEST_F(DocumentListTest, RowTagsGiveIdAndPath) {
  EXPECT_EQ(quillbox.getDocIDFromTag("Document:42*/C:\\Data\\letter.doc"), 42);
  EXPECT_EQ(quillbox.getDocPathFromTag("Document:42*/C:\\Data\\letter.doc"),
            "C:\\Data\\letter.doc");
  EXPECT_EQ(quillbox.getDocIDFromTag("Document:7"), 7);
  EXPECT_EQ(quillbox.getDocPathFromTag("Document:7"), "");
  EXPECT_EQ(quillbox.getDocIDFromTag("Document:x*/C:\\a"), -1);
  EXPECT_EQ(quillbox.getDocIDFromTag("Category:7"), -1);
  EXPECT_EQ(quillbox.getDocPathFromTag("C:\\a.txt"), "C:\\a.txt");
  EXPECT_EQ(quillbox.getDocIDFromTag("Document:8*/a*/b"), 8);  // the first "*/" decides
  EXPECT_EQ(quillbox.getDocPathFromTag("Document:8*/a*/b"), "a*/b");
}

TEST_F(DocumentListTest, ColumnClickFlipsTheSortKeyColumnAndStartsOthersAscending) {
  start(quillbox);
  quillbox.changeDocListViewView(viewDetails);
  show(quillbox, 2);
  ListView& list = quillbox.lvDocuments();
  ColumnHeaderCollection& columns = list.ColumnHeaders();
  list.userClickColumn(columns.item(1));  // the sort key already: flips
  EXPECT_EQ(texts(list), "Notes;Budget;2025 Return;");
  list.userClickColumn(columns.item(2));  // another column: ascending on it
  EXPECT_EQ(list.SortKey() * 10 + list.SortOrder(), 10);
  list.userClickColumn(columns.item(2));
  EXPECT_EQ(list.ListItems().item(1).Text(), "2025 Return");  // "1.5 Mb" before "0 Mb"
  EXPECT_EQ(quillbox.ListViewSort(), sortAscending);          // what the menu chose stays
  // An unsorted list starts ascending on the clicked column, even the key's.
  quillbox.changeDocListViewSort(sortAscending);
  quillbox.changeDocListViewSort(sortNone);
  list.userClickColumn(columns.item(1));
  EXPECT_EQ(texts(list), "2025 Return;Budget;Notes;");
}

}  // namespace
}  // namespace qb::test
