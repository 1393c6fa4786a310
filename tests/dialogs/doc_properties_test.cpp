// The document properties dialog driven as a user would: a present file and
// its facts, the three missing-file states, Browse and its same-name rule,
// Close always saving, and the file manager's properties window.

#include <sys/time.h>

#include <ctime>
#include <filesystem>

#include "dialogs/frm_doc_properties.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/runtime/strings.h"
#include "tests/dialogs/dialog_test.h"

namespace qb::test {
namespace {

class DocPropertiesTest : public DialogTest {
 protected:
  // The link's document object, loaded as the control loads it.
  std::shared_ptr<docQuillboxDocumentClass> document(int32_t id) {
    auto loaded = std::make_shared<docQuillboxDocumentClass>();
    loaded->setDocumentID(id);
    bool loadAll = true, found = false;
    loaded->loadDocument(loadAll, found);
    EXPECT_TRUE(found);
    return loaded;
  }
  std::string column(int id, const std::string& name) {
    return db.scalar("SELECT " + name + " FROM Documents WHERE DocumentID = " + std::to_string(id));
  }
  static std::string thisComputer() { return fileUtilitiesClass().getComputerName(); }
};

TEST_F(DocPropertiesTest, APresentFileShowsItsFactsAndCloseSavesTheNameAsTyped) {
  std::string path = db.folder().writeFileOfSize("Acme/2024 T2 Return.pdf", 1572864);
  std::tm local{};
  local.tm_year = 124, local.tm_mon = 2, local.tm_mday = 5, local.tm_hour = 14, local.tm_min = 7;
  local.tm_isdst = -1;
  timeval times[2] = {{std::mktime(&local), 0}, {std::mktime(&local), 0}};
  utimes(path.c_str(), times);
  addLink(10, "company:1", "2024 Return", path);

  std::string seen;
  whenShown<frmDocProperties>([&](frmDocProperties& form) {
    seen = form.lblFileName().Caption() + "|" + form.txtDateAdded().Text() + "|" +
           form.txtUserAdded().Text() + "|" + form.txtField().Text() + "|" +
           form.txtFileSize().Text() + "|" + form.txtModified().Text() + "|" +
           form.txtAccessed().Text();
    EXPECT_EQ(form.txtFileLocation().Text(), path);
    EXPECT_EQ(form.PropertiesTab().Tab(), 0);
    EXPECT_FALSE(form.PropertiesTab().TabVisible(1));
    EXPECT_FALSE(form.lblReadOnly().Visible());
    EXPECT_EQ(form.IconImage().Picture(), Picture::themeIcon("application-pdf", 32));
    EXPECT_TRUE(form.txtFileSize().Locked());
    EXPECT_FALSE(form.txtField().Locked());
    // The user renames the link: the name takes the focus with its text
    // selected, and typing replaces it.
    form.txtField().SetFocus();
    form.txtField().setSelStart(0);
    form.txtField().setSelLength(Len(form.txtField().Text()));
    form.txtField().typeText("T2 Return 2024 (filed)");
    form.cmdClose().click();
    EXPECT_FALSE(form.Visible());
  });
  auto link = document(10);
  frmDocProperties dialog;
  dialog.Initialize(link);
  EXPECT_EQ(seen,
            "2024 Return|March 5, 2024|jsmith|2024 Return|1.5 Mbytes|"
            "Tue, Mar 5 2024  2:07 pm|Tue, Mar 5 2024  2:07 pm");
  EXPECT_EQ(column(10, "DocIconName"), "T2 Return 2024 (filed)");
  EXPECT_EQ(column(10, "DocPath"), path);
  EXPECT_EQ(link->documentName(), "T2 Return 2024 (filed)");
  EXPECT_EQ(screen().pointerHistory(), (std::vector<int16_t>{11, 0}));
  EXPECT_EQ(helper->preparedForms(), std::vector<std::string>{"frmDocProperties"});
  EXPECT_TRUE(db.errors().failures.empty());

  // A read-only file says so; the window's close box saves as Close does,
  // an emptied name too.
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  whenShown<frmDocProperties>([&](frmDocProperties& form) {
    EXPECT_TRUE(form.lblReadOnly().Visible());
    EXPECT_TRUE(form.Label16().Visible());
    form.txtField().setText("");
    form.userClose();
  });
  frmDocProperties again;
  again.Initialize(document(10));
  EXPECT_EQ(column(10, "DocIconName"), "");
}

TEST_F(DocPropertiesTest, AMissingFileIsExplainedByTheFirstOfThreeStatesThatApplies) {
  const std::string gone =
      "This file was not found in it's last known location.  Click the 'Browse' button to "
      "specify the file's location.";
  db.folder().writeFile("Acme/kept.txt", "x");
  struct Case {
    std::string path;
    std::string computer;
    std::string description;
    bool browse;
  } cases[] = {
      // The folder is there: the file alone is gone, whichever computer added it.
      {db.folder().file("Acme/moved.xlsx"), "OFFICE-9", gone, true},
      // Folder gone, added on another computer: that computer can't be reached.
      {"/mnt/office-9/Clients/Acme/budget.xlsx", "OFFICE-9",
       "This file is on the network computer 'OFFICE-9' which is not accessible at this time.  "
       "Make sure the remote computer is turned on and is accessible from this computer.",
       false},
      // Folder gone on this computer (its name stored in another case).
      {db.folder().file("Old/budget.xlsx"), LCase(thisComputer()), gone, true},
  };
  int id = 20;
  for (const Case& test : cases) {
    addLink(id, "company:1", "Budget", test.path, test.computer);
    whenShown<frmDocProperties>([&](frmDocProperties& form) {
      EXPECT_TRUE(form.PropertiesTab().TabVisible(1));
      EXPECT_EQ(form.PropertiesTab().Tab(), 1);
      EXPECT_EQ(form.lblErrorDescription().Caption(), test.description);
      EXPECT_EQ(form.cmdBrowse().Visible(), test.browse);
      EXPECT_EQ(form.txtFileLocation().Text(), test.path);
      for (TextBox* box :
           {&form.txtFileSize(), &form.txtCreated(), &form.txtModified(), &form.txtAccessed()})
        EXPECT_EQ(box->Text(), "Unknown");
      EXPECT_FALSE(form.lblReadOnly().Visible());
      EXPECT_EQ(form.IconImage().Picture(),
                Picture::themeIcon("x-office-spreadsheet", 32).withEmblem("emblem-unreadable"));
      form.cmdClose().click();
    });
    frmDocProperties dialog;
    dialog.Initialize(document(id));
    EXPECT_EQ(column(id, "DocPath"), test.path) << test.path;
    ++id;
  }
  EXPECT_TRUE(messages->messages.empty());
}

TEST_F(DocPropertiesTest, BrowseOnlyAcceptsTheSameNameAndPointsTheLinkThereOnClose) {
  std::string old = db.folder().file("Old/Budget 2024.xlsx");
  std::string moved = db.folder().writeFileOfSize("Clients/Acme/BUDGET 2024.XLSX", 2 * 1048576);
  std::string other = db.folder().writeFile("Clients/Acme/Budget 2025.xlsx", "x");
  std::filesystem::permissions(moved, std::filesystem::perms::owner_read);
  addLink(30, "company:1", "Budget", old, thisComputer());

  std::vector<std::string> answers = {
      "", other, db.folder().file("Clients/Acme/../Acme/") + "BUDGET 2024.XLSX"};
  std::vector<std::string> asked;
  installFileDialogService([&](CommonDialog& dialog) {
    asked.push_back(dialog.DialogTitle() + "|" + dialog.Filter() + "|" +
                    std::to_string(dialog.FilterIndex()) + "|" + std::to_string(dialog.Flags()) +
                    "|" + dialog.FileName() + "|" + dialog.InitDir());
    std::string answer = answers.front();
    answers.erase(answers.begin());
    if (answer.empty()) return false;  // cancelled
    dialog.setFileName(answer);
    return true;
  });
  whenShown<frmDocProperties>([&](frmDocProperties& form) {
    form.txtField().setText("Budget (moved)");
    form.cmdBrowse().click();  // cancelled: nothing changes
    EXPECT_EQ(form.workingPath(), old);
    form.cmdBrowse().click();  // another name: refused
    EXPECT_EQ(form.workingPath(), old);
    EXPECT_EQ(form.PropertiesTab().Tab(), 1);
    ASSERT_EQ(messages->messages.size(), 1u);
    EXPECT_EQ(messages->messages[0].text,
              "You file you selected is not the same name as the one you are searching for.");
    EXPECT_EQ(messages->messages[0].style, 3);
    EXPECT_EQ(messages->messages[0].owner, &form);

    form.cmdBrowse().click();  // the same name in another case, elsewhere: accepted
    EXPECT_EQ(form.workingPath(), moved);
    EXPECT_EQ(form.txtFileLocation().Text(), moved);
    EXPECT_EQ(form.txtFileSize().Text(), "2 Mbytes");
    EXPECT_NE(form.txtModified().Text(), "Unknown");
    EXPECT_EQ(form.lblErrorDescription().Caption(), "There is no error with this file location.");
    EXPECT_FALSE(form.cmdBrowse().Visible());
    EXPECT_EQ(form.PropertiesTab().Tab(), 0);
    EXPECT_TRUE(form.PropertiesTab().TabVisible(1));
    EXPECT_TRUE(form.lblReadOnly().Visible());  // the note and its word both follow the file
    EXPECT_TRUE(form.Label16().Visible());
    form.cmdClose().click();
  });
  frmDocProperties dialog;
  dialog.Initialize(document(30));
  // The folder was gone: the dialog started in the documents folder.
  ASSERT_EQ(asked.size(), 3u);
  EXPECT_EQ(asked[0], "Find Document File|All Files (*.*)|*.*|1|4096|Budget 2024.xlsx|" +
                          fileUtilitiesClass().getSpecialFolder(0, 5));
  EXPECT_EQ(column(30, "DocPath"), moved);
  EXPECT_EQ(column(30, "DocFileName"), "BUDGET 2024.XLSX");
  EXPECT_EQ(column(30, "DocIconName"), "Budget (moved)");
}

TEST_F(DocPropertiesTest,
       ARefusedBrowseStillSavesTheOldPathWithTheEditedNameAndTheButtonShowsTheFileManager) {
  std::string folder = db.folder().file("Acme");
  std::string old = db.folder().file("Acme/letter.odt");
  std::filesystem::create_directories(folder);
  addLink(40, "company:1", "Letter", old);
  std::string initialFolder;
  installFileDialogService([&](CommonDialog& dialog) {
    initialFolder = dialog.InitDir();
    dialog.setFileName(db.folder().writeFile("Acme/other.odt", "x"));
    return true;
  });
  whenShown<frmDocProperties>([&](frmDocProperties& form) {
    form.txtField().setText("Signed letter");
    form.cmdBrowse().click();
    form.cmdFileProperties().click();
    form.cmdClose().click();
  });
  frmDocProperties dialog;
  dialog.Initialize(document(40));
  EXPECT_EQ(initialFolder, folder);  // the file's own folder while it is there
  EXPECT_EQ(column(40, "DocPath"), old);
  EXPECT_EQ(column(40, "DocIconName"), "Signed letter");
  ASSERT_EQ(shell->requests.size(), 1u);
  EXPECT_EQ(shell->requests[0].lpVerb, "properties");
  EXPECT_EQ(shell->requests[0].lpFile, old);
  EXPECT_EQ(shell->requests[0].cbSize, 60u);
  EXPECT_EQ(shell->requests[0].fMask, 1100u);
  EXPECT_EQ(shell->requests[0].hwnd, static_cast<OwnerForm&>(dialog).hWnd());
}

}  // namespace
}  // namespace qb::test
