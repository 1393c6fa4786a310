// The category commands of the tool on the sample firm: the tree as text,
// adding (with a synchronised folder), renaming and deleting through the
// component and its editor, the refusals of the protected categories, and
// moves of categories and links that stay in one client's tree.

#include <filesystem>

#include "tests/app/cli/cli_fixture.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;

// Company 2 of the sample firm, as `quillbox categories` prints it.
const char* const kBakeryTree =
    "1\tmain\tMaple Leaf Bakery Ltd.\n"
    "  2\tmerge-folder\tMerge Documents\n"
    "  3\tcategory\tTax Returns\n"
    "    4\tcategory\t2024\n"
    "    5\tcategory\t2025\n"
    "  6\tcategory\tFinancial Statements\n"
    "  7\tcategory\tCorrespondence\n";

class CategoryCommandsTest : public CliTest {
 protected:
  std::string tree() {
    ToolRun listed = run({"categories", "--db", db_, "--company", "2"});
    EXPECT_EQ(listed.status, 0) << listed.err;
    return listed.out;
  }
  std::string count(const std::string& table, const std::string& where) {
    return scalar("SELECT COUNT(*) FROM " + table + " WHERE " + where + ";");
  }
};

TEST_F(CategoryCommandsTest, CategoriesPrintsTheTreeIndentedWithIdsAndKinds) {
  EXPECT_EQ(tree(), kBakeryTree);
  ToolRun nobody = run({"categories", "--db", db_, "--company", "777"});
  EXPECT_EQ(nobody.status, 1);
  EXPECT_EQ(nobody.firstError(), "quillbox: there is no client company 777");
  EXPECT_EQ(run({"categories", "--db", db_}).status, 2);
  EXPECT_EQ(run({"categories", "--db", db_, "--company", "2", "--contact", "3"}).status, 2);
}

TEST_F(CategoryCommandsTest, AddRenameAndDeleteGoThroughTheEditorAndKeepTheFiles) {
  const std::string scans = folder_.file("scans");
  const std::string receipt = folder_.writeFile("scans/Receipt 1.pdf", "%PDF");
  folder_.writeFile("scans/Receipt 2.pdf", "%PDF");
  ToolRun added = run({"category", "add", "--db", db_, "--parent", "7", "--name", "Receipts",
                       "--description", "Scanned\nin the office", "--folder", scans});
  ASSERT_EQ(added.status, 0) << added.err;
  const std::string id = added.out.substr(0, added.out.size() - 1);
  EXPECT_EQ(added.out, id + "\n");
  EXPECT_EQ(added.err, "");
  EXPECT_NE(tree().find("  7\tcategory\tCorrespondence\n    " + id + "\tcategory\tReceipts\n"),
            std::string::npos);
  EXPECT_EQ(scalar("SELECT DocCategoryDescription FROM DocCategories WHERE DocCategoryID = " + id),
            "Scanned\r\nin the office");
  // The folder's files were linked when the new category showed.
  EXPECT_EQ(count("Documents", "DocCategoryNum = " + id + " AND CompanyIDNum = 2"), "2");

  ToolRun renamed = run({"category", "rename", "--db", db_, "--category", id, "--name", "Scans"});
  EXPECT_EQ(renamed.status, 0) << renamed.err;
  EXPECT_EQ(scalar("SELECT DocCategoryName FROM DocCategories WHERE DocCategoryID = " + id),
            "Scans");

  // An empty name and the protected categories are refused, saying why.
  ToolRun empty = run({"category", "rename", "--db", db_, "--category", id, "--name", ""});
  EXPECT_EQ(empty.status, 1);
  EXPECT_EQ(empty.firstError(), "quillbox: You must enter a category name.");
  ToolRun main = run({"category", "rename", "--db", db_, "--category", "1", "--name", "X"});
  EXPECT_EQ(main.status, 1);
  EXPECT_EQ(main.firstError(),
            "quillbox: You cannot edit the Maple Leaf Bakery Ltd. category because it is the "
            "main category.");
  ToolRun merge = run({"category", "delete", "--db", db_, "--category", "2"});
  EXPECT_EQ(merge.status, 1);
  EXPECT_EQ(merge.firstError(),
            "quillbox: You cannot delete the Merge Documents category because it contains a "
            "shortcut to all of the merge documents created for this client by the Orvanta Pad.");
  EXPECT_EQ(run({"category", "rename", "--db", db_, "--category", id}).status, 2);

  // Deleting Correspondence takes the new category and every link in both.
  ToolRun deleted = run({"category", "delete", "--db", db_, "--category", "7"});
  EXPECT_EQ(deleted.status, 0) << deleted.err;
  EXPECT_EQ(count("DocCategories", "DocCategoryID IN (7, " + id + ")"), "0");
  EXPECT_EQ(count("Documents", "DocCategoryNum IN (7, " + id + ")"), "0");
  EXPECT_TRUE(fs::exists(receipt));
  EXPECT_EQ(tree().find("Correspondence"), std::string::npos);
}

TEST_F(CategoryCommandsTest, AClientWithoutCategoriesGetsItsMainOneWithTheFirstAdd) {
  execIn(db_, "INSERT INTO Companies (CompanyID, CompanyName) VALUES (900, 'Fresh Start Ltd.');");
  ToolRun none = run({"categories", "--db", db_, "--company", "900"});
  EXPECT_EQ(none.status, 0);
  EXPECT_EQ(none.out, "");
  ToolRun added = run(
      {"category", "add", "--db", db_, "--company", "900", "--folder", folder_.file("not/there")});
  ASSERT_EQ(added.status, 0) << added.err;
  EXPECT_EQ(added.firstError(), "quillbox: note: there is no folder '" + folder_.file("not/there") +
                                    "' (yet); the category keeps it and shows its files once it "
                                    "is there");
  ToolRun listed = run({"categories", "--db", db_, "--company", "900"});
  const std::string main = scalar(
      "SELECT DocCategoryID FROM DocCategories WHERE CompanyIDNum = 900 AND "
      "DocCategorySpecialType = 1");
  const std::string merge = scalar(
      "SELECT DocCategoryID FROM DocCategories WHERE CompanyIDNum = 900 AND "
      "DocCategorySpecialType = 2");
  EXPECT_EQ(listed.out,
            main + "\tmain\tFresh Start Ltd.\n  " + merge + "\tmerge-folder\tMerge Documents\n  " +
                added.out.substr(0, added.out.size() - 1) + "\tcategory\tNew Category\n");
}

TEST_F(CategoryCommandsTest, MovesStayInOneClientsTreeAndNeverUnderThemselves) {
  // Tax Returns, with its two years, under Correspondence.
  ToolRun moved = run({"category", "move", "--db", db_, "--category", "3", "--to", "7"});
  EXPECT_EQ(moved.status, 0) << moved.err;
  EXPECT_NE(tree().find("  7\tcategory\tCorrespondence\n    3\tcategory\tTax Returns\n"
                        "      4\tcategory\t2024\n"),
            std::string::npos);

  // Under its own child: refused by the tree, the store untouched.
  ToolRun loop = run({"category", "move", "--db", db_, "--category", "7", "--to", "4"});
  EXPECT_EQ(loop.status, 1);
  EXPECT_EQ(loop.firstError(),
            "Error 5: Invalid parent: the node 'Correspondence' can't go under itself or under a "
            "node of its own subtree.");
  EXPECT_EQ(scalar("SELECT DocCategoryNum FROM DocCategories WHERE DocCategoryID = 7"), "1");
  ToolRun top = run({"category", "move", "--db", db_, "--category", "1", "--to", "7"});
  EXPECT_EQ(top.status, 1);
  EXPECT_EQ(top.firstError(),
            "quillbox: the category 1 stands at the top of its client's tree and can't be moved");
  // Another client's category.
  const std::string other =
      scalar("SELECT MIN(DocCategoryID) FROM DocCategories WHERE CompanyIDNum = 3");
  ToolRun across = run({"category", "move", "--db", db_, "--category", "3", "--to", other});
  EXPECT_EQ(across.status, 2);
  EXPECT_EQ(across.firstError(), "quillbox: --to " + other +
                                     " is a category of another client: links and categories "
                                     "move within one client's tree");

  // A link dragged to another category; the file stays.
  const std::string link = scalar("SELECT MIN(DocumentID) FROM Documents WHERE DocCategoryNum = 6");
  const std::string path = scalar("SELECT DocPath FROM Documents WHERE DocumentID = " + link);
  ToolRun document = run({"document", "move", "--db", db_, "--document", link, "--to", "5"});
  EXPECT_EQ(document.status, 0) << document.err;
  EXPECT_EQ(scalar("SELECT DocCategoryNum FROM Documents WHERE DocumentID = " + link), "5");
  EXPECT_TRUE(fs::exists(path));
  EXPECT_EQ(run({"document", "move", "--db", db_, "--document", link, "--to", other}).status, 2);
  // The command of the group's name alone still runs.
  EXPECT_EQ(run({"document", "--db", db_, "--id", link}).status, 0);
}

}  // namespace
}  // namespace qb::test
