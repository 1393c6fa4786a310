// The find dialog: the text test in its four modes, the search driven as a
// user would (fields, options, scope, results, Go To, Cancel), its three
// messages, the views and the column sort, and the desktop's own search.

#include "dialogs/find_match.h"
#include "dialogs/frm_find_document.h"
#include "tests/dialogs/dialog_test.h"

namespace qb::test {
namespace {

TEST(FindMatch, TheFourModesAndTheWholePhraseRuleAsItStands) {
  // Contains, ignoring case or not.
  EXPECT_TRUE(findMatchText("Tax Return.doc", "TAX", 0));
  EXPECT_FALSE(findMatchText("Tax Return.doc", "TAX", 1));
  EXPECT_TRUE(findMatchText("Tax Return.doc", "Tax", 1));
  EXPECT_TRUE(findMatchText("Relevé Été.pdf", "ÉTÉ", 0));  // accents fold too
  // Whole phrase: at the start or after a blank, and the text after the
  // first match empty or ending in a blank up to the next one.
  EXPECT_FALSE(findMatchText("tax return.doc", "tax", 2));
  EXPECT_TRUE(findMatchText("2005 tax", "tax", 2));
  EXPECT_TRUE(findMatchText("a TAX", "tax", 2));
  EXPECT_FALSE(findMatchText("a TAX", "tax", 3));
  EXPECT_FALSE(findMatchText("surtax", "tax", 2));
  EXPECT_TRUE(findMatchText("tax tax return", "tax", 2));  // part 1 is " "
  // The end of part 1 counts, not its start: a word that merely begins with
  // the phrase after a blank passes, as do further words up to a second match.
  EXPECT_TRUE(findMatchText("tax taxes", "tax", 2));
  EXPECT_TRUE(findMatchText("tax return tax", "tax", 2));
  // A blank search text is a text like any other; an empty one finds nothing.
  EXPECT_TRUE(findMatchText("Tax Return", " ", 0));
  EXPECT_FALSE(findMatchText("Tax Return", "", 0));
  EXPECT_EQ(findMatchMode(false, false), 0);
  EXPECT_EQ(findMatchMode(false, true), 1);
  EXPECT_EQ(findMatchMode(true, false), 2);
  EXPECT_EQ(findMatchMode(true, true), 3);
}

class FindDocumentTest : public DialogTest {
 protected:
  FindDocumentTest() {
    addLink(1, "company:1", "2005 Tax Return", "/srv/Clients/Acme/T2-2005.pdf");
    addLink(2, "company:1", "Engagement letter", "/srv/Clients/Acme/tax/letter.docx");
    addLink(3, "company:1", "Budget", "/srv/Clients/Acme/budget.xlsx");
    addLink(4, "company:2", "Tax Return", "/srv/Clients/Birch/return.PDF");
    addLink(5, "contact:5", "Ann's tax slips", "/srv/Clients/Lee/slips.pdf");
    addLink(6, "", "Orphan tax notes", "/srv/orphan.txt");
  }

  // The results as "Name|ID|Data Found|Client Name" lines.
  static std::string results(frmFindDocument& form) {
    std::string text;
    ListItemCollection& rows = form.FindResults().ListItems();
    for (int32_t i = 1; i <= rows.Count(); ++i) {
      ListItem& row = rows.item(i);
      text += row.Text() + "|" + row.SubItems(1) + "|" + row.SubItems(2) + "|" + row.SubItems(3) +
              (row.ListSubItems().Count() < 3 ? "|-" : "") + "\n";
    }
    return text;
  }
  // Sets the criteria as a user does and clicks Find.
  static void find(frmFindDocument& form, const std::string& text, int32_t field = 0,
                   bool wholePhrase = false, bool matchCase = false, bool allClients = false) {
    form.cboField(2).setListIndex(field);
    form.txtField().setText("");
    form.txtField().typeText(text);
    form.chkField(0).setValue(wholePhrase ? 1 : 0);
    form.chkField(1).setValue(matchCase ? 1 : 0);
    form.optSearchClients(allClients ? 1 : 0).setValue(true);
    form.cmdFind().click();
  }
};

TEST_F(FindDocumentTest, ASearchListsWhatMatchedAndGoToHandsTheDocumentBack) {
  std::string firstResults, allResults;
  whenShown<frmFindDocument>([&](frmFindDocument& form) {
    EXPECT_EQ(form.FindTab().Tab(), 0);
    EXPECT_FALSE(form.cmdGoTo().Enabled());
    EXPECT_EQ(form.cboField(2).Text(), "<All>");
    EXPECT_EQ(form.cboField(3).Text(), "Details");
    EXPECT_EQ(form.FindResults().ColumnHeaders().item(2).Width(), 0);  // the hidden id
    // "<All>": the first of the four fields that matches is shown.
    find(form, "tax");
    firstResults = results(form);
    EXPECT_EQ(form.FindTab().Tab(), 1);
    EXPECT_TRUE(form.cmdGoTo().Enabled());
    EXPECT_EQ(form.FindResults().SelectedItem(), &form.FindResults().ListItems().item(1));
    // Every client, the contact's and the client-less link too.
    find(form, "tax", 0, false, false, true);
    allResults = results(form);
    form.FindResults().ListItems().item(3).setSelected(true);
    form.FindResults().setSelectedItem(&form.FindResults().ListItems().item(3));
    form.cmdGoTo().click();
    EXPECT_FALSE(form.Visible());
  });
  frmFindDocument form;
  int32_t found = -2;
  form.initializeFind(1, -1, found);
  EXPECT_EQ(firstResults,
            "2005 Tax Return|1|2005 Tax Return|Acme Holdings\n"
            "Engagement letter|2|/srv/Clients/Acme/tax/letter.docx|Acme Holdings\n");
  EXPECT_EQ(allResults,
            "2005 Tax Return|1|2005 Tax Return|Acme Holdings\n"
            "Engagement letter|2|/srv/Clients/Acme/tax/letter.docx|Acme Holdings\n"
            "Tax Return|4|Tax Return|Birch & Sons\n"
            "Ann's tax slips|5|Ann's tax slips|Ann Lee\n"
            "Orphan tax notes|6|Orphan tax notes||-\n");
  EXPECT_EQ(found, 4);
  EXPECT_FALSE(form.cancelFlag());
  EXPECT_EQ(form.DocumentIDFound(), 4);
  EXPECT_EQ(form.CompanyIDFound(), 2);
  EXPECT_EQ(form.ContactIDFound(), -1);
  EXPECT_EQ(helper->preparedForms(), std::vector<std::string>{"frmFindDocument"});
  EXPECT_TRUE(messages->messages.empty());
}

TEST_F(FindDocumentTest, EachFieldModeAndScopeFindsWhatItShould) {
  std::vector<std::string> seen;
  whenShown<frmFindDocument>([&](frmFindDocument& form) {
    find(form, "pdf", 3, false, false, true);  // the extension of the file name
    seen.push_back(results(form));
    find(form, "PDF", 3, false, true, true);  // its case as stored
    seen.push_back(results(form));
    find(form, "return", 2, false, false, true);  // the file name without extension
    seen.push_back(results(form));
    find(form, "tax return", 1, true, false, true);  // whole phrase in the display name
    seen.push_back(results(form));
    find(form, "Acme", 4);  // the path, this contact's links only
    seen.push_back(results(form));
    form.cmdCancel().click();
  });
  frmFindDocument form;
  int32_t found = 0;
  form.initializeFind(-1, 5, found);
  ASSERT_EQ(seen.size(), 5u);
  EXPECT_EQ(seen[0],
            "2005 Tax Return|1|.pdf|Acme Holdings\nTax Return|4|.PDF|Birch & Sons\n"
            "Ann's tax slips|5|.pdf|Ann Lee\n");
  EXPECT_EQ(seen[1], "Tax Return|4|.PDF|Birch & Sons\n");
  EXPECT_EQ(seen[2], "Tax Return|4|return|Birch & Sons\n");
  EXPECT_EQ(
      seen[3],
      "2005 Tax Return|1|2005 Tax Return|Acme Holdings\nTax Return|4|Tax Return|Birch & Sons\n");
  EXPECT_EQ(seen[4], "");
  EXPECT_EQ(found, -1);
  EXPECT_TRUE(form.cancelFlag());
}

TEST_F(FindDocumentTest, TheThreeMessagesEnterViewsAndSorting) {
  whenShown<frmFindDocument>([&](frmFindDocument& form) {
    form.cmdFind().click();  // nothing typed
    EXPECT_TRUE(form.txtField().hasFocus());
    // One blank is a criteria: it finds every text that holds a blank.
    form.txtField().typeText(" ");
    form.cmdFind().click();
    EXPECT_EQ(form.rowsFound(), 2);
    form.FindTab().setTab(0);
    form.txtField().setText("");
    form.txtField().typeText("zebra\r");  // Enter in the text searches
    EXPECT_EQ(form.FindTab().Tab(), 0);
    EXPECT_FALSE(form.cmdGoTo().Enabled());
    form.cmdGoTo().setEnabled(true);
    form.cmdGoTo().click();  // nothing selected

    form.txtField().setText("");
    form.txtField().typeText("a\r");
    EXPECT_EQ(form.FindTab().Tab(), 1);
    EXPECT_EQ(form.rowsFound(), 3);  // Acme's three links
    form.cboField(3).setListIndex(2);
    EXPECT_EQ(form.FindResults().View(), lvwIcon);
    ColumnHeader& name = form.FindResults().ColumnHeaders().item(1);
    form.FindResults().userClickColumn(name);
    EXPECT_EQ(results(form).substr(0, 7), "2005 Ta");
    form.FindResults().userClickColumn(name);  // the same column again: the other way
    EXPECT_EQ(results(form).substr(0, 7), "Engagem");
    form.cmdSearchComputerFiles().click();
    form.userClose();
  });
  frmFindDocument form;
  form.initializeFind(1, -1);
  std::vector<std::string> texts;
  std::vector<int16_t> styles;
  for (const auto& message : messages->messages) {
    texts.push_back(message.text);
    styles.push_back(message.style);
    EXPECT_EQ(message.owner, &form);
  }
  EXPECT_EQ(texts,
            (std::vector<std::string>{"You must enter a search criteria in the 'Search Text' field",
                                      "There are no records that match your criteria.",
                                      "You must select an item from the list of search results."}));
  EXPECT_EQ(styles, (std::vector<int16_t>{10, 15, 4}));
  // No "Data" folder in the firm's folder: the file manager opens on the folder.
  EXPECT_EQ(shell->calls, std::vector<std::string>{"find " + db.folder().path().string()});
  EXPECT_TRUE(form.cancelFlag());
}

TEST_F(FindDocumentTest, WithTheStoreClosedTheDialogShowsEmptyAndCancelGivesNothing) {
  db.store().close();
  bool shown = false;
  whenShown<frmFindDocument>([&](frmFindDocument& form) {
    shown = true;
    EXPECT_EQ(form.cboField(2).ListCount(), 0);
    form.cmdCancel().click();
  });
  frmFindDocument form;
  int32_t found = 0;
  form.initializeFind(1, -1, found);
  EXPECT_TRUE(shown);
  EXPECT_EQ(found, -1);
  EXPECT_TRUE(helper->preparedForms().empty());
}

}  // namespace
}  // namespace qb::test
