#include "tests/gui/desk_fixture.h"

#include <QApplication>
#include <QMouseEvent>
#include <cstdlib>

#include "gui/theme_icons.h"
#include "sample/sample_firm.h"

// The desktop's font library keeps its caches for the life of the process;
// the leak checker of the sanitizer build is told so.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }

namespace qb::test {

namespace {

// The sample company with categories of several documents.
constexpr int32_t kBakery = 2;

}  // namespace

void ensureApplication() {
  if (QApplication::instance() != nullptr) return;
  static int argc = 1;
  static char name[] = "test_gui";
  static char* argv[] = {name, nullptr};
  new QApplication(argc, argv);
  gui::ensureIconTheme();
}

void DeskTest::SetUpTestSuite() { ensureApplication(); }

void DeskTest::SetUp() {
  const std::string db = folder_.file("firm.db");
  createDatabase(db);
  fillSampleFirm(db, folder_.file("files"));
  desk::DeskOptions options;
  options.databasePath = db;
  options.clientIsCompany = true;
  options.clientID = kBakery;
  options.unattended = true;
  window_ = std::make_unique<desk::ClientWindow>(options);
  window_->resize(1100, 720);
  window_->show();
  settle();
  ASSERT_NE(window_->component(), nullptr);
}

void DeskTest::TearDown() { window_.reset(); }

void settle() {
  for (int i = 0; i < 4; ++i) QApplication::processEvents();
}

QWidget& DeskTest::widgetOf(const Control& control) {
  QWidget* widget = host().widgetFor(control);
  EXPECT_NE(widget, nullptr) << control.Name();
  return *widget;
}

gui::CategoryTreeWidget& DeskTest::treeWidget() {
  return dynamic_cast<gui::CategoryTreeWidget&>(widgetOf(quillbox().tvClientDocumentation()));
}

gui::DocumentListWidget& DeskTest::listWidget() {
  return dynamic_cast<gui::DocumentListWidget&>(widgetOf(quillbox().lvDocuments()));
}

void mouse(QWidget& target, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
           Qt::MouseButtons held) {
  QMouseEvent event(type, QPointF(at), QPointF(target.mapToGlobal(at)), button, held,
                    Qt::NoModifier);
  QApplication::sendEvent(&target, &event);
}

void click(QWidget& target, const QPoint& at, Qt::MouseButton button) {
  mouse(target, QEvent::MouseButtonPress, at, button, button);
  mouse(target, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
  settle();
}

Node& DeskTest::nodeNamed(const std::string& text) {
  NodeCollection& nodes = quillbox().tvClientDocumentation().Nodes();
  for (int32_t i = 1; i <= nodes.Count(); ++i) {
    if (nodes(i).Text() == text) return nodes(i);
  }
  ADD_FAILURE() << "no category " << text;
  return nodes(1);
}

void DeskTest::clickCategory(const std::string& text) {
  gui::CategoryTreeWidget& tree = treeWidget();
  QTreeWidgetItem* item = tree.itemOf(&nodeNamed(text));
  ASSERT_NE(item, nullptr);
  tree.scrollToItem(item);
  click(*tree.viewport(), tree.visualItemRect(item).center());
}

void DeskTest::screenshot(const std::string& name) {
  const char* dir = std::getenv("QB_SCREENSHOT_DIR");
  const std::string path = (dir ? std::string(dir) : folder_.path().string()) + "/" + name + ".png";
  EXPECT_TRUE(window_->saveScreenshot(QString::fromStdString(path))) << path;
}

}  // namespace qb::test
