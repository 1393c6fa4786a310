#include <gtest/gtest.h>

#include "services/controls/check_box.h"
#include "services/controls/combo_box.h"
#include "services/controls/frame.h"
#include "services/controls/option_button.h"
#include "services/controls/tab_control.h"
#include "tests/services/controls/error_number.h"

namespace qb {
namespace {

using test::errorNumber;

TEST(SimpleControls, ComboTextAndListIndexStayInStep) {
  ComboBox combo{"cboField", 3};
  int clicks = 0;
  combo.Click = [&] { ++clicks; };
  combo.AddItem("Details");
  combo.setItemData(combo.NewIndex(), 3);
  combo.AddItem("List");
  combo.setItemData(combo.NewIndex(), 2);
  combo.AddItem("<All>", 0);
  EXPECT_EQ(combo.List(0), "<All>");
  EXPECT_EQ(combo.ItemData(2), 2);
  combo.setListIndex(1);
  EXPECT_EQ(combo.Text(), "Details");
  EXPECT_EQ(clicks, 1);
  combo.setText("List");
  EXPECT_EQ(combo.ListIndex(), 2);
  combo.setText("typed");
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(errorNumber([&] { combo.setListIndex(3); }), err::kInvalidProperty);
  EXPECT_EQ(errorNumber([&] { combo.List(5); }), err::kInvalidCall);
  combo.setListIndex(2);
  combo.RemoveItem(0);
  EXPECT_EQ(combo.ListIndex(), 1);  // follows its entry
  combo.Clear();
  EXPECT_EQ(combo.ListCount(), 0);
}

TEST(SimpleControls, OptionsOfOneContainerExcludeEachOther) {
  Frame frame{"fraScope"};
  OptionButton mine{"optSearchClients", 0};
  OptionButton all{"optSearchClients", 1};
  OptionButton elsewhere{"optOther"};
  frame.add(mine);
  frame.add(all);
  mine.setValue(true);
  elsewhere.setValue(true);
  all.setValue(true);
  EXPECT_FALSE(mine.Value());
  EXPECT_TRUE(all.Value());
  EXPECT_TRUE(elsewhere.Value());

  CheckBox check{"chkField", 0};
  check.setValue(1);
  EXPECT_EQ(errorNumber([&] { check.setValue(3); }), err::kInvalidProperty);
  EXPECT_EQ(check.Value(), 1);
}

TEST(SimpleControls, TabsHoldTheirControls) {
  TabControl tabs{"FindTab"};
  tabs.setTabs(2);
  tabs.setTabCaption(1, "Search Results");
  CheckBox onFirst{"chkField", 0};
  tabs.place(onFirst, 0);
  tabs.place(onFirst, 1);  // moves it
  EXPECT_EQ(tabs.tabOf(onFirst), 1);
  EXPECT_EQ(onFirst.Container(), &tabs);
  tabs.setTabVisible(1, false);
  tabs.setTab(1);  // a hidden tab can still be selected
  EXPECT_EQ(tabs.Tab(), 1);
  EXPECT_EQ(errorNumber([&] { tabs.setTab(2); }), err::kInvalidProperty);
}

}  // namespace
}  // namespace qb
