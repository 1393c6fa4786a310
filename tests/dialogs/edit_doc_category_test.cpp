// The category editor driven headless: what it shows, OK and Cancel, the
// locked folder of the merge documents category, Browse, the parent combo
// that only shows, and its type-ahead.

#include <memory>
#include <optional>

#include "dialogs/frm_edit_doc_category.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/shell/folder_browser.h"
#include "tests/dialogs/dialog_test.h"

namespace qb::test {
namespace {

class EditDocCategoryTest : public DialogTest {
 protected:
  EditDocCategoryTest() {
    db.exec(
        "INSERT INTO DocCategories (DocCategoryID, DocCategoryNum, CompanyIDNum, DocCategoryName,"
        " DocCategoryDescription, DocCategorySynchFolder, DocCategorySpecialType) VALUES"
        " (1, NULL, 1, 'Acme Holdings', '', '', 1),"
        " (2, 1, 1, 'Merge Documents', '', '/srv/merge/acme', 2),"
        " (3, 1, 1, 'Taxes', 'Returns and notices', '/srv/acme/taxes', 0),"
        " (4, 1, 1, 'letters', '', '', 0), (5, 3, 1, '2024', '', '', 0);");
  }
  ~EditDocCategoryTest() override { installFolderBrowserService(nullptr); }

  std::shared_ptr<docQuillboxCategoryClass> loaded(int32_t id) {
    auto category = std::make_shared<docQuillboxCategoryClass>();
    category->setCategoryID(id);
    bool documents = false, found = false;
    category->loadCategory(documents, found);
    EXPECT_TRUE(found);
    return category;
  }
  std::string stored(int32_t id) {
    return db.scalar(
        "SELECT DocCategoryName || '|' || IFNULL(DocCategoryNum, '') || '|' || "
        "DocCategoryDescription || '|' || DocCategorySynchFolder FROM DocCategories WHERE "
        "DocCategoryID = " +
        std::to_string(id));
  }
};

TEST_F(EditDocCategoryTest, ShowsTheCategoryAndOkWritesItsFieldsAndSaves) {
  auto category = loaded(3);
  frmEditDocCategory form;
  std::string entries;
  whenShown<frmEditDocCategory>([&](frmEditDocCategory& shown) {
    EXPECT_EQ(&shown, &form);
    EXPECT_EQ(shown.Caption(), "Add New Document Category");
    EXPECT_EQ(shown.lblHeader().Caption(), "Edit Category");
    EXPECT_EQ(shown.fraCategoryInformation().Caption(), "Category Information");
    EXPECT_EQ(shown.fraFolderSynchronization().Caption(), "Folder Synchronization Options");
    EXPECT_EQ(shown.lblField(1).Caption(), "Create Category In:");
    EXPECT_EQ(shown.txtField(0).Text(), "Taxes");
    EXPECT_EQ(shown.txtField2().Text(), "Returns and notices");
    EXPECT_EQ(shown.txtField(1).Text(), "/srv/acme/taxes");
    EXPECT_FALSE(shown.txtField(1).Locked());
    EXPECT_TRUE(shown.cmdBrowse().Enabled());
    for (int32_t i = 0; i < shown.cboField().ListCount(); ++i)
      entries += "[" + shown.cboField().List(i) + "]";
    EXPECT_EQ(shown.cboField().Text(), "Acme Holdings");
    // Typing in the description breaks its lines as the system writes them.
    shown.txtField2().SetFocus();  // the form helper selects the whole text
    shown.txtField2().setSelStart(1000);
    shown.txtField2().typeText("\r2025 too");
    shown.txtField(0).setText("Tax Returns");
    shown.cmdOK().click();
    EXPECT_FALSE(shown.Visible());
  });
  form.initialize(category);
  EXPECT_EQ(entries, "[Acme Holdings][    Merge Documents][    letters][    Taxes][        2024]");
  EXPECT_FALSE(form.cancelFlag());
  EXPECT_EQ(category->categoryName(), "Tax Returns");
  EXPECT_EQ(stored(3), "Tax Returns|1|Returns and notices\r\n2025 too|/srv/acme/taxes");
  EXPECT_EQ(helper->preparedForms(), std::vector<std::string>{"frmEditDocCategory"});
  EXPECT_EQ(modalForms(), std::vector<std::string>{"frmEditDocCategory"});
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(EditDocCategoryTest, CancelAndTheCloseBoxLeaveTheCategoryUntouched) {
  auto category = loaded(3);
  whenShown<frmEditDocCategory>([](frmEditDocCategory& shown) {
    shown.txtField(0).setText("Changed");
    shown.txtField2().setText("Changed too");
    shown.txtField(1).setText("/elsewhere");
    shown.cmdCancel().click();
  });
  frmEditDocCategory form;
  form.initialize(category);
  EXPECT_TRUE(form.cancelFlag());
  EXPECT_EQ(category->categoryName(), "Taxes");
  EXPECT_EQ(category->synchFolder(), "/srv/acme/taxes");
  EXPECT_EQ(category->categoryDescription(), "Returns and notices");

  whenShown<frmEditDocCategory>([](frmEditDocCategory& shown) {
    shown.txtField(0).setText("Changed");
    shown.userClose();
  });
  frmEditDocCategory again;
  again.initialize(category);
  EXPECT_TRUE(again.cancelFlag());
  EXPECT_EQ(stored(3), "Taxes|1|Returns and notices|/srv/acme/taxes");
}

TEST_F(EditDocCategoryTest, TheMergeDocumentsFolderIsLockedAndEveryKeyOnItSaysWhy) {
  auto category = loaded(2);
  whenShown<frmEditDocCategory>([](frmEditDocCategory& shown) {
    EXPECT_TRUE(shown.txtField(1).Locked());
    EXPECT_FALSE(shown.cmdBrowse().Enabled());
    shown.txtField(1).SetFocus();
    EXPECT_EQ(shown.txtField(1).typeText("ab"), "/srv/merge/acme");
    // Name and description stay editable.
    shown.txtField(0).setText("");
    shown.txtField(0).typeText("Merged");
    shown.txtField2().typeText("All merges");
    shown.cmdOK().click();
  });
  frmEditDocCategory form;
  form.initialize(category);
  const std::string why =
      "You cannot change the synchronization folder location because this category links to the "
      "folder which contains copies of all the merge documents created for this client by the "
      "Orvanta Pad.";
  ASSERT_EQ(messages->messages.size(), 2u);
  for (const auto& message : messages->messages) {
    EXPECT_EQ(message.text, why);
    EXPECT_EQ(message.style, 10);
    EXPECT_EQ(message.owner, &form);
  }
  EXPECT_EQ(stored(2), "Merged|1|All merges|/srv/merge/acme");
}

TEST_F(EditDocCategoryTest, BrowseTakesTheFolderChosenAndKeepsTheBoxOnCancel) {
  std::optional<ShellFolder> answer = ShellFolder{"/srv/acme/payroll"};
  std::string title;
  int32_t options = 0;
  installFolderBrowserService(
      [&](int64_t owner, const std::string& caption, int32_t flags, const std::string& root) {
        EXPECT_EQ(owner, 0);
        EXPECT_EQ(root, "");
        title = caption;
        options = flags;
        return answer;
      });
  auto category = loaded(4);
  whenShown<frmEditDocCategory>([&](frmEditDocCategory& shown) {
    shown.cmdBrowse().click();
    EXPECT_EQ(shown.txtField(1).Text(), "/srv/acme/payroll");
    shown.txtField(1).setText("/typed/folder");
    answer.reset();  // cancelled
    shown.cmdBrowse().click();
    EXPECT_EQ(shown.txtField(1).Text(), "/typed/folder");
    answer = ShellFolder{""};  // a place with no path
    shown.cmdBrowse().click();
    EXPECT_EQ(shown.txtField(1).Text(), "");
    answer = ShellFolder{"/does/not/exist"};
    shown.cmdBrowse().click();
    // Another parent chosen in the combo changes nothing.
    shown.cboField().setListIndex(0);
    shown.cmdOK().click();
  });
  frmEditDocCategory form;
  form.initialize(category);
  EXPECT_EQ(title, "Choose a folder that will be synchronized with this category");
  EXPECT_EQ(options, 17);
  // The folder is not tested: it is stored as it stands.
  EXPECT_EQ(stored(4), "letters|1||/does/not/exist");
}

TEST_F(EditDocCategoryTest, TheParentComboTypesAhead) {
  auto category = loaded(5);
  whenShown<frmEditDocCategory>([](frmEditDocCategory& shown) {
    ComboBox& combo = shown.cboField();
    EXPECT_EQ(combo.Text(), "    Taxes");
    combo.setSelStart(0);
    // The indent is not typed: "l" finds the category "letters" below the
    // main one, "2" the one two levels down.
    EXPECT_EQ(combo.typeKey('l'), 0);
    EXPECT_EQ(combo.Text(), "    letters");
    EXPECT_EQ(combo.SelStart(), 5);
    EXPECT_EQ(combo.SelLength(), 6);
    combo.setSelStart(0);
    combo.typeKey('2');
    EXPECT_EQ(combo.ItemData(combo.ListIndex()), 5);
    shown.cmdCancel().click();
  });
  frmEditDocCategory form;
  form.initialize(category);
}

}  // namespace
}  // namespace qb::test
