// The host around the component: the firm's clients in navigation order,
// the client picker, the command line, and what the host does on close and
// with a database it can't open.

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>
#include <QTreeWidget>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "app/desk/client_picker_dialog.h"
#include "app/desk/dialog_error_object.h"
#include "gui/message_box_object.h"
#include "services/runtime/conversions.h"
#include "services/store/sqlite_database.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {

namespace {

std::string bytesOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

std::vector<std::string> names(const hosts::ClientRoster& roster, int from, int to) {
  std::vector<std::string> found;
  for (int i = from; i < to; ++i) found.push_back(roster.at(i).name);
  return found;
}

}  // namespace

TEST_F(DeskTest, RosterHoldsCompaniesThenContactsByName) {
  const hosts::ClientRoster& roster = window_->roster();
  ASSERT_EQ(roster.size(), 16 + 30);  // the firm and its five users are not clients
  EXPECT_EQ(names(roster, 0, 3),
            (std::vector<std::string>{"Bluenose Marine Services Ltd.", "Byward Market Books",
                                      "Château Gris Catering Inc."}));
  EXPECT_TRUE(roster.at(15).isCompany);
  EXPECT_FALSE(roster.at(16).isCompany);
  EXPECT_EQ(roster.find(true, 1), -1);   // Rideau Valley Accounting LLP, the firm
  EXPECT_EQ(roster.find(false, 1), -1);  // Marie Tremblay, a user
  for (int i = 17; i < roster.size(); ++i) {
    EXPECT_LE(QString::fromStdString(roster.at(i - 1).name)
                  .compare(QString::fromStdString(roster.at(i).name), Qt::CaseInsensitive),
              0);
  }
  EXPECT_EQ(roster.firstWithDocuments(), 0);
  EXPECT_EQ(window_->currentClient(), roster.find(true, 2));

  // The picker filters by any part of the name and picks the first shown.
  desk::ClientPickerDialog picker(roster, roster.find(true, 3), nullptr);
  picker.filter("BAKERY");
  int shown = 0;
  for (int i = 0; i < picker.list().topLevelItemCount(); ++i)
    shown += !picker.list().topLevelItem(i)->isHidden();
  EXPECT_EQ(shown, 2);
  EXPECT_EQ(picker.picked(), roster.find(true, 12));  // Maple Leaf Bakery - Orléans comes first
  picker.filter("no such client");
  EXPECT_EQ(picker.picked(), -1);
}

TEST_F(DeskTest, FindClientsArrowKeysGoFromTheFilterIntoTheList) {
  const hosts::ClientRoster& roster = window_->roster();
  desk::ClientPickerDialog picker(roster, roster.find(true, 3), nullptr);
  picker.show();
  waitUntilPlaced(picker);
  auto press = [](QWidget& target, int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&target, &event);
    settle();
  };
  picker.search().setText("bakery");
  ASSERT_EQ(picker.focusWidget(), &picker.search());
  // Down in the filter box: into the list, on the first client shown.
  press(picker.search(), Qt::Key_Down);
  EXPECT_EQ(picker.focusWidget(), &picker.list());
  EXPECT_EQ(picker.picked(), roster.find(true, 12));  // Maple Leaf Bakery - Orléans
  EXPECT_EQ(picker.search().text(), "bakery");
  screenshotOf(picker, "find-client");
  // Down again in the list: the next client shown.
  press(picker.list(), Qt::Key_Down);
  EXPECT_EQ(picker.picked(), roster.find(true, 2));  // Maple Leaf Bakery Ltd.
  picker.close();
}

TEST_F(DeskTest, ClosingKeepsTheUsersViewAndABadDatabaseLeavesTheWindowEmpty) {
  quillbox().changeDocListViewView(viewSmallIcons);
  const int16_t divider = quillbox().splitterPosition();
  ASSERT_TRUE(window_->close());
  EXPECT_EQ(window_->component(), nullptr);

  SqliteDatabase store;
  store.open(folder_.file("firm.db"));
  RecordsetHandle row = store.openRecordset(
      "SELECT DocQuillboxListViewType, BusinessDocQuillboxSplitter FROM UserGeneralSettings WHERE "
      "UserIDNum = 1;",
      adOpenKeyset, adLockReadOnly);
  ASSERT_TRUE(store.moveFirstRecord(row));
  EXPECT_EQ(CLng(store.getFieldValue(row, Variant(std::string("DocQuillboxListViewType")))),
            viewSmallIcons);
  EXPECT_EQ(CLng(store.getFieldValue(row, Variant(std::string("BusinessDocQuillboxSplitter")))),
            divider);
  store.closeRecordset(row);
  EXPECT_EQ(window_->errors().failureCount(), 0);

  EXPECT_FALSE(window_->openDatabase(QString::fromStdString(folder_.file("missing.db"))));
  EXPECT_EQ(window_->component(), nullptr);
  EXPECT_TRUE(window_->statusBar()->currentMessage().startsWith("Can't open"));
  EXPECT_TRUE(window_->openDatabase(QString::fromStdString(folder_.file("firm.db"))));
  settle();
  EXPECT_EQ(quillbox().ListViewViews(), viewSmallIcons);
  EXPECT_EQ(window_->currentClient(), 0);  // the first client with documents
}

TEST_F(DeskTest, AFileThatCantBeOpenedLeavesTheOpenDatabaseAsItWas) {
  nvDocumentQuillbox* component = window_->component();
  const int client = window_->currentClient();
  const int32_t rows = quillbox().lvDocuments().ListItems().Count();
  ASSERT_GT(rows, 0);
  const std::string text = folder_.writeFile("notes.db", "Meeting notes\n");
  const std::string missing = folder_.file("gone.db");
  for (const std::string& path : {text, missing}) {
    EXPECT_FALSE(window_->openDatabase(QString::fromStdString(path)));
    EXPECT_EQ(window_->component(), component);
    EXPECT_EQ(window_->currentClient(), client);
    EXPECT_EQ(quillbox().lvDocuments().ListItems().Count(), rows);
    const std::string& said = window_->messages().texts().back();
    EXPECT_EQ(said.substr(said.size() - 33), "The database open now stays open.") << said;
  }
  const auto& texts = window_->messages().texts();
  EXPECT_EQ(
      texts[texts.size() - 2].rfind("The database \"" + text + "\" is not a client database", 0),
      0u);
  EXPECT_EQ(texts.back().rfind("There is no database file at \"" + missing + "\".", 0), 0u);
  EXPECT_EQ(bytesOf(text), "Meeting notes\n");
  EXPECT_EQ(window_->errors().failureCount(), 0);
}

TEST(DeskStart, OnAMissingDatabaseItSaysSoAndCanMakeTheSample) {
  ensureApplication();
  TempFolder folder;
  desk::DeskOptions options;
  options.databasePath = folder.file("firm.db");
  options.unattended = true;
  desk::ClientWindow window(options);
  EXPECT_EQ(window.component(), nullptr);
  ASSERT_EQ(window.messages().texts().size(), 1u);
  EXPECT_EQ(window.messages().texts()[0],
            "The client database \"" + options.databasePath +
                "\" can't be opened.\nThere is no database file at \"" + options.databasePath +
                "\". Check the path; the file may have been moved or deleted.");

  ASSERT_TRUE(window.createSampleDatabase(QString::fromStdString(options.databasePath)));
  ASSERT_NE(window.component(), nullptr);
  EXPECT_EQ(window.roster().size(), 16 + 30);
  EXPECT_TRUE(std::filesystem::exists(folder.file("firm-files")));
}

// Not unattended: the box itself, its buttons and what the sample button does.
TEST(DeskStart, TheStartBoxOffersAnotherDatabaseOrTheSample) {
  ensureApplication();
  TempFolder folder;
  desk::DeskOptions options;
  options.databasePath = folder.file("firm.db");
  QStringList buttons;
  std::function<void()> answer = [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) {
      QTimer::singleShot(10, answer);
      return;
    }
    const char* dir = std::getenv("QB_SCREENSHOT_DIR");
    box->grab().save(QString::fromStdString(
        (dir != nullptr ? std::string(dir) : folder.path().string()) + "/start-box.png"));
    for (QAbstractButton* button : box->buttons()) buttons << button->text();
    for (QAbstractButton* button : box->buttons()) {
      if (button->text().contains("Sample")) button->click();
    }
  };
  QTimer::singleShot(0, answer);
  desk::ClientWindow window(options);
  buttons.sort();
  EXPECT_EQ(buttons, (QStringList{"&Create the Sample Database", "&Open Another Database…",
                                  "Continue &Without", "Show Details..."}));
  ASSERT_NE(window.component(), nullptr);
  EXPECT_EQ(window.roster().size(), 16 + 30);
}

TEST(DeskOptions, ClientOption) {
  desk::DeskOptions options;
  desk::parseClient("contact:7", options);
  EXPECT_EQ(options.clientIsCompany, false);
  EXPECT_EQ(options.clientID, 7);
  desk::parseClient("company:0", options);
  EXPECT_EQ(options.clientIsCompany, true);
  EXPECT_EQ(options.clientID, 0);
  for (const char* bad : {"firm:1", "company:", "company:x", "contact:-3", "7"}) {
    EXPECT_THROW(desk::parseClient(bad, options), desk::OptionsError) << bad;
  }
}

}  // namespace qb::test
