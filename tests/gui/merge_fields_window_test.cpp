// The demo host's merge fields window: the two field lists for the client on
// screen, and a pick that puts a marker into the template.

#include "app/desk/merge_fields_window.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <cstdlib>

#include "app/desk/dialog_error_object.h"
#include "gui/list_box_widget.h"
#include "gui/rich_text_box_widget.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "services/controls/list_box.h"
#include "services/controls/rich_text_box.h"
#include "tests/gui/desk_fixture.h"

namespace qb::test {
namespace {

// The row of a list widget that shows a text; -1 when none does.
int rowOf(QListWidget& list, const QString& text) {
  for (int row = 0; row < list.count(); ++row) {
    if (list.item(row)->text() == text) return row;
  }
  return -1;
}

// What a user does to pick a line: choose it, then double-click it.
void pickLine(gui::ListBoxWidget& list, int row) {
  ASSERT_GE(row, 0);
  list.setCurrentRow(row);
  emit list.itemActivated(list.item(row));
  settle();
}

void saveWindow(QWidget& window, const std::string& name, const TempFolder& folder) {
  const char* dir = std::getenv("QB_SCREENSHOT_DIR");
  const std::string path = (dir ? std::string(dir) : folder.path().string()) + "/" + name + ".png";
  QDir().mkpath(QFileInfo(QString::fromStdString(path)).absolutePath());
  EXPECT_TRUE(window.grab().save(QString::fromStdString(path), "PNG")) << path;
}

TEST_F(DeskTest, TheMergeFieldsWindowListsTheClientsAndTheFirmsFields) {
  // The window is opened from the Tools menu, for the client on screen.
  QAction* open = nullptr;
  for (QAction* menu : window_->menuBar()->actions()) {
    if (menu->text() != "&Tools") continue;
    for (QAction* action : menu->menu()->actions()) {
      if (action->text() == "&Merge Fields…") open = action;
    }
  }
  ASSERT_NE(open, nullptr);
  open->trigger();
  settle();
  auto* fields = window_->findChild<desk::MergeFieldsWindow*>();
  ASSERT_NE(fields, nullptr);
  EXPECT_TRUE(fields->isVisible());

  // A company: its address first, its default contact, accounting, software.
  gui::ListBoxWidget& clients = fields->clientFieldsWidget();
  ASSERT_GT(clients.count(), 150);
  EXPECT_EQ(clients.item(0)->text(), "[Company Address Info]");
  EXPECT_EQ(clients.item(1)->text(), "Company Name");
  EXPECT_GE(rowOf(clients, "[Default Contact Name]"), 0);
  EXPECT_GE(rowOf(clients, "HST Number"), 0);  // Ontario, after 1 July 2010
  EXPECT_FALSE(clients.item(0)->flags() & Qt::ItemIsSelectable);
  EXPECT_TRUE(clients.item(0)->font().bold());
  EXPECT_EQ(clients.count(), fields->clientFields().ListCount());
  saveWindow(*fields, "merge-fields-opened", folder_);

  gui::ListBoxWidget& firm = fields->firmFieldsWidget();
  EXPECT_EQ(firm.item(0)->text(), "Insert your Letterhead");
  EXPECT_EQ(firm.item(1)->text(), "Your Company Name");

  // A double click puts the marker at the caret; a header inserts nothing.
  gui::RichTextBoxWidget& text = fields->templateWidget();
  text.setPlainText("Dear ,");
  QTextCursor caret = text.textCursor();
  caret.setPosition(5);
  text.setTextCursor(caret);
  pickLine(clients, rowOf(clients, "Contact First Name"));
  EXPECT_EQ(fields->templateText().Text(), "Dear «Contact First Name»,");
  EXPECT_EQ(text.toPlainText(), "Dear «Contact First Name»,");
  EXPECT_EQ(text.textCursor().position(), 25);
  pickLine(clients, rowOf(clients, "[Company Accounting Info]"));
  EXPECT_EQ(fields->templateText().Text(), "Dear «Contact First Name»,");
  pickLine(clients, rowOf(clients, "Contact Birthday"));
  EXPECT_EQ(fields->templateText().Text(),
            "Dear «Contact First Name»«(Contact Birthday, mmmm d yyyy)»,");
  caret = text.textCursor();
  caret.setPosition(0);
  text.setTextCursor(caret);
  pickLine(firm, 0);
  EXPECT_EQ(text.toPlainText().left(54),
            "«Your Company Name»\n«Your Address»\n«Your City», «Your ");
  saveWindow(*fields, "merge-fields-picked", folder_);
  EXPECT_EQ(window_->errors().failureCount(), 0);
  fields->close();
}

TEST_F(DeskTest, AContactsMergeFieldsHaveNoCompanySection) {
  hosts::Client contact;
  contact.isCompany = false;
  contact.id = window_->roster().at(window_->roster().size() - 1).id;
  contact.name = "A contact";
  desk::MergeFieldsWindow fields(contact, window_.get());
  EXPECT_EQ(fields.clientFieldsWidget().item(1)->text(), "[Contact Name]");
  EXPECT_EQ(rowOf(fields.clientFieldsWidget(), "[Company Address Info]"), -1);
  EXPECT_EQ(rowOf(fields.clientFieldsWidget(), "Company Name"), -1);
  EXPECT_GE(rowOf(fields.clientFieldsWidget(), "Contact Notes"), 0);
}

}  // namespace
}  // namespace qb::test
