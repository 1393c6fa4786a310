#include "gui/file_dialogs.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QTreeView>
#include <algorithm>

#include "gui/user_settings.h"

namespace qb::gui {

namespace {

// The size a dialog first opens at.
constexpr QSize kFirstSize(900, 540);
// Room beside a column's text.
constexpr int kColumnPadding = 24;

// Widths for the columns of the dialog's detail view, wide enough for a
// size, a file type and a date as the dialog writes them, the name taking
// the rest. The folder's rows come in later, so the widths are not taken
// from them.
void fitColumns(QTreeView& view, int dialogWidth) {
  const QFontMetrics metrics(view.font());
  const QString date =
      QLocale().toString(QDateTime(QDate(2000, 12, 28), QTime(23, 59, 59)), QLocale::ShortFormat);
  const int widths[] = {metrics.horizontalAdvance("1,023.9 KiB"),
                        metrics.horizontalAdvance("OpenDocument Spreadsheet"),
                        metrics.horizontalAdvance(date)};
  QHeaderView& header = *view.header();
  int others = 0;
  for (int column = 1; column <= 3 && column < header.count(); ++column) {
    const int width = widths[column - 1] + kColumnPadding;
    header.resizeSection(column, width);
    others += width;
  }
  // The view is about the dialog's width less the places panel.
  header.resizeSection(0,
                       std::max(metrics.horizontalAdvance("M") * 24, dialogWidth * 4 / 5 - others));
}

QString key(const QString& purpose, const char* what) { return "dialogs/" + purpose + "/" + what; }

// The folder of a chosen path: the path itself when it is a folder.
QString folderOf(const QString& path) {
  const QFileInfo info(path);
  return info.isDir() ? info.absoluteFilePath() : info.absolutePath();
}

}  // namespace

QString startFolder(const QString& purpose, const QString& fallbackFolder) {
  const QString remembered = userSettings()->value(key(purpose, "folder")).toString();
  if (!remembered.isEmpty() && QFileInfo(remembered).isDir()) return remembered;
  if (!fallbackFolder.isEmpty() && QFileInfo(fallbackFolder).isDir()) return fallbackFolder;
  return QDir::homePath();
}

QStringList runFileDialog(QFileDialog& dialog, const QString& purpose,
                          const QString& fallbackFolder) {
  auto settings = userSettings();
  // The dialog's own state holds its view and columns (and a folder, which
  // the remembered one replaces).
  const bool restored = dialog.restoreState(settings->value(key(purpose, "state")).toByteArray());
  if (!dialog.restoreGeometry(settings->value(key(purpose, "geometry")).toByteArray()))
    dialog.resize(kFirstSize);
  if (!restored) {
    for (auto* view : dialog.findChildren<QTreeView*>()) fitColumns(*view, dialog.width());
  }
  dialog.setDirectory(startFolder(purpose, fallbackFolder));

  const bool chosen = dialog.exec() == QDialog::Accepted;
  settings->setValue(key(purpose, "state"), dialog.saveState());
  settings->setValue(key(purpose, "geometry"), dialog.saveGeometry());
  if (!chosen || dialog.selectedFiles().isEmpty()) return {};
  settings->setValue(key(purpose, "folder"), folderOf(dialog.selectedFiles().first()));
  return dialog.selectedFiles();
}

}  // namespace qb::gui
