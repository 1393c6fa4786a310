#include <gtest/gtest.h>

#include "services/controls/combo_box.h"
#include "services/controls/form.h"
#include "services/controls/list_view.h"
#include "services/controls/text_box.h"
#include "services/controls/tree_view.h"
#include "services/runtime/strings.h"
#include "services/util/general_utilities_class.h"
#include "services/util/standard_form_helper.h"

namespace qb {
namespace {

TEST(GeneralUtilities, CaptionsListModeAndTree) {
  generalUtilitiesClass utilities;
  EXPECT_EQ(utilities.formatCaptionText("Taxes"), "  Taxes");
  EXPECT_EQ(utilities.formatCaptionText("Smith Holdings\r\nLtd.\tEast"),
            "  Smith Holdings Ltd. East");
  EXPECT_EQ(utilities.formatCaptionText(""), "  ");

  ListView list("lvDocuments");
  list.setView(lvwReport);
  list.setSorted(true);
  utilities.setListViewListMode(list);
  EXPECT_EQ(list.View(), lvwList);
  EXPECT_TRUE(list.Sorted());

  // A file dropped on a fresh tree must be taken.
  TreeView tree("tvClientDocumentation");
  utilities.prepareTreeView(tree);
  EXPECT_EQ(tree.OLEDropMode(), 1);
}

TEST(GeneralUtilities, ComboTypeAheadChoosesTheFirstEntryBeginningWithWhatWasTyped) {
  generalUtilitiesClass utilities;
  ComboBox combo{"cboField", 2};
  for (const char* entry : {"<All>", "Document Display Name", "Document File Name",
                            "Document File Extension", "Document File Path"})
    combo.AddItem(entry);
  combo.setListIndex(0);
  combo.setSelStart(0);
  EXPECT_EQ(utilities.comboAutoComplete(combo, 'd'), 0);
  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(combo.SelStart(), 1);
  EXPECT_EQ(combo.SelLength(), Len("Document Display Name") - 1);
  for (char key : std::string("ocument f")) utilities.comboAutoComplete(combo, key);
  EXPECT_EQ(combo.Text(), "Document File Name");
  for (char key : std::string("ILE E")) utilities.comboAutoComplete(combo, key);  // any case
  EXPECT_EQ(combo.Text(), "Document File Extension");
  utilities.comboAutoComplete(combo, 'z');  // nothing begins so: the choice stays
  EXPECT_EQ(combo.Text(), "Document File Extension");
  utilities.comboAutoComplete(combo, 8);  // Backspace: back to "Document File "
  EXPECT_EQ(combo.Text(), "Document File Name");
  EXPECT_EQ(combo.SelStart(), Len("Document File "));
  EXPECT_EQ(utilities.comboAutoComplete(combo, 13), 13);  // Enter passes
}

TEST(GeneralUtilities, TheStandardFormHelperSelectsAnInputsTextOnFocus) {
  StandardFormHelper helper;
  TextBox box{"txtField", 0};
  box.setText("tax return");
  helper.controlGotFocus(box);
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 10);
  EXPECT_EQ(box.typeText("letter"), "letter");  // typing replaces it
  helper.controlGotFocus(box);
  helper.controlLostFocus(box);
  EXPECT_EQ(box.SelStart(), 6);
  EXPECT_EQ(box.SelLength(), 0);
  Form form("frmFindDocument");
  helper.prepareForm(form);
  EXPECT_EQ(helper.preparedForms(), std::vector<std::string>{"frmFindDocument"});
}

}  // namespace
}  // namespace qb
