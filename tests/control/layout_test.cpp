// The layout in twips for given component sizes, and the pop-up menus.

#include "tests/control/quillbox_test.h"

namespace qb::test {
namespace {

using LayoutTest = QuillboxTest;

std::string place(const Control& c) {
  auto n = [](float v) {
    std::string text = std::to_string(v);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
  };
  return n(c.Left()) + "," + n(c.Top()) + " " + n(c.Width()) + "x" + n(c.Height());
}

TEST_F(LayoutTest, ChildrenArePlacedFromTheComponentSizeAndTheDivider) {
  start(quillbox);  // 12000 x 8000, the divider at 25 percent
  nvDocumentQuillbox& q = quillbox;
  const std::pair<Control*, const char*> expected[] = {
      {&q.fraOrvanta(), "0,0 12000x8000"},
      {&q.clientDocumentationSplitter(), "45,565 11910x7390"},
      {&q.fraDocumentInfo(0), "0,0 2977x7390"},
      {&q.fraDocumentInfo(1), "3047,0 8863x7390"},
      {&q.fraClientInfoHeader(), "45,45 11910x510"},
      {&q.lblClientName(), "0,0 11910x510"},
      {&q.cmdClientNav(4), "10380,90 1200x360"},
      {&q.cmdClientNav(3), "9945,105 345x330"},
      {&q.cmdClientNav(2), "9585,105 345x330"},
      {&q.cmdClientNav(1), "9225,105 345x330"},
      {&q.cmdClientNav(0), "8865,105 345x330"},
      {&q.cmdDocManager(4), "70,45 2837x360"},
      {&q.tvClientDocumentation(), "70,450 2837x6870"},
      {&q.picFrame(15), "70,70 8723x465"},
      {&q.headerGradient(), "0,0 8723x465"},
      {&q.cmdDocManager(3), "7343,60 1320x345"},
      {&q.cmdDocManager(2), "5963,60 1320x345"},
      {&q.cmdDocManager(1), "4583,60 1320x345"},
      {&q.cmdDocManager(0), "3203,60 1320x345"},
      {&q.picFrame(13), "70,630 8723x6690"},
      {&q.picFrame(14), "60,375 8603x5730"},
      {&q.lvDocuments(), "45,45 8513x5640"},
      {&q.lblNote(0), "135,6180 500x255"},
      {&q.lblNote(1), "660,6180 7600x450"},
      {&q.picDocProgress(), "2051.5,2365 4500x1000"},
  };
  for (const auto& [control, where] : expected) {
    EXPECT_EQ(place(*control), where) << control->Name() << "(" << control->Index() << ")";
  }
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(LayoutTest, HiddenNavigationButtonsAndANarrowComponent) {
  start(quillbox);
  quillbox.setShowDocQuillboxClientNavButtons(false);
  quillbox.Move(0, 0, 2000, 8000);  // narrower than the buttons: W = 1910
  quillbox.resizeDocQuillbox();
  for (int16_t i = 0; i < 4; ++i) EXPECT_FALSE(quillbox.cmdClientNav(i).Visible());
  EXPECT_EQ(place(quillbox.cmdClientNav(4)), "380,90 1200x360");
  quillbox.setShowDocQuillboxClientNavButtons(true);
  quillbox.resizeDocQuillbox();
  EXPECT_TRUE(quillbox.cmdClientNav(0).Visible());
  EXPECT_EQ(quillbox.cmdClientNav(0).Left(), -1135);  // negative places are applied
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(LayoutTest, ANegativeHeightFailsThroughTheHandler) {
  start(quillbox);
  quillbox.Move(0, 0, 10000, 1000);  // the tree's height would be 390 - 520
  quillbox.resizeDocQuillbox();
  ASSERT_EQ(errors->failures.size(), 1u);
  EXPECT_EQ(errors->failures[0].number, err::kInvalidProperty);
  EXPECT_EQ(errors->failures[0].stack.back(), "Orvanta.exe-nvDocumentQuillbox-resizeSplitter");
  EXPECT_EQ(place(quillbox.lvDocuments()), "45,45 8513x5640");  // "leave": the rest was skipped
  errors->defaultResponse = 1;  // "go on": the later statements run, the panel fails too
  quillbox.resizeDocQuillbox();
  EXPECT_EQ(errors->failures.size(), 3u);
  EXPECT_EQ(quillbox.lvDocuments().Width(), 7013);
}

TEST_F(LayoutTest, MenuItemsRunTheViewSortArrangeAndRefreshCommands) {
  start(quillbox);
  show(quillbox, 2);
  ListView& lv = quillbox.lvDocuments();
  quillbox.menus().find("mnuDetailsView2")->click();
  EXPECT_EQ(lv.View() * 100 + lv.ColumnHeaders().Count(), 308);  // details with the default columns
  quillbox.menus().find("mnuListView")->click();
  EXPECT_EQ(lv.View() * 10 + quillbox.ListViewViews(), 23);
  quillbox.menus().find("mnuSortDescending")->click();
  EXPECT_EQ(lv.ListItems().item(1).Text(), "Notes");
  quillbox.menus().find("mnuArrangeIconsTop2")->click();
  EXPECT_EQ(lv.Arrange(), lvwAutoTop);
  // Refresh only repaints: a changed file keeps its old facts until the next fill.
  db.folder().writeFileOfSize("docs/notes.txt", 3 * 1048576);
  int32_t repaints = lv.refreshCount();
  quillbox.menus().find("mnuRefresh")->click();
  EXPECT_EQ(lv.refreshCount(), repaints + 1);
  EXPECT_EQ(lv.ListItems().item(1).SubItems(1), "0 Mb");
  EXPECT_EQ(errors->pushed[errors->pushed.size() - 2],
            "Orvanta.exe-nvDocumentQuillbox-mnuRefresh_Click");
  EXPECT_TRUE(errors->failures.empty());
}

}  // namespace
}  // namespace qb::test
