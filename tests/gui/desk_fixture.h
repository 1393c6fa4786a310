#pragma once
// The GUI tests' fixture: the sample firm in a temporary folder, hosted in
// the demo client window on the offscreen platform, unattended (no dialogs).
// Helpers find the widgets that render the component's controls, send them
// synthetic mouse input and save screenshots for a person to look at.

#include <gtest/gtest.h>

#include <QDialog>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "app/desk/client_window.h"
#include "control/nv_document_quillbox.h"
#include "gui/category_tree_widget.h"
#include "gui/document_list_widget.h"
#include "gui/user_control_host.h"
#include "services/controls/form.h"
#include "tests/support/temp_folder.h"

namespace qb::test {

// The one QApplication of the test program (offscreen), with the icon theme.
void ensureApplication();
// Lets posted events (layout, paints) run.
void settle();
// Waits until a window just shown is on the screen where it stays.
void waitUntilPlaced(QWidget& window);
// One mouse event of type at a point of target.
void mouse(QWidget& target, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
           Qt::MouseButtons held);
// Saves a picture of a widget (a dialog, say) under $QB_SCREENSHOT_DIR.
void screenshotOf(QWidget& widget, const std::string& name);
// A press and a release of button at a point of target, then settle().
void click(QWidget& target, const QPoint& at, Qt::MouseButton button = Qt::LeftButton);

class DeskTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite();
  void SetUp() override;
  void TearDown() override;

  nvDocumentQuillbox& quillbox() { return *window_->component(); }
  gui::UserControlHost& host() { return *window_->componentHost(); }
  gui::CategoryTreeWidget& treeWidget();
  gui::DocumentListWidget& listWidget();
  QWidget& widgetOf(const Control& control);

  // A left click on the tree item that shows the node with that text.
  void clickCategory(const std::string& text);
  // The node with that text, failing the test when there is none.
  Node& nodeNamed(const std::string& text);
  // Saves the window under $QB_SCREENSHOT_DIR (or the temporary folder).
  void screenshot(const std::string& name);
  // Runs act inside each modal dialog of a form once it is on screen, then
  // closes what is still open.
  void whenDialogShows(std::function<void(QDialog&, Form&)> act);

  TempFolder folder_;
  std::unique_ptr<desk::ClientWindow> window_;
};

}  // namespace qb::test
