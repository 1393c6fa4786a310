#include "tests/gui/desk_fixture.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <QWindow>
#include <cstdlib>

#include "app/desk/desktop_services.h"
#include "gui/form_dialogs.h"
#include "gui/theme_icons.h"
#include "sample/sample_firm.h"
#include "services/controls/form.h"

// The desktop's font library keeps its caches for the life of the process,
// and so does the D-Bus library its connection on an X display; the leak
// checker of the sanitizer build is told so.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\nleak:libdbus-1\n";
}

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
  // The user's settings go to a folder of the test program's own.
  static QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
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
  waitUntilPlaced(*window_);
  ASSERT_NE(window_->component(), nullptr);
}

void DeskTest::TearDown() { window_.reset(); }

void settle() {
  for (int i = 0; i < 4; ++i) QApplication::processEvents();
}

void waitUntilPlaced(QWidget& window) {
  // On a real X server the window manager maps and places the window in its
  // own time; offscreen it is there at once.
  QElapsedTimer waited;
  waited.start();
  QPoint last(-1, -1);
  while (waited.elapsed() < 3000) {
    QApplication::processEvents(QEventLoop::AllEvents, 20);
    const QPoint place = window.mapToGlobal(QPoint(0, 0));
    if (window.windowHandle() && window.windowHandle()->isExposed() && place == last) break;
    last = place;
    QThread::msleep(20);
  }
  settle();
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

void DeskTest::whenDialogShows(std::function<void(QDialog&, Form&)> act) {
  window_->desktop().formDialogs().setShownHook([act](QDialog& dialog, Form& form) {
    act(dialog, form);
    if (form.Visible()) form.userClose();
  });
}

void DeskTest::screenshot(const std::string& name) {
  const char* dir = std::getenv("QB_SCREENSHOT_DIR");
  const std::string path = (dir ? std::string(dir) : folder_.path().string()) + "/" + name + ".png";
  EXPECT_TRUE(window_->saveScreenshot(QString::fromStdString(path))) << path;
}

void screenshotOf(QWidget& widget, const std::string& name) {
  const char* dir = std::getenv("QB_SCREENSHOT_DIR");
  if (dir == nullptr) return;
  settle();
  QDir().mkpath(dir);
  const std::string path = std::string(dir) + "/" + name + ".png";
  EXPECT_TRUE(widget.grab().save(QString::fromStdString(path), "PNG")) << path;
}

}  // namespace qb::test
