// What the category library does beyond reading: a category's synchronised
// folder (its new files linked when the category is loaded, nothing removed,
// a share that hangs adding nothing), a client's main category made when it
// has none, and the combo selection by item data.

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "services/controls/combo_box.h"
#include "services/controls/tree_view.h"
#include "services/files/file_facts_service.h"
#include "services/host/module_state.h"
#include "services/host/working_folder.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/doc_quillbox_client_categories_class.h"
#include "services/util/file_utilities_class.h"
#include "services/util/general_utilities_class.h"
#include "tests/services/files/fake_file_system.h"
#include "tests/support/test_database.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

class ClientCategories : public ::testing::Test {
 protected:
  void SetUp() override {
    db.locale().userID = 3;
    db.exec(
        "INSERT INTO Companies (CompanyID, CompanyName) VALUES (1, 'Acme Holdings'),"
        " (2, 'Birch & Sons / Partners');"
        "INSERT INTO Contacts (ContactID, FirstName, LastName, DisplayName) VALUES"
        " (5, 'Ann', 'Lee', NULL);");
  }

  // A category of company 1 tied to a folder.
  void category(int id, const std::string& folder) {
    db.exec(
        "INSERT INTO DocCategories (DocCategoryID, CompanyIDNum, DocCategoryName, "
        "DocCategorySynchFolder, DocCategorySpecialType) VALUES (" +
        std::to_string(id) + ", 1, 'Synchronised', '" + folder + "', 0);");
  }
  // Loads the category as the list does and gives its links' paths, in the
  // walk's order, each under the folder shortened to its name.
  std::string load(int id, bool loadDocuments = true) {
    docQuillboxCategoryClass category;
    category.setCategoryID(id);
    bool loaded = false;
    category.loadCategory(loadDocuments, loaded);
    EXPECT_TRUE(loaded);
    std::string names;
    bool more = false;
    for (category.moveFirstDocument(more); more; category.moveNextDocument(more))
      names += fs::path(category.currentDocument()->documentPath()).filename().string() + ";";
    return names;
  }
  std::string scalar(const std::string& sql) { return db.scalar(sql); }

  test::TestDatabase db;
  test::TempFolder files;
};

TEST_F(ClientCategories, ASynchronisedFolderLinksItsNewFilesAndNeverRemovesAnything) {
  const std::string linked = files.writeFile("clients/acme/a.pdf", "a");
  files.writeFile("clients/acme/b.txt", "b");
  files.writeFile("clients/acme/C report.xlsx", "c");
  for (const char* skipped : {".hidden", "~$b.docx", "b.txt~", "sub/deep.pdf"})
    files.writeFile(std::string("clients/acme/") + skipped, "x");
  const std::string folder = files.file("clients/acme");
  category(30, folder + "/");
  db.exec(
      "INSERT INTO Documents (DocumentID, CompanyIDNum, DocCategoryNum, DocPath, DocIconName) "
      "VALUES (1, 1, 30, '" +
      linked + "', 'A'), (2, 1, 30, '" + folder + "/old.pdf', 'Old');");

  // Without the documents nothing is looked at.
  EXPECT_EQ(load(30, false), "");
  EXPECT_EQ(scalar("SELECT COUNT(*) FROM Documents"), "2");

  // The files directly in the folder that had no link get one, by name;
  // the link whose file left stays.
  EXPECT_EQ(load(30), "a.pdf;old.pdf;b.txt;C report.xlsx;");
  EXPECT_EQ(scalar("SELECT DocIconName || '|' || CompanyIDNum || '|' || DocAddedByUserIDNum || "
                   "'|' || DocHostComputerName FROM Documents WHERE DocPath = '" +
                   folder + "/b.txt'"),
            "b.txt|1|3|" + fileUtilitiesClass().getComputerName());
  // Loaded again, nothing doubles; the disk is as it was.
  EXPECT_EQ(load(30), "a.pdf;old.pdf;b.txt;C report.xlsx;");
  EXPECT_EQ(scalar("SELECT COUNT(*) FROM Documents"), "4");
  size_t onDisk = 0;
  for (auto it = fs::recursive_directory_iterator(folder); it != fs::end(it); ++it) ++onDisk;
  EXPECT_EQ(onDisk, 8u);  // the seven files and the sub-folder

  // A removed file's link stays; a folder that is not there adds nothing.
  fs::remove(folder + "/b.txt");
  EXPECT_EQ(load(30), "a.pdf;old.pdf;b.txt;C report.xlsx;");
  category(31, files.file("nowhere"));
  EXPECT_EQ(load(31), "");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(ClientCategories, AFolderOnAShareThatHangsAddsNothingAfterTheBoundedWait) {
  auto share = std::make_shared<test::FakeFileSystem>();
  share->listings["/share/clients/acme"] = {{"a.pdf", true, false}};
  share->hangUnder("/share/");
  installFileFacts(std::make_shared<FileFactsService>(share, std::chrono::milliseconds(100)));
  category(30, "/share/clients/acme");
  const auto began = std::chrono::steady_clock::now();
  EXPECT_EQ(load(30), "");
  EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(5));
  EXPECT_EQ(scalar("SELECT COUNT(*) FROM Documents"), "0");

  // Once the share answers, the next load links its file.
  share->release();
  ASSERT_TRUE(share->waitReturned(1));
  std::string loaded;
  for (int i = 0; i < 100 && loaded.empty(); ++i) {
    loaded = load(30);
    if (loaded.empty()) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_EQ(loaded, "a.pdf;");
  installFileFacts(nullptr);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(ClientCategories, AClientWithoutAMainCategoryGetsOneWithItsMergeDocumentsCategory) {
  moduleState().workingFolderReference = std::make_shared<FixedWorkingFolder>("/srv/firm");
  // Company 2 has one category, at the top, and no main one.
  db.exec(
      "INSERT INTO DocCategories (DocCategoryID, CompanyIDNum, DocCategoryName) VALUES"
      " (40, 2, 'Old Letters');");
  TreeView tree("tvClientDocumentation");
  DocQuillboxClientCategoriesClass categories;
  categories.setTreeView(tree);
  auto fill = [&](int32_t company, int32_t contact) {
    categories.setCompanyIDNum(company);
    categories.setContactIDNum(contact);
    categories.populateCategories();
    return tree.dump();
  };
  const std::string birch = fill(2, -1);
  const std::string main = scalar(
      "SELECT DocCategoryID FROM DocCategories WHERE CompanyIDNum = 2 AND "
      "DocCategorySpecialType = 1");
  const std::string merge = scalar(
      "SELECT DocCategoryID FROM DocCategories WHERE CompanyIDNum = 2 AND "
      "DocCategorySpecialType = 2");
  EXPECT_EQ(birch, "(Category:" + main + " Birch & Sons / Partners(Category:" + merge +
                       " Merge Documents)(Category:40 Old Letters))");
  EXPECT_EQ(tree.SelectedItem()->Key(), "Category:" + main);
  EXPECT_EQ(scalar("SELECT DocCategoryDescription || '|' || IFNULL(DocCategoryNum, 'none') FROM "
                   "DocCategories WHERE DocCategoryID = " +
                   main),
            "All documents of Birch & Sons / Partners|none");
  EXPECT_EQ(
      scalar("SELECT DocCategorySynchFolder FROM DocCategories WHERE DocCategoryID = " + merge),
      "/srv/firm/Merge Documents/Birch & Sons - Partners");

  // Once is enough; a contact is named by its first and last name.
  EXPECT_EQ(fill(2, -1), birch);
  EXPECT_EQ(scalar("SELECT COUNT(*) FROM DocCategories WHERE CompanyIDNum = 2"), "3");
  EXPECT_NE(fill(-1, 5).find(" Ann Lee(Category:"), std::string::npos);
  // An id that names no client gets nothing.
  EXPECT_EQ(fill(77, -1), "");
  EXPECT_EQ(fill(-1, 77), "");
  EXPECT_EQ(scalar("SELECT COUNT(*) FROM DocCategories"), "5");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST(GeneralUtilities, SelectComboItemByDataChoosesTheEntryOrClearsTheChoice) {
  ComboBox combo("cboField", 0);
  for (int32_t id : {4, 9, 9}) {
    combo.AddItem("Category " + std::to_string(id));
    combo.setItemData(combo.NewIndex(), id);
  }
  generalUtilitiesClass utilities;
  EXPECT_TRUE(utilities.selectComboItemByData(combo, 9, true));
  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(combo.Text(), "Category 9");
  EXPECT_FALSE(utilities.selectComboItemByData(combo, 5, false));
  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_FALSE(utilities.selectComboItemByData(combo, 5, true));
  EXPECT_EQ(combo.ListIndex(), -1);
}

}  // namespace
}  // namespace qb
