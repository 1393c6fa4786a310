// The list box and the rich text box a host hands to the merge engine.

#include <gtest/gtest.h>

#include "services/controls/list_box.h"
#include "services/controls/rich_text_box.h"
#include "tests/services/controls/error_number.h"

namespace qb {
namespace {

using test::errorNumber;

TEST(TextBoxes, AListBoxKeepsItsLinesAndTheirNumbers) {
  ListBox list("lstFields");
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  list.AddItem("[Contact Name]");
  list.setItemData(list.NewIndex(), -1);
  list.AddItem("Contact First Name");
  list.setItemData(list.NewIndex(), 7);
  list.AddItem("first", 0);
  EXPECT_EQ(list.NewIndex(), 0);
  EXPECT_EQ(list.ItemData(1), -1);
  EXPECT_EQ(list.ItemData(2), 7);
  list.setListIndex(2);
  EXPECT_EQ(clicks, 1);
  list.setListIndex(2);  // no change, no click
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(errorNumber([&] { list.ItemData(3); }), err::kInvalidCall);
  list.Refresh();
  EXPECT_EQ(list.refreshCount(), 1);
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.NewIndex(), -1);
}

TEST(TextBoxes, ARichTextBoxInsertsAtItsCaretByCharacters) {
  RichTextBox box("rtbTemplate");
  int changes = 0;
  box.Change = [&] { ++changes; };
  box.setText("«A» é");
  box.setSelStart(3);
  box.setSelText("X");
  EXPECT_EQ(box.Text(), "«A»X é");
  EXPECT_EQ(box.SelStart(), 4);
  box.setSelStart(5);
  box.setSelLength(10);  // at most to the end
  EXPECT_EQ(box.SelLength(), 1);
  EXPECT_EQ(box.SelText(), "é");
  box.setSelText("e");
  EXPECT_EQ(box.Text(), "«A»X e");
  box.setSelStart(100);
  EXPECT_EQ(box.SelStart(), 6);
  EXPECT_EQ(errorNumber([&] { box.setSelStart(-1); }), err::kInvalidProperty);
  EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace qb
