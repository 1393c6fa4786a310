#pragma once
// DesktopServices: what the demo host gives the component of the desktop it
// runs on, for as long as it lives: modal dialogs for the component's forms,
// the desktop's file dialog, the shell (default applications and the file
// manager over D-Bus), and the form helper of the host's dialogs.
// Unattended (screenshots, tests) the shell launches nothing and writes its
// requests to a stream.

#include <QWidget>
#include <memory>
#include <ostream>

namespace qb {
class StandardFormHelper;
}

namespace qb::gui {
class DesktopShell;
class FileDialogService;
class FormDialogs;
}  // namespace qb::gui

namespace qb::desk {

class DesktopServices {
 public:
  DesktopServices(QWidget* window, std::ostream* unattendedLog);
  ~DesktopServices();

  gui::FormDialogs& formDialogs() { return *formDialogs_; }
  gui::FileDialogService& fileDialogService() { return *fileDialogService_; }
  gui::DesktopShell& shell() { return *shell_; }
  const std::shared_ptr<StandardFormHelper>& formHelper() const { return formHelper_; }

 private:
  std::unique_ptr<gui::FormDialogs> formDialogs_;
  std::unique_ptr<gui::FileDialogService> fileDialogService_;
  std::shared_ptr<gui::DesktopShell> shell_;
  std::shared_ptr<StandardFormHelper> formHelper_;
};

}  // namespace qb::desk
