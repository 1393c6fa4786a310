#pragma once
// FileDialogService: the GUI's service behind the common dialog object. While it lives, the common
// dialog object's ShowOpen runs the desktop's open-file dialog (QFileDialog:
// the platform's native one where the desktop offers it), over the modal
// dialog on screen or the window. It starts in the initial folder, or the
// nearest folder above it that exists; with the multiple-selection flag
// several files can be picked, and they come back as the folder and the
// names separated by characters of code 0, one file as its path.
//
// It also serves the shell's BrowseForFolder: the desktop's folder dialog
// (folders only), starting in the folder chosen in last for that purpose.

#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <string>

class QFileDialog;
class QWidget;

namespace qb {
class CommonDialog;
struct ShellFolder;
}  // namespace qb

namespace qb::gui {

class FileDialogService {
 public:
  explicit FileDialogService(QWidget* window);
  ~FileDialogService();
  FileDialogService(const FileDialogService&) = delete;
  FileDialogService& operator=(const FileDialogService&) = delete;

  // Called once the dialog is on screen (a file or a folder dialog): tests
  // pick files and accept here.
  using ShownHook = std::function<void(QFileDialog& dialog)>;
  void setShownHook(ShownHook hook) { shown_ = std::move(hook); }

  // The Qt filters of a filter text: "All Files (*.*)|*.*" gives
  // "All Files (*)" ("*.*" means every file).
  static QStringList qtFilters(const std::string& filter);
  // The folder to start in: the folder itself, or the nearest one above it
  // that exists, else the home folder.
  static QString nearestFolder(const std::string& folder);

 private:
  bool show(CommonDialog& dialog);
  std::optional<ShellFolder> browseForFolder(const std::string& title, const std::string& root);

  QPointer<QWidget> window_;
  ShownHook shown_;
};

}  // namespace qb::gui
