// The demo host's lookup fill: opened from the Tools menu, the lookup
// columns of the chosen records listed from the firm's settings, a fill that
// shows its progress client by client while the window keeps handling
// events, and the values in the store afterwards.

#include <sqlite3.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include "app/desk/lookup_fill_dialog.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {
namespace {

QAction* toolsAction(QMainWindow& window, const QString& text) {
  for (QAction* menu : window.menuBar()->actions()) {
    if (menu->text() != "&Tools") continue;
    for (QAction* action : menu->menu()->actions()) {
      if (action->text() == text) return action;
    }
  }
  return nullptr;
}

TEST_F(DeskTest, ALookupColumnFillsFromTheToolsMenuWithItsProgress) {
  QAction* open = toolsAction(*window_, "Fill &Lookup Column…");
  ASSERT_NE(open, nullptr);
  open->trigger();
  settle();
  auto* dialog = window_->findChild<desk::LookupFillDialog*>();
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(dialog->isVisible());
  waitUntilPlaced(*dialog);

  // The task schedule's lookup column is Custom1; the projects' Custom3.
  EXPECT_EQ(dialog->column().count(), 1);
  EXPECT_EQ(dialog->column().currentText(), "Custom1");
  EXPECT_FALSE(dialog->taxYear().isEnabled());
  dialog->family().setCurrentIndex(2);
  EXPECT_EQ(dialog->column().currentText(), "Custom3");
  dialog->family().setCurrentIndex(1);
  EXPECT_TRUE(dialog->taxYear().isEnabled());
  dialog->family().setCurrentIndex(0);
  const int field = dialog->field().findData("CompanyName");
  ASSERT_GE(field, 0);
  dialog->field().setCurrentIndex(field);
  EXPECT_EQ(dialog->field().currentText(), "Company Name");
  screenshotOf(*dialog, "lookup-fill-dialog");

  // While it runs: the progress dialog counts the clients, and a timer of
  // the window still fires (the run gives the event pump its turns).
  int timerTicks = 0;
  QTimer timer;
  timer.setInterval(0);
  QObject::connect(&timer, &QTimer::timeout, [&] { ++timerTicks; });
  timer.start();
  std::vector<int> seen;
  QString midway;
  dialog->stepped = [&](desk::FillProgressDialog& progress, int done) {
    seen.push_back(progress.bar().value());
    EXPECT_TRUE(progress.isVisible());
    EXPECT_FALSE(dialog->fillButton().isEnabled());
    if (done == 3) {
      midway = progress.countText();
      screenshotOf(progress, "lookup-fill-progress");
    }
  };
  dialog->fillButton().click();
  settle();
  timer.stop();
  EXPECT_EQ(seen, (std::vector<int>{1, 2, 3, 4, 5, 6, 7}));
  EXPECT_TRUE(midway.startsWith("3 of 7 clients")) << midway.toStdString();
  EXPECT_GT(timerTicks, 0);
  EXPECT_EQ(dialog->result().text(), "Filled Custom1 for 7 clients.");
  EXPECT_TRUE(dialog->fillButton().isEnabled());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  screenshotOf(*dialog, "lookup-fill-done");

  // Company 2 (ClientData 1) has its name in its schedule rows, read by
  // another connection to the file.
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(folder_.file("firm.db").c_str(), &db), SQLITE_OK);
  sqlite3_stmt* stmt = nullptr;
  sqlite3_prepare_v2(db,
                     "SELECT group_concat(s.Custom1, '|') FROM Schedule s JOIN Companies c ON "
                     "c.CompanyID = 2 WHERE s.ClientNum = 1 AND s.Custom1 = c.CompanyName;",
                     -1, &stmt, nullptr);
  ASSERT_EQ(sqlite3_step(stmt), SQLITE_ROW);
  EXPECT_EQ(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0))),
            "Maple Leaf Bakery Ltd.|Maple Leaf Bakery Ltd.");
  sqlite3_finalize(stmt);
  sqlite3_close(db);
}

}  // namespace
}  // namespace qb::test
