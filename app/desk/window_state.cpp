#include "app/desk/window_state.h"

#include <QFileInfo>
#include <QWidget>

#include "gui/user_settings.h"

namespace qb::desk {

void restoreWindowGeometry(QWidget& window, const QSize& firstSize) {
  if (!window.restoreGeometry(gui::userSettings()->value("window/geometry").toByteArray()))
    window.resize(firstSize);
}

void saveWindowGeometry(const QWidget& window) {
  gui::userSettings()->setValue("window/geometry", window.saveGeometry());
}

// The command-line tool reads this key too (app/common/desk_settings.h).
QString lastDatabase() {
  const QString path = gui::userSettings()->value("database/last").toString();
  return !path.isEmpty() && QFileInfo(path).isFile() ? path : QString();
}

void rememberDatabase(const QString& path) {
  gui::userSettings()->setValue("database/last", QFileInfo(path).absoluteFilePath());
}

}  // namespace qb::desk
