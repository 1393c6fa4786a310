// The address-book text of a company: its categories and main companies.

#include <tuple>

#include "data/cls_client_addr_bk_cat_txt.h"
#include "tests/data/data_test.h"

namespace qb::test {
namespace {

std::string categoryText(int32_t companyID, bool showMain = false) {
  clsClientAddrBkCatTxt text;
  text.setCompanyIDNum(companyID);
  text.setShowMainAddressBookCategory(showMain);
  text.generateCategoryText();
  return text.CategoryText();
}

class CategoryTextTest : public DataTest {
 protected:
  CategoryTextTest() {
    db.exec(R"(
      INSERT INTO Categories (CategoryID, CategoryNum, CategoryName, CategorySpecialCode) VALUES
        (1, NULL, 'Address Book', 'Main'), (2, 1, 'Clients', NULL), (4, 2, 'Toronto', NULL),
        (20, 21, 'Loop A', NULL), (21, 20, 'Loop B', NULL);
      INSERT INTO Companies (CompanyID, CompanyName, CategoryNum, CompanyNum) VALUES
        (10, 'Acme', 4, NULL), (11, 'Acme West', NULL, 10), (12, 'Loopy', 20, NULL),
        (13, 'Loner', NULL, NULL), (14, 'Itself', NULL, 14);
    )");
  }
};

TEST_F(CategoryTextTest, NearestLevelFirstEachFurtherIn) {
  // The root is marked "Main" but stays: only the category with id 3 is asked about.
  EXPECT_EQ(categoryText(10), "    Toronto\r\n        Clients\r\n            Address Book\r\n");
  EXPECT_EQ(
      categoryText(11),
      "    Acme\r\n        Toronto\r\n            Clients\r\n                Address Book\r\n");
  EXPECT_EQ(categoryText(13) + categoryText(999), "");
  EXPECT_EQ(spy->open, 0);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(CategoryTextTest, CategoryThreeMarkedMainLeavesOutEveryCategory) {
  db.exec(
      "INSERT INTO Categories (CategoryID, CategoryNum, CategoryName, CategorySpecialCode) "
      "VALUES (3, NULL, 'Suppliers', 'MAIN');");
  EXPECT_EQ(categoryText(10), "");
  EXPECT_EQ(categoryText(11), "    Acme\r\n");  // skipped rows don't indent
  EXPECT_EQ(categoryText(10, true),
            "    Toronto\r\n        Clients\r\n            Address Book\r\n");
}

TEST_F(CategoryTextTest, ACycleEndsAfterOneHundredPasses) {
  std::string text = categoryText(12);
  std::string expected;
  for (int level = 1; level <= 101; ++level) {
    expected += std::string(4 * level, ' ') + (level % 2 ? "Loop A" : "Loop B") + "\r\n";
  }
  EXPECT_EQ(text, expected);

  // A company that is its own main company is cut off as too deep, and reported.
  EXPECT_EQ(spy->open, 0);
  std::string itself = categoryText(14);
  EXPECT_EQ(itself.rfind("    Itself\r\n        Itself\r\n", 0), 0u);
  EXPECT_EQ(failedTraces(),
            std::vector<std::string>{
                "Orvanta.exe-modDatabaseFunctions-getParentCategoryIDFromCompanyID"});
  EXPECT_EQ(spy->open, 1);  // the deepest look-up's recordset, left open by its failure
}

TEST_F(CategoryTextTest, ClientPropertiesAndKeptText) {
  clsClientAddrBkCatTxt text;
  text.setCompanyIDNum(10);
  text.setContactIDNum(5);
  text.setCompanyIDNum(-7);  // a contact's object stays a contact's
  EXPECT_EQ(std::tuple(text.clientType(), text.companyIDNum(), text.contactIDNum()),
            std::tuple(1, -1, 5));
  text.setCategoryText("kept\r\n");
  text.generateCategoryText();  // contacts have no such text
  EXPECT_EQ(spy->calls, 0);

  text.setCompanyIDNum(10);
  text.generateCategoryText();  // adds to what the text holds
  EXPECT_EQ(text.CategoryText(),
            "kept\r\n    Toronto\r\n        Clients\r\n            Address Book\r\n");
  text.setCompanyIDNum(-1);
  EXPECT_EQ(std::tuple(text.clientType(), text.companyIDNum(), text.contactIDNum()),
            std::tuple(0, -1, -1));
}

}  // namespace
}  // namespace qb::test
