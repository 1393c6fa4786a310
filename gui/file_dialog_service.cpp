#include "gui/file_dialog_service.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QTimer>

#include "gui/file_dialogs.h"
#include "services/shell/common_dialog.h"
#include "services/shell/folder_browser.h"

namespace qb::gui {

FileDialogService::FileDialogService(QWidget* window) : window_(window) {
  installFileDialogService([this](CommonDialog& dialog) { return show(dialog); });
  installFolderBrowserService(
      [this](int64_t, const std::string& title, int32_t, const std::string& root) {
        return browseForFolder(title, root);
      });
}

FileDialogService::~FileDialogService() {
  installFileDialogService({});
  installFolderBrowserService({});
}

std::optional<ShellFolder> FileDialogService::browseForFolder(const std::string& title,
                                                              const std::string& root) {
  QWidget* parent = QApplication::activeModalWidget();
  if (parent == nullptr) parent = window_.data();
  QFileDialog dialog(parent, QString::fromStdString(title));
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly, true);
  if (shown_) QTimer::singleShot(0, &dialog, [this, &dialog] { shown_(dialog); });
  // Rooted at the desktop ("") the dialog starts where the user chose last.
  const QStringList chosen = runFileDialog(dialog, "synchronised folder",
                                           root.empty() ? QDir::homePath() : nearestFolder(root));
  if (chosen.isEmpty()) return std::nullopt;
  return ShellFolder{QDir::cleanPath(chosen.front()).toStdString()};
}

QStringList FileDialogService::qtFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(';', ' ');
    if (patterns.trimmed() == "*.*") patterns = "*";
    QString description = parts[i];
    description.replace("(*.*)", "(" + patterns + ")");
    if (!description.contains('(')) description += " (" + patterns + ")";
    filters << description;
  }
  if (filters.isEmpty()) filters << "All Files (*)";
  return filters;
}

QString FileDialogService::nearestFolder(const std::string& folder) {
  QFileInfo place(QString::fromStdString(folder));
  while (!place.filePath().isEmpty() && !place.isDir()) {
    const QString parent = place.absolutePath();
    if (parent == place.absoluteFilePath()) break;
    place = QFileInfo(parent);
  }
  return place.isDir() ? place.absoluteFilePath() : QDir::homePath();
}

bool FileDialogService::show(CommonDialog& common) {
  QWidget* parent = QApplication::activeModalWidget();
  if (parent == nullptr) parent = window_.data();
  const QStringList filters = qtFilters(common.Filter());
  QFileDialog dialog(parent, QString::fromStdString(common.DialogTitle()),
                     nearestFolder(common.InitDir()));
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setNameFilters(filters);
  // The filter index counts from 1; 0 takes the first too.
  const int index = std::max(0, common.FilterIndex() - 1);
  if (index < filters.size()) dialog.selectNameFilter(filters[index]);
  const bool several = (common.Flags() & cdlOFNAllowMultiselect) != 0;
  dialog.setFileMode(several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
  if (!common.FileName().empty()) dialog.selectFile(QString::fromStdString(common.FileName()));
  if (shown_) QTimer::singleShot(0, &dialog, [this, &dialog] { shown_(dialog); });
  if (dialog.exec() != QDialog::Accepted) return false;

  const QStringList chosen = dialog.selectedFiles();
  if (chosen.isEmpty()) return false;
  if (chosen.size() == 1) {
    common.setFileName(QDir::cleanPath(chosen.front()).toStdString());
    return true;
  }
  // Several files: their folder, then each name (relative to the folder when
  // the picks come from more than one).
  QString folder = QFileInfo(chosen.front()).absolutePath();
  for (const QString& file : chosen) {
    while (!QFileInfo(file).absoluteFilePath().startsWith(folder + "/") && folder != "/")
      folder = QFileInfo(folder).absolutePath();
  }
  std::vector<std::string> names;
  const QDir base(folder);
  for (const QString& file : chosen) names.push_back(base.relativeFilePath(file).toStdString());
  common.setFileName(multipleFileResult(folder.toStdString(), names));
  return true;
}

}  // namespace qb::gui
