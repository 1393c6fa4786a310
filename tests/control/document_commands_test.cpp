// The document commands of the component driven as a user drives them: the
// file dialog and the shared linking step, opening (in use, missing, merge
// documents), properties, removal, the search dialog and its client change,
// going to a document, and the buttons, keys and menus that lead to each.

#include <filesystem>

#include "control/row_tags.h"
#include "dialogs/frm_doc_properties.h"
#include "dialogs/frm_find_document.h"
#include "services/controls/menu_item.h"
#include "services/shell/common_dialog.h"
#include "services/shell/recording_shell.h"
#include "services/util/standard_form_helper.h"
#include "tests/control/quillbox_test.h"

namespace qb::test {
namespace {

class DocumentCommandsTest : public QuillboxTest {
 protected:
  DocumentCommandsTest() {
    locale->ownerForm = &owner;
    locale->formHelper = std::make_shared<StandardFormHelper>();
    installShell(shell);
  }
  ~DocumentCommandsTest() override {
    installShell(nullptr);
    installFileDialogService(nullptr);
  }

  // The rows' texts in list order, "a;b;".
  std::string rows() {
    std::string text;
    ListItemCollection& items = quillbox.lvDocuments().ListItems();
    for (int32_t i = 1; i <= items.Count(); ++i) text += items.item(i).Text() + ";";
    return text;
  }
  ListItem& row(const std::string& text) {
    ListItemCollection& items = quillbox.lvDocuments().ListItems();
    for (int32_t i = 1; i <= items.Count(); ++i)
      if (items.item(i).Text() == text) return items.item(i);
    ADD_FAILURE() << "no row " << text;
    return items.item(1);
  }
  void select(std::initializer_list<const char*> texts) {
    quillbox.lvDocuments().setSelectedItem(nullptr);
    for (const char* text : texts) row(text).setSelected(true);
  }
  // Everything the walk launched, in order.
  std::string launched() {
    std::string text;
    for (const std::string& call : shell->calls) text += call + ";";
    return text;
  }
  std::vector<std::string> messageTexts() {
    std::vector<std::string> texts;
    for (const auto& message : messages->messages) texts.push_back(message.text);
    return texts;
  }

  HostForm owner;
  std::shared_ptr<RecordingShell> shell = std::make_shared<RecordingShell>();
};

TEST_F(DocumentCommandsTest, AddingFilesLinksThemAndRefusesFoldersAndPathsThatAreNeither) {
  start(quillbox);
  show(quillbox, 2);
  const std::string incoming = db.folder().path().string() + "/Incoming";
  db.folder().writeFile("Incoming/Relevé de compte été.pdf", "%PDF");
  std::filesystem::create_directories(incoming + "/Scans");
  std::string settings;
  installFileDialogService([&](CommonDialog& dialog) {
    settings = dialog.InitDir() + "|" + dialog.DialogTitle() + "|" + dialog.Filter() + "|" +
               std::to_string(dialog.FilterIndex()) + "|" + std::to_string(dialog.Flags()) + "|" +
               std::to_string(dialog.hWndOwner());
    dialog.setFileName(
        multipleFileResult(incoming + "/", {"Relevé de compte été.pdf", "Scans", "vanished.txt"}));
    return true;
  });
  size_t pointers = screen().pointerHistory().size();
  int32_t pumps = doEventsCount();
  EXPECT_FALSE(quillbox.addDocumentFiles());

  EXPECT_EQ(settings, db.folder().path().string() +
                          "/Data|Select client files|All Files (*.*)|*.*|0|528900|4242");
  EXPECT_EQ(messageTexts(), (std::vector<std::string>{
                                "You are trying to add the folder '" + incoming +
                                    "/Scans'.  You cannot add a folder to the Orvanta Quillbox.",
                                "Orvanta could not add the file '" + incoming +
                                    "/vanished.txt' to the Document Quillbox."}));
  EXPECT_EQ(messages->messages[0].style, 4);
  EXPECT_EQ(messages->messages[0].owner, &owner);
  // The link is in the selected category, for its client, and on show.
  EXPECT_EQ(rows(), "2025 Return;Budget;Notes;Relevé de compte été.pdf;");
  EXPECT_EQ(db.scalar("SELECT DocCategoryNum || '/' || CompanyIDNum || '/' || DocPath || '/' ||"
                      " DocAddedByUserIDNum FROM Documents WHERE DocIconName LIKE 'Relev%'"),
            "2/1/" + incoming + "/Relevé de compte été.pdf/1");
  // Busy while the batch runs; the pointer comes back for each message; the
  // pump runs twice per piece, the folder too; the fill follows.
  const auto& history = screen().pointerHistory();
  EXPECT_EQ(std::vector<int16_t>(history.begin() + pointers, history.end()),
            (std::vector<int16_t>{11, 0, 11, 0, 11, 0, 11, 0}));
  EXPECT_EQ(doEventsCount() - pumps, 8 + 8);  // 4 pieces, then 4 rows of the fill

  // One file comes back as its path alone; Cancel leaves the list untouched.
  const std::string single = db.folder().writeFile("Incoming/notes 2.txt", "x");
  installFileDialogService([&](CommonDialog& dialog) {
    dialog.setFileName(single);
    return true;
  });
  quillbox.addDocumentFiles();
  EXPECT_EQ(quillbox.lvDocuments().ListItems().Count(), 5);
  installFileDialogService([](CommonDialog&) { return false; });
  pointers = history.size();
  quillbox.addDocumentFiles();
  EXPECT_EQ(history.size(), pointers);
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(DocumentCommandsTest, WithNoCategorySelectedTheLinkIsRefusedByTheLibrary) {
  start(quillbox);
  quillbox.tvClientDocumentation().setSelectedItem(nullptr);
  EXPECT_EQ(quillbox.getCurrentlySelectedCategoryID(), -1);
  installFileDialogService([&](CommonDialog& dialog) {
    dialog.setFileName(returnPdf);
    return true;
  });
  quillbox.addDocumentFiles();
  ASSERT_EQ(errors->failures.size(), 1u);
  EXPECT_EQ(errors->failures[0].number, err::kNoCurrentRecord);
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM Documents"), "4");
}

TEST_F(DocumentCommandsTest,
       OpeningWalksTheSelectionLastFirstAsksForFilesInUseAndExplainsMissingOnes) {
  start(quillbox);
  std::string merge = addDocument(14, 2, "Engagement.omd", 10, "Engagement", 1);
  std::string gone = addDocument(15, 2, "gone.pdf", 10, "Gone", 1);
  db.folder().writeFile("docs/.~lock.budget.xlsx#", "jsmith");  // open elsewhere
  show(quillbox, 2);
  std::filesystem::remove(gone);  // deleted between the fill and the open
  EXPECT_EQ(rows(), "2025 Return;Budget;Engagement;Gone;Notes;");
  select({"2025 Return", "Budget", "Engagement", "Gone", "Notes"});

  std::vector<std::string> merges;
  quillbox.openDocMerge = [&](int16_t& docType, std::string& docPath) {
    merges.push_back(std::to_string(docType) + " " + docPath);
  };
  std::string shownFor;
  installFormService([&](Form& form, OwnerForm*) {
    auto& dialog = dynamic_cast<frmDocProperties&>(form);
    shownFor = dialog.workingPath() + " after " + launched();
    dialog.cmdClose().click();
  });
  messages->answers = {1};  // "No" for the file in use
  EXPECT_FALSE(quillbox.openSelectedDocumentsFiles());

  EXPECT_EQ(launched(), "open " + notesTxt + ";open " + returnPdf + ";");
  EXPECT_EQ(shownFor, gone + " after open " + notesTxt + ";");
  EXPECT_EQ(merges, std::vector<std::string>{"7 " + merge});
  ASSERT_EQ(messages->messages.size(), 1u);
  EXPECT_EQ(messages->messages[0].text,
            "The file Budget is already in use by another user.  Are you sure you want continue "
            "opening this file?\r\n\r\nNote: Most files cannot be opened by more than one person.  "
            "However, some files can be opened in multi-user environments, for example, some "
            "database and accounting software data files.  Make sure you know if this file can "
            "be opened by more than one user.");
  EXPECT_TRUE(messages->messages[0].question);
  EXPECT_EQ(messages->messages[0].style, 4);
  EXPECT_EQ(rows(), "2025 Return;Budget;Engagement;Gone;Notes;");  // the missing row stays

  // "Yes" opens it; Enter and a double click run the same walk.
  shell->calls.clear();
  select({"Budget"});
  messages->answers = {0};
  quillbox.lvDocuments().KeyUp.raise(13, 0);
  quillbox.lvDocuments().DblClick.raise();
  EXPECT_EQ(launched(), "open " + budgetXlsx + ";open " + budgetXlsx + ";");
  // A row whose tag holds no path is passed over.
  shell->calls.clear();
  row("Notes").setTag("Document:11*/");
  select({"Notes"});
  quillbox.openSelectedDocumentsFiles();
  EXPECT_EQ(launched(), "");
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(DocumentCommandsTest, PropertiesRenameTheFocusedRowInPlaceAndDeleteRemovesWithoutAsking) {
  start(quillbox);
  quillbox.changeDocListViewView(viewDetails);
  show(quillbox, 2);
  EXPECT_FALSE(quillbox.openDocumentProperties());  // no row selected: nothing
  EXPECT_TRUE(modalForms().empty());

  select({"Notes", "Budget"});  // Budget was selected last: it is the focused row
  installFormService([&](Form& form, OwnerForm*) {
    auto& dialog = dynamic_cast<frmDocProperties&>(form);
    EXPECT_EQ(dialog.txtField().Text(), "Budget");
    dialog.txtField().setText("Budget 2025");
    dialog.cmdClose().click();
  });
  size_t pointers = screen().pointerHistory().size();
  quillbox.openDocumentProperties();
  ListItem& renamed = row("Budget 2025");
  EXPECT_EQ(renamed.Tag(), "Document:12*/" + budgetXlsx);
  EXPECT_EQ(renamed.ListSubItems().Count(), 14);  // seven more in front
  EXPECT_EQ(renamed.SubItems(1), "0 Mbytes");
  EXPECT_EQ(renamed.SubItems(3), budgetXlsx);
  EXPECT_EQ(renamed.SubItems(8), "0 Mb");  // the row's earlier size, pushed back
  EXPECT_EQ(db.scalar("SELECT DocIconName FROM Documents WHERE DocumentID = 12"), "Budget 2025");
  // Only the dialog's own pointer steps: the list was not rebuilt.
  EXPECT_EQ(screen().pointerHistory().size(), pointers + 2);

  // Delete removes every selected link, no question asked, no refresh.
  select({"Notes", "2025 Return"});
  pointers = screen().pointerHistory().size();
  quillbox.lvDocuments().KeyUp.raise(46, 0);
  EXPECT_EQ(rows(), "Budget 2025;");
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM Documents WHERE DocCategoryNum = 2"), "1");
  EXPECT_TRUE(std::filesystem::exists(notesTxt));  // the files stay
  EXPECT_EQ(screen().pointerHistory().size(), pointers);
  EXPECT_TRUE(messages->messages.empty());
  quillbox.lvDocuments().setSelectedItem(nullptr);
  EXPECT_FALSE(quillbox.deleteSelectedDocuments());
  EXPECT_EQ(rows(), "Budget 2025;");
}

TEST_F(DocumentCommandsTest, TheSearchDialogHandsAnotherClientToTheHostAndNoChangeSelectsNothing) {
  db.exec(
      "INSERT INTO DocCategories (DocCategoryID, DocCategoryNum, CompanyIDNum, DocCategoryName,"
      " DocCategorySpecialType) VALUES (8, NULL, 2, 'Birch', 1);"
      "INSERT INTO Documents (DocumentID, CompanyIDNum, DocCategoryNum, DocPath, DocIconName)"
      " VALUES (20, 2, 8, '/srv/birch/ledger.xlsx', 'Ledger');"
      "INSERT INTO Documents (DocumentID, ContactIDNum, DocCategoryNum, DocPath, DocIconName)"
      " VALUES (21, 5, 7, '/srv/lee/slips.pdf', 'Ledger slips');");
  start(quillbox);
  show(quillbox, 2);
  std::vector<std::string> events;
  quillbox.changeCompany = [&](int32_t& company, int32_t& document) {
    events.push_back("company " + std::to_string(company) + " " + std::to_string(document));
  };
  quillbox.changeContact = [&](int32_t& contact, int32_t& document) {
    events.push_back("contact " + std::to_string(contact) + " " + std::to_string(document));
  };
  // The user finds "ledger" in all clients and goes to the pick'th result.
  int pick = 0;
  installFormService([&](Form& form, OwnerForm*) {
    auto& dialog = dynamic_cast<frmFindDocument&>(form);
    if (pick == 0) {
      dialog.cmdCancel().click();
      return;
    }
    dialog.txtField().typeText(pick == 3 ? "budget" : "ledger");
    dialog.optSearchClients(1).setValue(true);
    dialog.cmdFind().click();
    ListItem& chosen = dialog.FindResults().ListItems().item(pick == 3 ? 1 : pick);
    dialog.FindResults().setSelectedItem(&chosen);
    dialog.cmdGoTo().click();
  });
  quillbox.cmdDocManager(3).click();  // cancelled: nothing
  pick = 1;
  quillbox.cmdDocManager(3).click();  // a document of company 2
  EXPECT_EQ(quillbox.clientType(), enumDocQuillboxClientTypeCompany);
  EXPECT_EQ(quillbox.companyIDNum(), 2);
  EXPECT_EQ(quillbox.contactIDNum(), -1);  // set directly, not through the property
  pick = 2;
  quillbox.cmdDocManager(3).click();  // a contact's document
  EXPECT_EQ(quillbox.contactIDNum(), 5);
  EXPECT_EQ(quillbox.companyIDNum(), 2);
  // A document of the current client: no event, and the list stays as it was.
  quillbox.setCompanyIDNum(1);
  quillbox.lvDocuments().setSelectedItem(nullptr);
  pick = 3;
  quillbox.cmdDocManager(3).click();
  EXPECT_EQ(events, (std::vector<std::string>{"company 2 20", "contact 5 21"}));
  EXPECT_EQ(quillbox.lvDocuments().SelectedItem(), nullptr);
  EXPECT_EQ(modalForms().size(), 4u);
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(DocumentCommandsTest, GoToDocumentShowsItsCategoryAndSelectsTheRowByName) {
  start(quillbox);
  show(quillbox, 2);
  size_t pointers = screen().pointerHistory().size();
  int32_t letter = 13;
  EXPECT_FALSE(quillbox.goToDocument(letter));  // in "Letters": the list is rebuilt
  EXPECT_EQ(quillbox.tvClientDocumentation().SelectedItem()->Key(), "Category:3");
  EXPECT_EQ(rows(), "Letter;");
  EXPECT_EQ(quillbox.lvDocuments().SelectedItem(), &row("Letter"));
  EXPECT_TRUE(quillbox.lvDocuments().hasFocus());
  EXPECT_GT(screen().pointerHistory().size(), pointers);

  pointers = screen().pointerHistory().size();
  quillbox.goToDocument(letter);  // the category on show: no rebuild
  EXPECT_EQ(screen().pointerHistory().size(), pointers);
  // A link renamed since the fill is no longer found by its name: nothing
  // is selected; a link that does not exist leaves tree and list.
  db.exec("UPDATE Documents SET DocIconName = 'Signed letter' WHERE DocumentID = 13;");
  quillbox.lvDocuments().setSelectedItem(nullptr);
  quillbox.goToDocument(letter);
  EXPECT_EQ(quillbox.lvDocuments().SelectedItem(), nullptr);
  int32_t none = 999;
  quillbox.goToDocument(none);
  EXPECT_EQ(quillbox.tvClientDocumentation().SelectedItem()->Key(), "Category:3");
  EXPECT_TRUE(errors->failures.empty());
  // No node selected: the read of its key fails and is reported.
  quillbox.tvClientDocumentation().setSelectedItem(nullptr);
  quillbox.goToDocument(letter);
  ASSERT_EQ(errors->failures.size(), 1u);
  EXPECT_EQ(errors->failures[0].number, err::kObjectRequired);
}

TEST_F(DocumentCommandsTest, ButtonsKeysAndBothListMenusLeadToTheirCommands) {
  start(quillbox);
  show(quillbox, 2);
  int dialogs = 0;
  installFileDialogService([&](CommonDialog&) {
    ++dialogs;
    return false;
  });
  installFormService([](Form& form, OwnerForm*) { form.userClose(); });
  // A menu runs the item the test names.
  std::string choice;
  installPopupMenuHandler([&](MenuItem& menu, int32_t, auto, auto) {
    if (MenuItem* item = menu.find(choice)) item->click();
  });
  auto fromMenu = [&](const std::string& item, bool onRow) {
    choice = item;
    quillbox.lvDocuments().MouseUp.raise(2, 0, 100, onRow ? 10 : 100000);
  };
  quillbox.cmdDocManager(0).click();
  fromMenu("mnuAddFiles", false);
  fromMenu("mnuAddFiles2", true);
  EXPECT_EQ(dialogs, 3);

  select({"Notes"});
  quillbox.cmdDocManager(1).click();
  fromMenu("mnuOpenFile", true);
  EXPECT_EQ(launched(), "open " + notesTxt + ";open " + notesTxt + ";");

  fromMenu("mnuDocProperties2", false);
  fromMenu("mnuDocProperties", true);
  EXPECT_EQ(modalForms(), (std::vector<std::string>{"frmDocProperties", "frmDocProperties"}));

  select({"Notes"});
  fromMenu("mnuRemoveFiles", false);
  select({"Budget"});
  fromMenu("mnuRemoveFiles2", true);
  select({"2025 Return"});
  quillbox.cmdDocManager(2).click();
  EXPECT_EQ(rows(), "");
  EXPECT_TRUE(errors->failures.empty());
}

}  // namespace
}  // namespace qb::test
