// The category commands driven as a user drives them: adding under the
// selected node, editing and deleting it, the refusals of the protected
// categories, and every button, key and tree menu item that leads to them.

#include <filesystem>

#include "services/controls/menu_item.h"
#include "services/shell/common_dialog.h"
#include "tests/control/category_test.h"

namespace qb::test {
namespace {

using CategoryCommandsTest = CategoryTest;

TEST_F(CategoryCommandsTest, AddingPutsTheNewCategoryUnderTheSelectedNodeExpandedAndSelected) {
  start(quillbox);
  show(quillbox, 2);
  node(2).setExpanded(false);
  std::string parentShown;
  inEditor([&](frmEditDocCategory& editor) {
    EXPECT_EQ(editor.Caption(), "Add New Document Category");
    EXPECT_EQ(editor.lblHeader().Caption(), "Edit Category");
    EXPECT_EQ(editor.txtField(0).Text(), "New Category");
    parentShown = editor.cboField().Text();
    editor.txtField(0).setText("Payroll");
    editor.txtField2().setText("Pay slips\r\nand T4s");
    editor.txtField(1).setText("/srv/acme/payroll");
    editor.cmdOK().click();
  });
  quillbox.cmdDocManager(4).click();
  EXPECT_EQ(parentShown, "    Taxes");

  const std::string id = db.scalar("SELECT MAX(DocCategoryID) FROM DocCategories;");
  EXPECT_EQ(db.scalar("SELECT DocCategoryNum || '|' || CompanyIDNum || '|' || DocCategoryName || "
                      "'|' || DocCategoryDescription || '|' || DocCategorySynchFolder FROM "
                      "DocCategories WHERE DocCategoryID = " +
                      id),
            "2|1|Payroll|Pay slips\r\nand T4s|/srv/acme/payroll");
  TreeView& tree = quillbox.tvClientDocumentation();
  Node& added = node(std::stoi(id));
  EXPECT_EQ(added.Parent(), &node(2));
  EXPECT_EQ(added.Text(), "Payroll");
  EXPECT_TRUE(added.Expanded());
  EXPECT_EQ(tree.SelectedItem(), &added);
  EXPECT_EQ(added.Image(), Variant(1));
  EXPECT_TRUE(tree.hasFocus());
  // The list shows the new, empty category.
  EXPECT_EQ(quillbox.headerGradient().Caption(), "  Payroll");
  EXPECT_EQ(rows(), "");
  EXPECT_TRUE(tree.isConsistent());

  // Cancelled: nothing is added, the list is rebuilt all the same and the
  // tree has the focus.
  select(3);
  quillbox.lvDocuments().SetFocus();
  inEditor([](frmEditDocCategory& editor) {
    editor.txtField(0).setText("Not kept");
    editor.cmdCancel().click();
  });
  quillbox.subMnuDocTreeViewNodeRightClick().find("mnuAddCategory2")->click();
  EXPECT_EQ(count("DocCategories", "DocCategoryName = 'Not kept'"), "0");
  EXPECT_EQ(rows(), "Letter;");
  EXPECT_TRUE(tree.hasFocus());
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(CategoryCommandsTest, TheEditorRefusesABlankNameAndStaysOpen) {
  start(quillbox);
  select(2);
  int shown = 0;
  inEditor([&](frmEditDocCategory& editor) {
    ++shown;
    editor.txtField(0).setText("");
    editor.cmdOK().click();
    EXPECT_TRUE(editor.Visible());
    EXPECT_TRUE(editor.txtField(0).hasFocus());
    editor.txtField(0).setText(std::string(300, 'x'));
    editor.cmdOK().click();
  });
  quillbox.addNewDocumentCategory();
  EXPECT_EQ(shown, 1);
  ASSERT_EQ(messages->messages.size(), 1u);
  EXPECT_EQ(messages->messages[0].text, "You must enter a category name.");
  EXPECT_EQ(messages->messages[0].style, 3);
  // A long name is kept whole.
  EXPECT_EQ(count("DocCategories", "LENGTH(DocCategoryName) = 300 AND DocCategoryNum = 2"), "1");
}

TEST_F(CategoryCommandsTest, EditingRenamesTheNodeAndProtectedCategoriesRefuseWithTheirStoredName) {
  start(quillbox);
  show(quillbox, 2);
  inEditor([](frmEditDocCategory& editor) {
    editor.txtField(0).setText("Tax Returns");
    editor.cmdOK().click();
  });
  TreeView& tree = quillbox.tvClientDocumentation();
  tree.KeyUp.raise(13, 0);
  EXPECT_EQ(node(2).Text(), "Tax Returns");
  EXPECT_EQ(db.scalar("SELECT DocCategoryName FROM DocCategories WHERE DocCategoryID = 2"),
            "Tax Returns");
  EXPECT_EQ(quillbox.headerGradient().Caption(), "  Tax Returns");

  // Cancel keeps the node and the store as they were.
  inEditor([](frmEditDocCategory& editor) {
    editor.txtField(0).setText("Gone");
    editor.cmdCancel().click();
  });
  tree.DblClick.raise();
  EXPECT_EQ(node(2).Text(), "Tax Returns");

  // The main category and the merge documents: the message names them as
  // the store does, whatever the node shows.
  node(1).setText("Renamed on screen");
  select(1);
  tree.KeyUp.raise(13, 0);
  select(5);
  tree.DblClick.raise();
  tree.KeyUp.raise(46, 0);
  select(1);
  tree.KeyUp.raise(46, 0);
  EXPECT_EQ(messageTexts(),
            (std::vector<std::string>{
                "You cannot edit the Acme Holdings category because it is the main category.",
                "You cannot edit the Merge Documents category because it contains a shortcut to "
                "all of the merge documents created for this client by the Orvanta Pad.",
                "You cannot delete the Merge Documents category because it contains a shortcut to "
                "all of the merge documents created for this client by the Orvanta Pad.",
                "You cannot delete the Acme Holdings category because it is the main category."}));
  for (const auto& message : messages->messages) {
    EXPECT_EQ(message.style, 10);
    EXPECT_EQ(message.owner, &owner);
  }
  EXPECT_EQ(modalForms().size(), 2u);  // only the two edits of Taxes showed the editor
  EXPECT_EQ(count("DocCategories", "DocCategoryID IN (1, 5)"), "2");
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(CategoryCommandsTest, DeletingAsksWithTheNodesTextThenRemovesTreeListAndStoreButNoFile) {
  db.exec(
      "INSERT INTO DocCategories (DocCategoryID, DocCategoryNum, CompanyIDNum, DocCategoryName)"
      " VALUES (20, 3, 1, 'A'), (21, 3, 1, 'B');");
  start(quillbox);
  show(quillbox, 2);
  node(2).setText("Taxes (3)");
  messages->answers = {1};  // no
  TreeView& tree = quillbox.tvClientDocumentation();
  tree.KeyUp.raise(46, 0);
  ASSERT_EQ(messages->messages.size(), 1u);
  EXPECT_EQ(messages->messages[0].text,
            "Are you sure you want to remove the category 'Taxes (3)' and all sub categories and "
            "file links within this category?");
  EXPECT_TRUE(messages->messages[0].question);
  EXPECT_EQ(messages->messages[0].style, 4);
  EXPECT_EQ(count("DocCategories", "DocCategoryID = 2"), "1");

  // Yes: the sibling above is selected and shown, the node goes with its
  // child, and the store loses the categories and their links.
  tree.KeyUp.raise(46, 0);
  EXPECT_EQ(tree.SelectedItem(), &node(3));
  EXPECT_EQ(tree.Nodes().find("Category:2"), nullptr);
  EXPECT_EQ(tree.Nodes().find("Category:6"), nullptr);
  EXPECT_EQ(rows(), "Letter;");
  EXPECT_EQ(count("DocCategories", "DocCategoryID IN (2, 6)"), "0");
  EXPECT_EQ(count("Documents", "DocCategoryNum = 2"), "0");
  EXPECT_EQ(count("Documents", "1 = 1"), "1");
  EXPECT_TRUE(std::filesystem::exists(returnPdf) && std::filesystem::exists(budgetXlsx));
  EXPECT_TRUE(tree.isConsistent());

  // The first child has none above it: the one below is selected; the last
  // one left selects its parent.
  select(20);
  quillbox.subMnuDocTreeViewNodeRightClick().find("mnuDeleteCategory")->click();
  EXPECT_EQ(tree.SelectedItem(), &node(21));
  tree.KeyUp.raise(46, 0);
  EXPECT_EQ(tree.SelectedItem(), &node(3));
  EXPECT_EQ(tree.dump(),
            "(Category:1 Acme Holdings(Category:5 Merge Documents)(Category:4 Empty)"
            "(Category:3 Letters))");
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(CategoryCommandsTest, WithoutASelectedNodeTheCommandsFailThroughTheHandler) {
  start(quillbox);
  quillbox.tvClientDocumentation().setSelectedItem(nullptr);
  EXPECT_EQ(quillbox.getCurrentlySelectedCategoryID(), -1);
  quillbox.addNewDocumentCategory();
  quillbox.editSelectedDocCategoryNode();
  quillbox.deleteSelectedDocCategory();
  ASSERT_EQ(errors->failures.size(), 3u);
  EXPECT_EQ(errors->failures[0].number, err::kObjectRequired);
  EXPECT_EQ(errors->failures[0].stack.back(),
            "Orvanta.exe-nvDocumentQuillbox-addNewDocumentCategory");
  EXPECT_TRUE(modalForms().empty());

  // A node whose key names no category is left alone.
  Node& other = quillbox.tvClientDocumentation().Nodes().Add(nullptr, tvwLast, "Other:1", "Other");
  quillbox.tvClientDocumentation().setSelectedItem(&other);
  quillbox.addNewDocumentCategory();
  quillbox.editSelectedDocCategoryNode();
  quillbox.deleteSelectedDocCategory();
  EXPECT_EQ(errors->failures.size(), 3u);
  EXPECT_TRUE(messages->messages.empty());
  EXPECT_TRUE(modalForms().empty());
}

TEST_F(CategoryCommandsTest, EveryButtonKeyAndTreeMenuItemLeadsToItsCommand) {
  start(quillbox);
  show(quillbox, 2);
  int fileDialogs = 0;
  installFileDialogService([&](CommonDialog&) {
    ++fileDialogs;
    return false;
  });
  inEditor([](frmEditDocCategory& editor) { editor.userClose(); });
  messages->defaultAnswer = 1;  // no removal
  std::string choice;
  installPopupMenuHandler([&](MenuItem& menu, int32_t, auto, auto) {
    MenuItem* item = menu.find(choice);
    ASSERT_NE(item, nullptr) << choice << " on " << menu.Name();
    item->click();
  });
  TreeView& tree = quillbox.tvClientDocumentation();
  auto fromMenu = [&](const std::string& item, bool onNode) {
    choice = item;
    tree.MouseUp.raise(2, 0, 100, onNode ? yOf(2) : 100000);
  };
  quillbox.cmdDocManager(4).click();
  fromMenu("mnuAddCategory", false);
  fromMenu("mnuAddCategory2", true);
  fromMenu("mnuEditCategory", true);
  fromMenu("mnuDocCategoriesProperties", true);
  tree.KeyUp.raise(13, 0);
  tree.DblClick.raise();
  EXPECT_EQ(modalForms().size(), 7u);
  for (const std::string& form : modalForms()) EXPECT_EQ(form, "frmEditDocCategory");

  fromMenu("mnuDeleteCategory", true);
  tree.KeyUp.raise(46, 0);
  EXPECT_EQ(messages->messages.size(), 2u);
  fromMenu("mnuAddFilesToCategory", true);
  EXPECT_EQ(fileDialogs, 1);
  // Other keys do nothing.
  tree.KeyUp.raise(65, 0);
  EXPECT_EQ(modalForms().size(), 7u);
  EXPECT_EQ(count("DocCategories", "1 = 1"), "7");
  EXPECT_TRUE(errors->failures.empty());
  installFileDialogService(nullptr);
}

}  // namespace
}  // namespace qb::test
