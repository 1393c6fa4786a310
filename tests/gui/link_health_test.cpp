// Link health in the demo host: the broken-link emblem on the icon of a row
// whose file can't be reached; the Link Health window with the sample firm's
// broken links by client, its state filter and a row opened in the
// properties dialog; and the relink assistant repairing the firm after its
// files folder moved, with a preview first and a confirmation.

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <filesystem>

#include "app/desk/desktop_services.h"
#include "app/desk/dialog_error_object.h"
#include "app/desk/link_health_window.h"
#include "app/desk/relink_assistant.h"
#include "gui/form_dialogs.h"
#include "services/controls/form.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;

// The share of red in a corner of an icon drawn at 32 pixels: the emblem.
bool redCorner(const QIcon& icon) {
  const QImage image = icon.pixmap(QSize(32, 32), 1.0).toImage();
  int red = 0;
  for (int y = 22; y < 32; ++y) {
    for (int x = 22; x < 32; ++x) {
      const QColor c = image.pixelColor(x, y);
      if (c.alpha() > 128 && c.red() > 150 && c.green() < 90 && c.blue() < 90) ++red;
    }
  }
  return red > 10;
}

// The links the window shows: "client > name: state" a line.
std::string shown(QTreeWidget& tree) {
  std::string text;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) {
    QTreeWidgetItem* client = tree.topLevelItem(i);
    const std::string name = client->text(0).toStdString();
    for (int k = 0; k < client->childCount(); ++k) {
      text += name.substr(0, name.find(" — ")) + " > " + client->child(k)->text(0).toStdString() +
              ": " + client->child(k)->text(1).toStdString() + "\n";
    }
  }
  return text;
}

class LinkHealthTest : public DeskTest {
 protected:
  desk::LinkHealthWindow& openFromTheMenu() {
    QAction* open = nullptr;
    for (QAction* menu : window_->menuBar()->actions()) {
      if (menu->text() != "&File") continue;
      for (QAction* action : menu->menu()->actions())
        if (action->text() == "&Link Health…") open = action;
    }
    EXPECT_NE(open, nullptr);
    if (open != nullptr) open->trigger();
    settle();
    auto* health = window_->findChild<desk::LinkHealthWindow*>();
    if (health == nullptr) throw std::runtime_error("no Link Health window");
    return *health;
  }
  QTreeWidgetItem* rowNamed(QTreeWidget& tree, const QString& name) {
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
      for (int k = 0; k < tree.topLevelItem(i)->childCount(); ++k)
        if (tree.topLevelItem(i)->child(k)->text(0) == name) return tree.topLevelItem(i)->child(k);
    ADD_FAILURE() << "no row " << name.toStdString();
    return nullptr;
  }
  void chooseFilter(desk::LinkHealthWindow& health, const QString& label) {
    QComboBox& filter = health.filterBox();
    const int index = filter.findText(label);
    ASSERT_GE(index, 0) << label.toStdString();
    filter.setCurrentIndex(index);
    emit filter.activated(index);
    settle();
  }
};

TEST_F(LinkHealthTest, ARowWhoseFileCantBeReachedShowsTheBrokenLinkEmblem) {
  ASSERT_TRUE(window_->showClient(true, 3));
  clickCategory("Correspondence");
  gui::DocumentListWidget& list = listWidget();
  QAbstractItemModel& model = list.itemModel();
  int broken = -1, present = -1;
  for (int row = 0; row < model.rowCount(); ++row) {
    const QString name = model.index(row, 0).data().toString();
    if (name == "Engagement Letter 2019")
      broken = row;
    else if (present < 0)
      present = row;
  }
  ASSERT_GE(broken, 0);
  ASSERT_GE(present, 0);
  EXPECT_TRUE(redCorner(model.index(broken, 0).data(Qt::DecorationRole).value<QIcon>()));
  EXPECT_FALSE(redCorner(model.index(present, 0).data(Qt::DecorationRole).value<QIcon>()));
  quillbox().changeDocListViewView(viewIcons);
  settle();
  screenshot("document-list-broken-link-emblem");
}

TEST_F(LinkHealthTest, TheWindowListsBrokenLinksByClientFiltersAndOpensTheirProperties) {
  desk::LinkHealthWindow& health = openFromTheMenu();
  EXPECT_TRUE(health.isVisible());
  EXPECT_EQ(health.windowModality(), Qt::WindowModal);
  EXPECT_EQ(shown(health.tree()),
            "Côté Plomberie Inc. > Engagement Letter 2019: File gone\n"
            "Lefèbvre Consulting Group > Scanned receipts 2015: Other computer\n"
            "Northern Lights Dental > Financial Statements 2023: File gone\n");
  screenshotOf(health, "link-health-broken");

  chooseFilter(health, "Read-only");
  EXPECT_EQ(health.tree().topLevelItemCount(), 1);
  chooseFilter(health, "All links");
  int rows = 0;
  for (int i = 0; i < health.tree().topLevelItemCount(); ++i)
    rows += health.tree().topLevelItem(i)->childCount();
  EXPECT_EQ(static_cast<size_t>(rows), health.results().size());
  screenshotOf(health, "link-health-all");

  // A broken link opened from its row: the properties dialog explains it.
  chooseFilter(health, "Broken links");
  QTreeWidgetItem* row = rowNamed(health.tree(), "Engagement Letter 2019");
  ASSERT_NE(row, nullptr);
  bool shownDialog = false;
  window_->desktop().formDialogs().setShownHook([&](QDialog& dialog, Form& form) {
    shownDialog = true;
    EXPECT_EQ(dialog.parentWidget(), &health);
    auto* tabs = dialog.findChild<QTabWidget*>("PropertiesTab");
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->currentIndex(), 1);
    screenshotOf(dialog, "link-health-properties");
    form.userClose();
  });
  health.tree().setCurrentItem(row);
  emit health.tree().itemActivated(row, 0);
  settle();
  EXPECT_TRUE(shownDialog);
  EXPECT_NE(rowNamed(health.tree(), "Engagement Letter 2019"), nullptr);
  EXPECT_EQ(window_->errors().failureCount(), 0);
}

TEST_F(LinkHealthTest, TheRelinkAssistantRepairsAFirmWhoseFilesFolderMoved) {
  const std::string files = folder_.file("files"), moved = folder_.file("moved files");
  fs::rename(files, moved);
  desk::LinkHealthWindow& health = openFromTheMenu();
  const size_t all = health.results().size();
  ASSERT_GT(all, 50u);
  EXPECT_NE(health.summary().text().indexOf("other computer"), -1);
  screenshotOf(health, "link-health-folder-moved");

  int asked = 0;
  health.onAssistantShown = [&](desk::RelinkAssistant& assistant) {
    EXPECT_EQ(assistant.oldFolderEdit().text(), "");
    // A relative folder is refused with its reason.
    assistant.oldFolderEdit().setText("files");
    assistant.newFolderEdit().setText(QString::fromStdString(moved));
    EXPECT_FALSE(assistant.preview());
    EXPECT_NE(assistant.status().text().indexOf("relative path"), -1);
    EXPECT_FALSE(assistant.applyButton().isEnabled());

    assistant.oldFolderEdit().setText(QString::fromStdString(files) + "/");
    ASSERT_TRUE(assistant.preview());
    EXPECT_EQ(assistant.plan().rows.size(), all);
    EXPECT_EQ(static_cast<size_t>(assistant.table().topLevelItemCount()), all);
    EXPECT_TRUE(assistant.applyButton().isEnabled());
    screenshotOf(assistant, "relink-assistant-preview");

    // The user says no first: nothing changes.
    assistant.confirm = [&](const QString& question) {
      ++asked;
      EXPECT_NE(question.indexOf("No file is moved"), -1);
      return false;
    };
    assistant.applyButton().click();
    EXPECT_FALSE(assistant.changedLinks());
    assistant.confirm = [&](const QString&) {
      ++asked;
      return true;
    };
    assistant.applyButton().click();
    EXPECT_TRUE(assistant.changedLinks());
    EXPECT_NE(assistant.status().text().indexOf("Relinked"), -1);
    EXPECT_FALSE(assistant.applyButton().isEnabled());
    screenshotOf(assistant, "relink-assistant-applied");
  };
  QPushButton* relink = nullptr;
  for (QPushButton* button : health.findChildren<QPushButton*>())
    if (button->text() == "&Relink Folder…") relink = button;
  ASSERT_NE(relink, nullptr);
  relink->click();
  settle();
  EXPECT_EQ(asked, 2);
  // Checked again: only the links that were broken before the move are, and
  // they still point into the old folder, which is gone.
  EXPECT_EQ(health.results().size(), all);
  EXPECT_EQ(shown(health.tree()),
            "Côté Plomberie Inc. > Engagement Letter 2019: Other computer\n"
            "Lefèbvre Consulting Group > Scanned receipts 2015: Other computer\n"
            "Northern Lights Dental > Financial Statements 2023: Other computer\n");
  screenshotOf(health, "link-health-after-relink");
  EXPECT_EQ(window_->errors().failureCount(), 0);
}

}  // namespace
}  // namespace qb::test
