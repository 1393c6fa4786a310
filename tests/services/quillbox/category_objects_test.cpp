#include <gtest/gtest.h>

#include <filesystem>

#include "services/controls/combo_box.h"
#include "services/controls/tree_view.h"
#include "services/host/clock.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/doc_quillbox_category_list_class.h"
#include "services/quillbox/doc_quillbox_client_categories_class.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/runtime/dates.h"
#include "services/util/file_utilities_class.h"
#include "tests/support/test_database.h"

namespace qb {
namespace {

// Company 1's categories, one of company 2 and one of contact 5.
class CategoryObjects : public ::testing::Test {
 protected:
  void SetUp() override {
    db.exec(
        "INSERT INTO DocCategories (DocCategoryID, DocCategoryNum, CompanyIDNum, ContactIDNum, "
        "DocCategoryName, DocCategorySpecialType, DocCategorySortOrder) VALUES "
        "(1, NULL, 1, NULL, 'Main', 1, NULL),"
        "(2, NULL, 1, NULL, 'Merge Documents', 2, NULL),"
        "(3, 1, 1, NULL, 'Taxes', 0, 1),"
        "(4, 1, 1, NULL, 'letters', 0, 2),"
        "(5, 3, 1, NULL, '2023', 0, NULL),"
        "(6, NULL, 1, NULL, 'Archive', 0, NULL),"
        "(7, NULL, 2, NULL, 'Other Client', 1, NULL),"
        "(8, NULL, NULL, 5, 'Personal', 1, NULL),"
        "(9, 1, 1, NULL, 'Bank', 0, 2);");
  }

  // A link row straight into the store.
  void link(int id, int category, const std::string& path,
            const std::string& dateAdded = "2024-05-01 09:30:00") {
    db.exec(
        "INSERT INTO Documents (DocumentID, CompanyIDNum, DocCategoryNum, DocIconName, DocName, "
        "DocFileName, DocPath, DocHostComputerName, DocDateAdded, DocAddedByUserIDNum) VALUES (" +
        std::to_string(id) + ", 1, " + std::to_string(category) + ", '" +
        std::filesystem::path(path).filename().string() + "', 'x', 'x', '" + path +
        "', 'FRONTDESK', '" + dateAdded + "', 3);");
  }

  std::string count(const std::string& table, const std::string& where) {
    return db.scalar("SELECT COUNT(*) FROM " + table + " WHERE " + where + ";");
  }

  test::TestDatabase db;
  test::TempFolder files;
};

TEST_F(CategoryObjects, PopulateBuildsTheClientsTreeAndSelectsTheMainCategory) {
  TreeView tree("tvClientDocumentation");
  DocQuillboxClientCategoriesClass categories;
  int fired = 0;
  categories.setupCategoryDocumentsDisplay = [&] { ++fired; };
  categories.setTreeView(tree);
  categories.setCompanyIDNum(1);
  categories.setContactIDNum(-1);
  categories.populateCategories();

  EXPECT_EQ(
      tree.dump(),
      "(Category:1 Main(Category:3 Taxes(Category:5 2023))(Category:9 Bank)(Category:4 letters))"
      "(Category:2 Merge Documents)(Category:6 Archive)");
  ASSERT_NE(tree.SelectedItem(), nullptr);
  EXPECT_EQ(tree.SelectedItem()->Key(), "Category:1");
  EXPECT_EQ(tree.Nodes()("Category:5").Tag(), "Category:5");
  EXPECT_EQ(tree.Nodes()("Category:5").Image(), Variant("OneClosed"));
  EXPECT_TRUE(tree.isConsistent());
  EXPECT_EQ(fired, 1);

  // The editor's parent combo lists the same categories in the same order.
  ComboBox combo("cboField", 0);
  docQuillboxCategoryListClass list;
  list.setComboBox(combo);
  list.setCompanyIDNum(1);
  list.populateComboBox();
  std::string entries;
  for (int32_t i = 0; i < combo.ListCount(); ++i)
    entries += "[" + combo.List(i) + "=" + std::to_string(combo.ItemData(i)) + "]";
  EXPECT_EQ(entries,
            "[Main=1][    Taxes=3][        2023=5][    Bank=9][    letters=4]"
            "[Merge Documents=2][Archive=6]");

  // Filling again starts afresh; another client shows only its own.
  categories.clearCategories();
  categories.setCompanyIDNum(-1);
  categories.setContactIDNum(5);
  categories.populateCategories();
  EXPECT_EQ(tree.dump(), "(Category:8 Personal)");
  EXPECT_EQ(fired, 2);

  categories.setContactIDNum(99);
  categories.populateCategories();
  EXPECT_EQ(tree.dump(), "");
  EXPECT_EQ(tree.SelectedItem(), nullptr);
  EXPECT_EQ(fired, 2);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(CategoryObjects, LoadCategoryCountsProgressAndWalksDocumentsWithIcons) {
  std::string report = files.writeFileOfSize("report.pdf", 1572864);
  std::string sheet = files.writeFile("books.XLSX", "cells");
  std::string gone = files.file("moved-away/notes.docx");
  link(10, 3, report);
  link(11, 3, sheet);
  link(12, 3, gone);
  link(13, 3, files.file("bad.txt"), "not a date");
  link(14, 4, files.file("elsewhere.txt"));
  std::filesystem::create_directory(files.file("scans.d"));  // a link to a folder
  link(15, 3, files.file("scans.d"));

  docQuillboxCategoryClass category;
  int32_t maximum = -1, lastStep = 0, steps = 0, ends = 0;
  std::vector<std::string> errors;
  category.startLoadDocumentProgress = [&](int32_t& max) { maximum = max; };
  category.incLoadDocumentProgress = [&](int32_t step) {
    ++steps;
    lastStep = step;
  };
  category.endLoadDocumentProgress = [&] { ++ends; };
  category.errorLoadDocument = [&](std::string& message) { errors.push_back(message); };
  category.setCategoryID(3);
  bool loadDocuments = true, result = false;
  category.loadCategory(loadDocuments, result);

  ASSERT_TRUE(result);
  EXPECT_EQ(category.categoryName(), "Taxes");
  EXPECT_EQ(category.parentCategoryNum(), 1);
  EXPECT_EQ(maximum, 5);
  EXPECT_EQ(steps, 5);
  EXPECT_EQ(lastStep, 5);
  EXPECT_EQ(ends, 1);
  ASSERT_EQ(errors.size(), 1u);
  EXPECT_NE(errors[0].find("Taxes"), std::string::npos);

  std::vector<std::string> walk;
  bool more = false, end = false;
  category.moveFirstDocument(more);
  for (category.isEndOfDocuments(end); !end; category.isEndOfDocuments(end)) {
    auto document = category.currentDocument();
    const Picture& icon = document->largeIconPicture();
    walk.push_back(document->documentName() + " " + document->smallIconPicture().iconName + " " +
                   std::to_string(icon.size) +
                   (icon.emblemName.empty() ? "" : " " + icon.emblemName));
    category.moveNextDocument(more);
  }
  EXPECT_EQ(walk, (std::vector<std::string>{
                      "report.pdf application-pdf 32", "books.XLSX x-office-spreadsheet 32",
                      "notes.docx x-office-document 32 emblem-unreadable", "scans.d folder 32"}));
  EXPECT_FALSE(more);
  EXPECT_EQ(category.currentDocument(), nullptr);

  // Without documents the walk is empty; the special type comes with the row.
  docQuillboxCategoryClass merge;
  merge.setCategoryID(2);
  loadDocuments = false;
  merge.loadCategory(loadDocuments, result);
  EXPECT_TRUE(result);
  EXPECT_EQ(merge.categorySpecialType(), 2);
  EXPECT_TRUE(merge.holdsMergeDocuments());
  merge.moveFirstDocument(more);
  EXPECT_FALSE(more);

  merge.setCategoryID(404);
  merge.loadCategory(loadDocuments, result);
  EXPECT_FALSE(result);
  EXPECT_EQ(merge.categoryName(), "Merge Documents");
}

TEST_F(CategoryObjects, DocumentAddLoadSaveAndMergeType) {
  db.locale().userID = 7;
  // The link is stamped with the clock service's time, not the machine's.
  const double stamp = DateSerial(2026, 11, 23) + TimeSerial(9, 30, 0);
  moduleState().clock = std::make_shared<FixedClock>(stamp);
  std::string path = files.writeFile("Engagement Letter.odt", "text");
  docQuillboxDocumentClass document;
  int32_t category = 4;
  document.addDocument(path, category);
  moduleState().clock.reset();
  ASSERT_GE(document.documentID(), 0);
  std::string key = "DocumentID = " + std::to_string(document.documentID());

  EXPECT_EQ(db.scalar("SELECT CompanyIDNum FROM Documents WHERE " + key), "1");
  EXPECT_EQ(db.scalar("SELECT ContactIDNum FROM Documents WHERE " + key), "");
  EXPECT_EQ(db.scalar("SELECT DocCategoryNum FROM Documents WHERE " + key), "4");
  EXPECT_EQ(db.scalar("SELECT DocIconName FROM Documents WHERE " + key), "Engagement Letter.odt");
  EXPECT_EQ(db.scalar("SELECT DocName FROM Documents WHERE " + key), "Engagement Letter");
  EXPECT_EQ(db.scalar("SELECT DocPath FROM Documents WHERE " + key), path);
  EXPECT_EQ(db.scalar("SELECT DocHostComputerName FROM Documents WHERE " + key),
            fileUtilitiesClass().getComputerName());
  EXPECT_EQ(db.scalar("SELECT DocAddedByUserIDNum FROM Documents WHERE " + key), "7");

  docQuillboxDocumentClass loaded;
  loaded.setDocumentID(document.documentID());
  bool loadAll = true, result = false;
  loaded.loadDocument(loadAll, result);
  ASSERT_TRUE(result);
  EXPECT_EQ(loaded.documentPath(), path);
  EXPECT_EQ(loaded.addedByUserID(), 7);
  EXPECT_FALSE(loaded.hostComputerName().empty());
  ASSERT_TRUE(loaded.dateAdded().isDate());
  EXPECT_NEAR(loaded.dateAdded().rawDouble(), stamp, 0.5 / 86400);
  EXPECT_EQ(loaded.smallIconPicture(), Picture::themeIcon("x-office-document", 16));

  // Renamed and pointed at a file that is not there: saved, and the icon warns.
  loaded.setDocumentName("Signed letter");
  loaded.setDocumentPath(files.file("archive/Signed.odt"));
  loaded.saveDocument(result);
  EXPECT_TRUE(result);
  EXPECT_EQ(db.scalar("SELECT DocIconName FROM Documents WHERE " + key), "Signed letter");
  EXPECT_EQ(db.scalar("SELECT DocFileName FROM Documents WHERE " + key), "Signed.odt");
  loaded.loadDocument(loadAll, result);
  EXPECT_EQ(loaded.largeIconPicture(),
            Picture::themeIcon("x-office-document", 32).withEmblem("emblem-unreadable"));
  EXPECT_EQ(loaded.fileAccessState(), FileAccessState::missingFolder);

  // No category: a failure is reported and no link made.
  int32_t none = -1;
  docQuillboxDocumentClass orphan;
  orphan.addDocument(path, none);
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_EQ(db.errors().failures[0].number, 3021);
  EXPECT_EQ(count("Documents", "1 = 1"), "1");

  for (std::string yes : {".omd", "OMD", ".Omd"}) {
    document.isMergeDocument(yes, result);
    EXPECT_TRUE(result) << yes;
  }
  for (std::string no : {".doc", "", ".omd.bak"}) {
    document.isMergeDocument(no, result);
    EXPECT_FALSE(result) << no;
  }
}

TEST_F(CategoryObjects, SaveCategoryAddsThenUpdates) {
  docQuillboxCategoryClass category;
  category.setCompanyIDNum(1);
  category.setParentCategoryNum(6);
  category.setCategoryName("New Category");
  category.saveCategory();
  ASSERT_GT(category.categoryID(), 9);
  std::string key = "DocCategoryID = " + std::to_string(category.categoryID());
  EXPECT_EQ(db.scalar("SELECT DocCategoryName FROM DocCategories WHERE " + key), "New Category");
  EXPECT_EQ(db.scalar("SELECT DocCategoryNum FROM DocCategories WHERE " + key), "6");
  EXPECT_EQ(db.scalar("SELECT ContactIDNum FROM DocCategories WHERE " + key), "");

  category.setCategoryName("Payroll");
  category.setSynchFolder("/srv/firm/payroll");
  category.saveCategory();
  EXPECT_EQ(db.scalar("SELECT DocCategoryName FROM DocCategories WHERE " + key), "Payroll");
  EXPECT_EQ(db.scalar("SELECT DocCategorySynchFolder FROM DocCategories WHERE " + key),
            "/srv/firm/payroll");
  EXPECT_EQ(count("DocCategories", "1 = 1"), "10");
}

TEST_F(CategoryObjects, DeleteCategoryTakesSubCategoriesAndLinksButNotFiles) {
  std::string kept = files.writeFile("return.pdf", "pdf");
  link(20, 3, kept);
  link(21, 5, files.writeFile("t4.pdf", "pdf"));
  link(22, 4, files.writeFile("letter.doc", "doc"));

  docQuillboxCategoryClass category;
  category.setCategoryID(3);
  bool includeSubCategories = true, result = false;
  category.deleteCategory(includeSubCategories, result);
  EXPECT_TRUE(result);
  EXPECT_EQ(count("DocCategories", "DocCategoryID IN (3, 5)"), "0");
  EXPECT_EQ(count("Documents", "DocumentID IN (20, 21)"), "0");
  EXPECT_EQ(count("Documents", "DocumentID = 22"), "1");
  EXPECT_EQ(count("DocCategories", "1 = 1"), "7");
  EXPECT_TRUE(std::filesystem::exists(kept));

  // Without sub-categories, the children move up to the deleted one's parent.
  category.setCategoryID(1);
  includeSubCategories = false;
  category.deleteCategory(includeSubCategories, result);
  EXPECT_TRUE(result);
  EXPECT_EQ(db.scalar("SELECT DocCategoryNum FROM DocCategories WHERE DocCategoryID = 4"), "");

  int32_t id = 22;
  docQuillboxDocumentClass document;
  document.deleteDocument(id, result);
  EXPECT_TRUE(result);
  document.deleteDocument(id, result);
  EXPECT_FALSE(result);
  EXPECT_EQ(count("Documents", "1 = 1"), "0");
  EXPECT_TRUE(db.errors().failures.empty());
}

}  // namespace
}  // namespace qb
