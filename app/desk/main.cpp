// quillbox-desk: the demo host window over a client database. Without a
// display it renders offscreen, saves a picture of the window and prints
// where.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>

#include "app/desk/client_window.h"
#include "gui/theme_icons.h"

namespace {

bool hasDisplay() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// build/screenshots beside the program, else beside the database.
QString defaultScreenshotPath(const QString& databasePath) {
  const QString beside = QCoreApplication::applicationDirPath() + "/screenshots";
  if (QDir().mkpath(beside) && QFileInfo(beside).isWritable()) return beside + "/quillbox-desk.png";
  const QString folder =
      databasePath.isEmpty() ? QDir::currentPath() : QFileInfo(databasePath).absolutePath();
  return folder + "/quillbox-desk.png";
}

// The offscreen platform warns that it can't pass size hints on; nothing
// here needs them, so that one line is left out of the output.
void quietOffscreen(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains("propagateSizeHints")) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

int32_t number(const QCommandLineParser& parser, const QString& name, int32_t fallback) {
  if (!parser.isSet(name)) return fallback;
  bool ok = false;
  const int value = parser.value(name).toInt(&ok);
  if (!ok) throw qb::desk::OptionsError(("--" + name + " takes a whole number").toStdString());
  return value;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !hasDisplay())
    qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(quietOffscreen);
  QApplication app(argc, argv);
  QApplication::setApplicationName("quillbox-desk");
  QApplication::setApplicationDisplayName("Orvanta");
  QApplication::setApplicationVersion(QB_VERSION);
  // The desktop entry that names the program, its icon on every window.
  QGuiApplication::setDesktopFileName("quillbox");
  QApplication::setWindowIcon(qb::gui::programIcon());

  QCommandLineParser parser;
  parser.setApplicationDescription("The client documents screen over a client database.");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOptions({
      {"db", "The client database to open (default: the one open last).", "FILE"},
      {"client",
       "The client to start with: company:ID or contact:ID (default: the first company "
       "that has documents).",
       "KIND:ID"},
      {"country", "The firm's country: 1 Canada, 2 United States (default 1).", "N"},
      {"province", "The firm's province code (default 3, Ontario).", "N"},
      {"user", "The signed-in user's id (default 1).", "N"},
      {"screenshot", "Render the window, save it as a PNG file and leave.", "FILE"},
  });
  parser.process(app);

  qb::desk::DeskOptions options;
  try {
    options.databasePath = parser.value("db").toStdString();
    if (parser.isSet("client"))
      qb::desk::parseClient(parser.value("client").toStdString(), options);
    options.country = number(parser, "country", options.country);
    options.province = number(parser, "province", options.province);
    options.user = number(parser, "user", options.user);
  } catch (const qb::desk::OptionsError& error) {
    std::fprintf(stderr, "quillbox-desk: %s\n", error.what());
    return 2;
  }
  QString screenshot = parser.value("screenshot");
  if (screenshot.isEmpty() && QGuiApplication::platformName() == "offscreen") {
    screenshot = defaultScreenshotPath(parser.value("db"));
  }
  options.screenshotPath = screenshot.toStdString();
  options.unattended = !screenshot.isEmpty();

  qb::gui::ensureIconTheme();
  qb::desk::ClientWindow window(options);
  window.show();
  if (!screenshot.isEmpty()) {
    if (!window.saveScreenshot(screenshot)) {
      std::fprintf(stderr, "quillbox-desk: can't write %s\n", qPrintable(screenshot));
      return 1;
    }
    std::printf("%s\n", qPrintable(QFileInfo(screenshot).absoluteFilePath()));
    return 0;
  }
  return app.exec();
}
