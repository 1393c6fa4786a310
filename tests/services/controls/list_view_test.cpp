#include "services/controls/list_view.h"

#include <gtest/gtest.h>

#include "tests/services/controls/error_number.h"

namespace qb {
namespace {

using test::errorNumber;

// Adds a row as the document list does: no arguments, then text, tag and
// sub-items in index order.
ListItem& addRow(ListView& list, const std::string& text, const std::string& size,
                 const std::string& tag = "") {
  ListItem& row = list.ListItems().Add();
  row.setText(text);
  row.setTag(tag);
  row.ListSubItems().Add(1, "", size);
  return row;
}

TEST(ListView, RowsAndSubItemsInsertAtTheirIndex) {
  ListView list{"lvDocuments"};
  addRow(list, "a.pdf", "1.5 Mb");
  addRow(list, "b.txt", "0 Mb");
  EXPECT_EQ(list.dump(), "[a.pdf|1.5 Mb][b.txt|0 Mb]");
  ListItem& first = list.ListItems()(1);
  first.ListSubItems().Add(1, "date", "1/2/24  9:05 am");  // goes before the size
  first.ListSubItems().Add(3, "", "C:\\a.pdf");
  EXPECT_EQ(list.dump(), "[a.pdf|1/2/24  9:05 am|1.5 Mb|C:\\a.pdf][b.txt|0 Mb]");
  EXPECT_EQ(first.SubItems(2), "1.5 Mb");
  EXPECT_EQ(first.ListSubItems()(2).Index(), 2);
  EXPECT_EQ(first.SubItems(7), "");
  EXPECT_EQ(errorNumber([&] { first.ListSubItems().Add(6, "", "x"); }), err::kIndexOutOfBounds);
  EXPECT_EQ(errorNumber([&] { first.ListSubItems().Add(0, "date", "x"); }), err::kKeyNotUnique);
  list.ListItems()(2).setSubItems(3, "far");
  EXPECT_EQ(list.ListItems()(2).ListSubItems().Count(), 3);

  list.ListItems().Add(1, "k", "top");
  EXPECT_EQ(list.ListItems()("k").Index(), 1);
  EXPECT_EQ(first.Index(), 2);
  EXPECT_EQ(errorNumber([&] { list.ListItems().Add(0, "k"); }), err::kKeyNotUnique);
  EXPECT_EQ(errorNumber([&] { list.ListItems().Add(9); }), err::kIndexOutOfBounds);
  EXPECT_EQ(errorNumber([&] { list.ListItems()("nope"); }), err::kElementNotFound);
  EXPECT_TRUE(list.isConsistent());
  list.ListItems().Remove(1);
  EXPECT_EQ(first.Index(), 1);
  EXPECT_EQ(list.ListItems().Count(), 2);
  EXPECT_TRUE(list.isConsistent());
  list.ListItems().Clear();
  EXPECT_EQ(list.dump(), "");
}

TEST(ListView, SortsByColumnTextIgnoringCaseAndIndexFollows) {
  ListView list;
  ListItem& b = addRow(list, "beta.doc", "10 Mb");
  ListItem& a = addRow(list, "Alpha.doc", "2 Mb");
  ListItem& c = addRow(list, "gamma.doc", "2 Mb");
  b.setIcon(1);
  a.setIcon(2);
  c.setIcon(3);
  list.setSorted(true);  // SortKey 0, ascending
  EXPECT_EQ(list.dump(), "[Alpha.doc|2 Mb][beta.doc|10 Mb][gamma.doc|2 Mb]");
  EXPECT_EQ(a.Index(), 1);
  EXPECT_EQ(a.Icon(), 2);  // each row keeps its own picture
  list.setSortOrder(lvwDescending);
  EXPECT_EQ(list.dump(), "[gamma.doc|2 Mb][beta.doc|10 Mb][Alpha.doc|2 Mb]");
  list.setSortKey(1);  // sizes sort as text; equal ones keep their order
  EXPECT_EQ(list.dump(), "[gamma.doc|2 Mb][Alpha.doc|2 Mb][beta.doc|10 Mb]");
  list.setSortOrder(lvwAscending);
  EXPECT_EQ(list.dump(), "[beta.doc|10 Mb][gamma.doc|2 Mb][Alpha.doc|2 Mb]");
  EXPECT_TRUE(list.isConsistent());

  // A sorted list keeps new rows and changed texts in order.
  addRow(list, "delta.doc", "1 Mb");
  EXPECT_EQ(list.ListItems()(1).Text(), "delta.doc");
  b.ListSubItems()(1).setText("3 Mb");
  EXPECT_EQ(b.Index(), 4);
  // Sorted off: rows come in load order and stay there.
  list.setSorted(false);
  addRow(list, "aaa", "0 Mb");
  EXPECT_EQ(list.ListItems()(5).Text(), "aaa");
  EXPECT_TRUE(list.isConsistent());
}

TEST(ListView, FindItemSelectionAndHitTest) {
  ListView list;
  addRow(list, "Tax return 2023.pdf", "1 Mb", "Document:1*/C:\\tax.pdf");
  addRow(list, "Taxes.xls", "2 Mb", "Document:2*/C:\\taxes.xls");
  addRow(list, "letter.doc", "3 Mb", "Document:3*/C:\\letter.doc");
  EXPECT_EQ(list.FindItem("taxes")->Index(), 2);
  EXPECT_EQ(list.FindItem("tax")->Index(), 1);  // a whole word before a blank
  EXPECT_EQ(list.FindItem("tax", lvwText, 2), nullptr);
  EXPECT_EQ(list.FindItem("tax", lvwText, 2, lvwPartial)->Index(), 2);
  EXPECT_EQ(list.FindItem("3 mb", lvwSubItem)->Index(), 3);
  EXPECT_EQ(list.FindItem("Document:2", lvwTag, 1, lvwPartial)->Index(), 2);
  EXPECT_EQ(list.FindItem("nothing"), nullptr);

  ListItem& second = list.ListItems()(2);
  ListItem& third = list.ListItems()(3);
  second.setSelected(true);
  third.setSelected(true);  // single selection: the second is cleared
  EXPECT_EQ(list.selectedItems(), std::vector<ListItem*>{&third});
  list.setMultiSelect(true);
  second.setSelected(true);
  EXPECT_EQ(list.dump(true), "[Tax return 2023.pdf|1 Mb][*Taxes.xls|2 Mb][*letter.doc|3 Mb]");
  EXPECT_EQ(list.SelectedItem(), &second);
  second.setSelected(false);
  EXPECT_EQ(list.SelectedItem(), &third);
  list.ListItems().Remove(3);
  EXPECT_EQ(list.SelectedItem(), nullptr);
  EXPECT_TRUE(list.isConsistent());

  list.setRowHeight(200);
  EXPECT_EQ(list.HitTest(10, 250), &second);
  EXPECT_EQ(list.HitTest(10, 450), nullptr);
  list.setView(lvwReport);  // rows start below the column headers
  EXPECT_EQ(list.HitTest(10, 350), &list.ListItems()(1));
  EXPECT_EQ(list.HitTest(10, 100), nullptr);
  list.setHitTestProvider([&](float, float) { return &second; });
  EXPECT_EQ(list.HitTest(10, 100), &second);
  EXPECT_EQ(errorNumber([&] { list.setView(4); }), err::kInvalidProperty);
}

TEST(ListView, ColumnHeadersComputeLeftAndKeepTheFirstLeftAligned) {
  ListView list;
  auto& columns = list.ColumnHeaders();
  columns.Add(0, "", "Name", 2200, lvwColumnLeft);
  columns.Add(0, "", "Size", 1000, lvwColumnRight);
  ColumnHeader& date = columns.Add(0, "date", "Date Modified", 2000);
  EXPECT_EQ(date.Left(), 3200);
  EXPECT_EQ(date.Position(), 3);
  EXPECT_EQ(date.SubItemIndex(), 2);
  EXPECT_EQ(columns.Add(0, "", "Path").Width(), 1440);
  date.setPosition(1);
  EXPECT_EQ(date.Left(), 0);
  EXPECT_EQ(columns(1).Left(), 2000);
  EXPECT_EQ(errorNumber([&] { columns.Add(1, "", "Right first", 100, lvwColumnRight); }),
            err::kInvalidProperty);
  EXPECT_EQ(errorNumber([&] { columns(1).setAlignment(lvwColumnCenter); }), err::kInvalidProperty);
  EXPECT_EQ(errorNumber([&] { columns.Add(0, "date"); }), err::kKeyNotUnique);
  EXPECT_EQ(columns.Count(), 4);

  ColumnHeader* clicked = nullptr;
  list.ColumnClick = [&](ColumnHeader& column) { clicked = &column; };
  list.userClickColumn(columns(2));
  EXPECT_EQ(clicked, &columns(2));
  columns.Clear();
  EXPECT_EQ(columns.Count(), 0);
}

}  // namespace
}  // namespace qb
