#include "services/controls/platform.h"

#include <gtest/gtest.h>

#include "services/controls/command_button.h"
#include "services/controls/data_object.h"
#include "services/controls/frame.h"
#include "services/controls/image_list.h"
#include "services/controls/menu_item.h"
#include "services/controls/progress_bar.h"
#include "services/controls/text_box.h"
#include "tests/services/controls/error_number.h"

namespace qb {
namespace {

using test::errorNumber;

struct PlatformFixture : ::testing::Test {
  void SetUp() override { resetPlatform(); }
  void TearDown() override { resetPlatform(); }
};

TEST_F(PlatformFixture, ImageListRefusesAnIndexPastItsEnd) {
  ImageList images{"iglListViewSmallIcons"};
  auto& list = images.ListImages();
  list.Add(1, "Key:1", Picture::themeIcon("application-pdf", 16));
  // A row without an icon leaves a gap: the next row's index 3 is refused.
  EXPECT_EQ(errorNumber([&] { list.Add(3, "Key:3", Picture::themeIcon("text-x-generic", 16)); }),
            err::kIndexOutOfBounds);
  list.Add(1, "Key:0", Picture::file("/tmp/a.png"));  // inserts before
  EXPECT_EQ(list("Key:1").Index(), 2);
  EXPECT_EQ(errorNumber([&] { list.Add(0, "Key:1", Picture()); }), err::kKeyNotUnique);
  EXPECT_EQ(images.pictureOf(Variant("Key:1")).iconName, "application-pdf");
  EXPECT_TRUE(images.pictureOf(Variant(7)).isEmpty());
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
}

TEST_F(PlatformFixture, ProgressBarRefusesAValueOutsideItsRange) {
  ProgressBar bar{"Progress1"};
  bar.setMax(0);  // an empty load hands 0 on as it is
  bar.setMin(0);
  bar.setValue(0);
  EXPECT_EQ(errorNumber([&] { bar.setValue(1); }), err::kInvalidProperty);
  bar.setMax(3);
  bar.setValue(3);
  bar.setMax(2);  // below the value: allowed, the value stays
  EXPECT_EQ(bar.Value(), 3);
  EXPECT_EQ(errorNumber([&] { bar.setValue(-1); }), err::kInvalidProperty);
}

TEST_F(PlatformFixture, GeometryRefusesNegativeSizesAndObserversFollow) {
  Frame frame{"fraDocumentInfo", 1};
  std::vector<ControlChange> changes;
  int32_t id = frame.addObserver([&](const Control&, ControlChange c) { changes.push_back(c); });
  frame.Move(-10, 20, 300, 400);
  EXPECT_EQ(frame.Left(), -10);
  EXPECT_EQ(errorNumber([&] { frame.setHeight(-1); }), err::kInvalidProperty);
  EXPECT_EQ(errorNumber([&] { frame.Move(0, 0, -5, 10); }), err::kInvalidProperty);
  EXPECT_EQ(frame.Width(), 300);
  frame.setVisible(false);
  frame.Refresh();
  frame.removeObserver(id);
  frame.setCaption("ignored");
  EXPECT_EQ(changes, (std::vector<ControlChange>{ControlChange::Geometry, ControlChange::Visibility,
                                                 ControlChange::Repaint}));
  EXPECT_EQ(frame.refreshCount(), 1);
  frame.setBorderStyle(1);
  EXPECT_EQ(frame.ScaleWidth(), 240);
}

TEST_F(PlatformFixture, EventPumpMayReenterFromItsCallback) {
  // A long loop yields twice per row; the user clicks during the first yield,
  // and the click starts the loop again, as a click in the tree would.
  std::vector<std::string> trace;
  int32_t depth = 0;
  std::function<void(const std::string&)> fill = [&](const std::string& name) {
    ++depth;
    for (int row = 1; row <= 2; ++row) {
      trace.push_back(name + std::to_string(row));
      DoEvents();
      DoEvents();
    }
    --depth;
  };
  bool clicked = false;
  installEventPump([&] {
    if (!clicked) {
      clicked = true;
      EXPECT_EQ(depth, 1);
      fill("inner");
    }
  });
  fill("outer");
  EXPECT_EQ(trace, (std::vector<std::string>{"outer1", "inner1", "inner2", "outer2"}));
  EXPECT_EQ(doEventsCount(), 8);
}

TEST_F(PlatformFixture, MessagesMenusPointerAndFocusAreRecorded) {
  EXPECT_EQ(SendMessageA(0x42, 512, 0, 516), 0);
  installMessageRouter([](const WindowMessage& m) { return m.msg + 1; });
  EXPECT_EQ(SendMessageA(0x42, 7, 1, 2), 8);
  ASSERT_EQ(sentMessages().size(), 2u);
  EXPECT_EQ(sentMessages()[0].lParam, 516);

  MenuBar bar;
  MenuItem& menu = bar.add("subMnuDocTreeViewRightClick", "DocTreeViewRightClick");
  menu.setVisible(false);
  MenuItem& add = menu.add("mnuAddCategory", "Add New Category");
  menu.add("mnuSeparator3", "-");
  int added = 0;
  add.Click = [&] { ++added; };
  PopupMenu(menu, 8);  // no handler: nothing chosen
  installPopupMenuHandler([](MenuItem& shown, int32_t, auto, auto) {
    shown.findByCaption("Add New Category")->click();
    EXPECT_FALSE(shown.find("mnuSeparator3")->click());
  });
  PopupMenu(menu, 8, 100.0f, 200.0f);
  EXPECT_EQ(added, 1);
  ASSERT_EQ(popupRequests().size(), 2u);
  EXPECT_EQ(popupRequests()[1].menuName, "subMnuDocTreeViewRightClick");
  EXPECT_EQ(popupRequests()[1].flags, 8);
  EXPECT_EQ(bar.find("mnuAddCategory"), &add);

  std::vector<int16_t> seen;
  screen().addObserver([&](int16_t pointer) { seen.push_back(pointer); });
  screen().setMousePointer(11);
  screen().setMousePointer(0);
  EXPECT_EQ(seen, (std::vector<int16_t>{11, 0}));

  TextBox first{"txtField", 0};
  CommandButton second{"cmdOK"};
  int lost = 0;
  first.LostFocus = [&] { ++lost; };
  first.SetFocus();
  first.SetFocus();
  second.SetFocus();
  EXPECT_EQ(lost, 1);
  EXPECT_EQ(focusedControl(), &second);
  EXPECT_NE(first.hWnd(), second.hWnd());
  second.setEnabled(false);
  int clicks = 0;
  second.Click = [&] { ++clicks; };
  EXPECT_FALSE(second.click());
  EXPECT_EQ(clicks, 0);
}

TEST_F(PlatformFixture, DataObjectCarriesAFileList) {
  DataObject data = DataObject::withFiles({"/home/a.pdf", "/home/b.txt"});
  EXPECT_TRUE(data.GetFormat(CF_HDROP));
  EXPECT_FALSE(data.GetFormat(vbCFText));
  EXPECT_EQ(data.Files().Count(), 2);
  EXPECT_EQ(data.Files()(2), "/home/b.txt");
  EXPECT_EQ(errorNumber([&] { data.Files()(3); }), err::kSubscript);
  DataObject rows;  // a drag of list rows carries no files
  EXPECT_FALSE(rows.GetFormat(CF_HDROP));
}

TEST_F(PlatformFixture, TypingGoesThroughKeyPressAndLocked) {
  TextBox box{"txtField", 1};
  box.setMaxLength(4);
  box.KeyPress = [](int16_t& key) {
    if (key == 'x')
      key = 0;
    else if (key >= 'a' && key <= 'z')
      key = static_cast<int16_t>(key - 32);
  };
  EXPECT_EQ(box.typeText("abxcdé"), "ABCD");
  box.setText("");
  box.setLocked(true);
  EXPECT_EQ(box.typeText("abc"), "");
}

}  // namespace
}  // namespace qb
