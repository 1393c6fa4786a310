// What the desktop program keeps between runs in the user's settings: the
// window's size and place, the database open last, and for File ▸ Open the
// folder last chosen in and the dialog's size and columns.

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>
#include <filesystem>
#include <functional>

#include "app/common/desk_settings.h"
#include "gui/user_settings.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {

namespace {

// Runs the window's File ▸ Open with act standing in for the user on the
// dialog it shows.
void openDatabaseThroughTheMenu(desk::ClientWindow& window,
                                const std::function<void(QFileDialog&)>& act) {
  QAction* open = nullptr;
  for (QAction* action : window.findChildren<QAction*>()) {
    if (action->text() == "&Open Database…") open = action;
  }
  ASSERT_NE(open, nullptr);
  bool acted = false;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    acted = true;
    act(*dialog);
    if (dialog->isVisible()) dialog->reject();
  });
  open->trigger();
  settle();
  EXPECT_TRUE(acted) << "no file dialog came up";
}

QString folderOf(const std::string& file) {
  return QString::fromStdString(std::filesystem::path(file).parent_path().string());
}

}  // namespace

TEST_F(DeskTest, TheWindowAndTheDatabaseAreKeptBetweenRuns) {
  window_->resize(900, 640);
  window_->move(40, 30);
  waitUntilPlaced(*window_);
  const QPoint place = window_->pos();
  ASSERT_TRUE(window_->close());
  window_.reset();

  // A start without --db: the database open last, in the window as it was.
  desk::DeskOptions options;
  options.unattended = true;
  desk::ClientWindow again(options);
  again.show();
  waitUntilPlaced(again);
  ASSERT_NE(again.component(), nullptr);
  EXPECT_EQ(again.size(), QSize(900, 640));
  EXPECT_EQ(again.pos(), place);
  EXPECT_EQ(again.windowTitle().toStdString(), "Client Documents — Rideau Valley Accounting LLP");
  again.close();

  // A database that is gone is not opened again.
  std::filesystem::remove(folder_.file("firm.db"));
  desk::ClientWindow empty(options);
  EXPECT_EQ(empty.component(), nullptr);
  EXPECT_TRUE(empty.statusBar()->currentMessage().startsWith("No client database is open"));
}

TEST_F(DeskTest, FileOpenStartsWhereTheUserLastChoseAndKeepsItsLayout) {
  gui::userSettings()->remove("dialogs");
  const std::string other = folder_.file("elsewhere, 2024/firm copy.db");
  std::filesystem::create_directories(folderOf(other).toStdString());
  std::filesystem::copy_file(folder_.file("firm.db"), other);

  // The first time: in the open database's folder, large enough for the
  // names; the user picks a database elsewhere.
  openDatabaseThroughTheMenu(*window_, [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), folderOf(folder_.file("firm.db")));
    EXPECT_GE(dialog.width(), 800);
    for (auto* view : dialog.findChildren<QTreeView*>()) {
      EXPECT_GE(view->header()->sectionSize(0), 240);
    }
    screenshotOf(dialog, "file-open-database");
    // The user types the database's whole path and presses Open.
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    ASSERT_NE(name, nullptr);
    name->setText(QString::fromStdString(other));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  // The command-line tool finds it there too.
  const QString settingsFile = gui::userSettings()->fileName();
  EXPECT_EQ(hosts::lastDeskDatabase(QFileInfo(settingsFile).dir().path().toStdString() + "/.."),
            other);
  ASSERT_NE(window_->component(), nullptr);

  // The next time: in the folder chosen last, at the size the user left.
  openDatabaseThroughTheMenu(*window_, [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), folderOf(other));
    dialog.resize(900, 560);
  });
  openDatabaseThroughTheMenu(*window_, [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), folderOf(other));
    EXPECT_EQ(dialog.size(), QSize(900, 560));
  });
  EXPECT_NE(window_->component(), nullptr);  // cancelled: the database stays open
}

}  // namespace qb::test
