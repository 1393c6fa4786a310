// The utility library's pieces the merge engine uses: the field table, text
// put into a rich text box at a position, and durations as text.

#include <gtest/gtest.h>

#include <climits>

#include "services/controls/rich_text_box.h"
#include "services/errors/runtime_error.h"
#include "services/runtime/conversions.h"
#include "services/util/duration_text.h"
#include "services/util/field_list_class.h"
#include "services/util/rich_text_insert_class.h"
#include "tests/services/controls/error_number.h"

namespace qb {
namespace {

using test::errorNumber;

TEST(FieldTable, RowsAreFoundByIndexOrByAColumnIgnoringCase) {
  FieldListClass table;
  int32_t index = 1;
  table.addFieldRow(index, {Variant("Gender"), Variant("Contact Gender"), Variant("ContactInfo"),
                            Variant(int16_t{1})});
  index = 2;
  table.addFieldRow(index, {Variant("Gender"), Variant("Spouse Gender")});
  index = 2;  // a second row under one index: the first keeps it
  table.addFieldRow(index, {Variant("Other")});
  EXPECT_EQ(table.getFieldRowCount(), 3);
  EXPECT_TRUE(table.getFieldRowIndex().isEmpty());  // nothing current yet
  EXPECT_TRUE(table.getFieldColumn(1).isEmpty());

  EXPECT_EQ(table.findFieldRow(2, Variant("spouse GENDER")), 1);
  EXPECT_EQ(toText(table.getFieldRowIndex()), "2");
  EXPECT_TRUE(table.getFieldColumn(3).isEmpty());  // left out
  EXPECT_EQ(table.findFieldRow(1, Variant("Gender")), 0);
  EXPECT_EQ(table.findFieldRow(4, Variant(int32_t{1})), 0);  // numbers by value
  EXPECT_EQ(table.findFieldRow(2, Variant("Nobody")), -1);
  EXPECT_EQ(toText(table.getFieldColumn(2)), "Contact Gender");  // still the last found

  EXPECT_TRUE(table.moveToFieldRow(index));
  EXPECT_EQ(toText(table.getFieldColumn(2)), "Spouse Gender");
  index = 9;
  EXPECT_FALSE(table.moveToFieldRow(index));
  EXPECT_EQ(toText(table.getFieldColumn(2)), "Spouse Gender");

  EXPECT_EQ(errorNumber([&] { table.getFieldColumn(25); }), err::kSubscript);
  EXPECT_EQ(errorNumber([&] { table.findFieldRow(0, Variant("x")); }), err::kSubscript);
  EXPECT_EQ(errorNumber([&] { table.addFieldRow(index, std::vector<Variant>(25)); }),
            err::kInvalidCall);
  table.addFieldRow(index, std::vector<Variant>(24, Variant("x")));
  EXPECT_TRUE(table.moveToFieldRow(index));
  EXPECT_EQ(toText(table.getFieldColumn(24)), "x");
  table.clearFieldRows();
  EXPECT_EQ(table.getFieldRowCount(), 0);
  index = 1;
  EXPECT_FALSE(table.moveToFieldRow(index));
}

TEST(FieldTable, TextGoesInAtAPositionAndDurationsReadAsHoursAndMinutes) {
  RichTextBox box("rtb");
  box.setText("Dear ,");
  RichTextInsertClass insert;
  EXPECT_EQ(insert.insertTextAtPosition(box, "«Name»", 5), Variant(true));
  EXPECT_EQ(box.Text(), "Dear «Name»,");
  EXPECT_EQ(insert.insertTextAtPosition(box, "!", 99), Variant(true));
  EXPECT_EQ(box.Text(), "Dear «Name»,!");
  EXPECT_EQ(insert.insertTextAtPosition(box, "", -3), Variant(false));

  EXPECT_EQ(minutesToDurationText(90), "1 hr 30 min");
  EXPECT_EQ(minutesToDurationText(31), "31 min");
  EXPECT_EQ(minutesToDurationText(0), "0 min");
  EXPECT_EQ(minutesToDurationText(60), "1 hr");
  EXPECT_EQ(minutesToDurationText(125), "2 hr 5 min");
  EXPECT_EQ(minutesToDurationText(-90), "-1 hr 30 min");
  EXPECT_EQ(minutesToDurationText(INT32_MIN), "-35791394 hr 8 min");
}

}  // namespace
}  // namespace qb
