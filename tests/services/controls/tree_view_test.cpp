#include "services/controls/tree_view.h"

#include <gtest/gtest.h>

#include "tests/services/controls/error_number.h"

namespace qb {
namespace {

using test::errorNumber;

// Main(Taxes(2023), Letters) and Archive, keys Category:1..5.
struct TreeFixture : ::testing::Test {
  TreeView tree{"tvClientDocumentation"};
  void SetUp() override {
    tree.Nodes().Add(Variant(), tvwLast, "Category:1", "Main");
    tree.Nodes().Add("Category:1", tvwChild, "Category:2", "Taxes");
    tree.Nodes().Add("Category:1", tvwChild, "Category:3", "Letters");
    tree.Nodes().Add("Category:2", tvwChild, "Category:4", "2023");
    tree.Nodes().Add(Variant(), tvwLast, "Category:5", "Archive");
  }
};

TEST_F(TreeFixture, AddsByRelationshipAndRefusesBadKeys) {
  EXPECT_EQ(tree.dump(),
            "(Category:1 Main(Category:2 Taxes(Category:4 2023))(Category:3 Letters))"
            "(Category:5 Archive)");
  Node& letters = tree.Nodes()("Category:3");
  tree.Nodes().Add(&letters, tvwPrevious, "p", "Before");
  tree.Nodes().Add(&letters, tvwNext, "n", "After");
  tree.Nodes().Add(&letters, tvwFirst, "f", "First");
  tree.Nodes().Add(Variant(), tvwFirst, "top", "Top");
  EXPECT_EQ(tree.dump(),
            "(top Top)(Category:1 Main(f First)(Category:2 Taxes(Category:4 2023))(p Before)"
            "(Category:3 Letters)(n After))(Category:5 Archive)");
  EXPECT_EQ(tree.Nodes().Count(), 9);
  EXPECT_EQ(tree.Nodes()(9).Key(), "top");  // Index is the order of adding
  EXPECT_EQ(tree.Nodes()(2).Text(), "Taxes");

  EXPECT_EQ(errorNumber([&] { tree.Nodes().Add(Variant(), tvwLast, "Category:2", "Again"); }),
            err::kKeyNotUnique);
  EXPECT_EQ(errorNumber([&] { tree.Nodes()("Category:99"); }), err::kElementNotFound);
  EXPECT_EQ(errorNumber([&] { tree.Nodes()(10); }), err::kIndexOutOfBounds);
  EXPECT_EQ(errorNumber([&] { tree.Nodes().Add("nokey", tvwChild, "x", "X"); }),
            err::kElementNotFound);
  EXPECT_EQ(tree.Nodes().Count(), 9);
  EXPECT_TRUE(tree.isConsistent());
}

TEST_F(TreeFixture, RemoveTakesTheSubtreeAndIndexesCloseUp) {
  tree.Nodes()("Category:4").setSelected(true);
  tree.Nodes().Remove(2);  // Taxes with 2023
  EXPECT_EQ(tree.dump(), "(Category:1 Main(Category:3 Letters))(Category:5 Archive)");
  EXPECT_EQ(tree.SelectedItem(), nullptr);
  EXPECT_EQ(tree.Nodes().Count(), 3);
  EXPECT_EQ(tree.Nodes()(3).Key(), "Category:5");
  EXPECT_EQ(tree.Nodes()("Category:5").Index(), 3);
  EXPECT_EQ(tree.Nodes().find("Category:4"), nullptr);
  tree.Nodes().Add("Category:3", tvwChild, "Category:4", "Reused key");
  EXPECT_TRUE(tree.isConsistent());
  tree.Nodes().Clear();
  EXPECT_EQ(tree.dump(), "");
  EXPECT_EQ(tree.Nodes().Count(), 0);
  EXPECT_TRUE(tree.isConsistent());
}

TEST_F(TreeFixture, ParentMovesTheSubtreeAndRefusesADescendant) {
  Node& taxes = tree.Nodes()("Category:2");
  Node& archive = tree.Nodes()("Category:5");
  taxes.setParent(&archive);
  EXPECT_EQ(tree.dump(),
            "(Category:1 Main(Category:3 Letters))(Category:5 Archive(Category:2 Taxes(Category:4 "
            "2023)))");
  EXPECT_EQ(taxes.Index(), 2);
  EXPECT_EQ(tree.Nodes()("Category:4").FullPath(), "Archive\\Taxes\\2023");

  std::string before = tree.dump();
  EXPECT_EQ(errorNumber([&] { taxes.setParent(&tree.Nodes()("Category:4")); }), err::kInvalidCall);
  EXPECT_EQ(errorNumber([&] { taxes.setParent(&taxes); }), err::kInvalidCall);
  EXPECT_EQ(tree.dump(), before);
  taxes.setParent(nullptr);
  EXPECT_EQ(taxes.Parent(), nullptr);
  EXPECT_EQ(tree.roots().back(), &taxes);
  EXPECT_TRUE(tree.isConsistent());
}

TEST_F(TreeFixture, SiblingsVisibilityAndSelection) {
  Node& main = tree.Nodes()("Category:1");
  Node& taxes = tree.Nodes()("Category:2");
  Node& letters = tree.Nodes()("Category:3");
  EXPECT_EQ(main.Children(), 2);
  EXPECT_EQ(main.Child(), &taxes);
  EXPECT_EQ(taxes.Next(), &letters);
  EXPECT_EQ(letters.Previous(), &taxes);
  EXPECT_EQ(taxes.Previous(), nullptr);
  EXPECT_EQ(letters.FirstSibling(), &taxes);
  EXPECT_EQ(main.Next(), &tree.Nodes()("Category:5"));
  EXPECT_EQ(tree.Nodes()("Category:4").Root(), &main);

  Node& year = tree.Nodes()("Category:4");
  EXPECT_FALSE(year.Visible());
  main.setExpanded(true);
  EXPECT_FALSE(year.Visible());  // Taxes is still collapsed
  EXPECT_TRUE(year.EnsureVisible());
  EXPECT_TRUE(year.Visible());
  EXPECT_TRUE(taxes.Expanded());
  EXPECT_FALSE(year.EnsureVisible());

  year.setSelected(true);
  EXPECT_EQ(tree.SelectedItem(), &year);
  letters.setSelected(true);
  EXPECT_FALSE(year.Selected());
  year.setSelected(false);  // not the selected node: nothing changes
  EXPECT_EQ(tree.SelectedItem(), &letters);
  tree.setSelectedItem(nullptr);
  EXPECT_EQ(tree.SelectedItem(), nullptr);

  std::string collapsed;
  tree.Collapse = [&](Node& node) { collapsed = node.Key(); };
  tree.userCollapse(taxes);
  EXPECT_EQ(collapsed, "Category:2");
  EXPECT_FALSE(year.Visible());
}

TEST_F(TreeFixture, HitTestReadsTheVisibleRows) {
  tree.setRowHeight(200);
  // Rows: Main, Archive.
  EXPECT_EQ(tree.HitTest(100, 50), &tree.Nodes()("Category:1"));
  EXPECT_EQ(tree.HitTest(100, 250), &tree.Nodes()("Category:5"));
  EXPECT_EQ(tree.HitTest(100, 450), nullptr);
  EXPECT_EQ(tree.HitTest(-1, 50), nullptr);
  tree.Nodes()("Category:4").EnsureVisible();
  // Rows: Main, Taxes, 2023, Letters, Archive.
  EXPECT_EQ(tree.HitTest(0, 450), &tree.Nodes()("Category:4"));
  EXPECT_EQ(tree.HitTest(0, 850), &tree.Nodes()("Category:5"));
  tree.setScrollTop(2);
  EXPECT_EQ(tree.HitTest(0, 50), &tree.Nodes()("Category:4"));

  Node& letters = tree.Nodes()("Category:3");
  tree.setHitTestProvider([&](float, float) { return &letters; });
  EXPECT_EQ(tree.HitTest(0, 5000), &letters);
  tree.setHitTestProvider(nullptr);
  EXPECT_EQ(tree.HitTest(0, 5000), nullptr);
}

TEST_F(TreeFixture, PicturesComeFromTheBoundImageList) {
  ImageList images{"iglDocCategories"};
  images.ListImages().Add(0, "OneOpened", Picture::themeIcon("folder-open", 16));
  images.ListImages().Add(0, "report", Picture::themeIcon("x-office-document", 16));
  Node& taxes = tree.Nodes()("Category:2");
  taxes.setImage(1);
  taxes.setSelectedImage("report");
  EXPECT_TRUE(tree.pictureOf(taxes).isEmpty());  // no image list bound yet
  tree.setImageList(&images);
  EXPECT_EQ(tree.pictureOf(taxes).iconName, "folder-open");
  taxes.setSelected(true);
  EXPECT_EQ(tree.pictureOf(taxes).iconName, "x-office-document");
}

}  // namespace
}  // namespace qb
