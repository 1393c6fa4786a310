// The host around the component: the firm's clients in navigation order,
// the client picker, the command line, and what the host does on close and
// with a database it can't open.

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStatusBar>
#include <QTreeWidget>

#include "app/desk/client_picker_dialog.h"
#include "app/desk/dialog_error_object.h"
#include "services/runtime/conversions.h"
#include "services/store/sqlite_database.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {

namespace {

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
