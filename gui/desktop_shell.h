#pragma once
// DesktopShell: the shell on a freedesktop desktop. "open" hands the file to
// the desktop's default application for its type (QDesktopServices, which
// runs xdg-open or the desktop portal) and returns at once. The file
// manager's properties window, and its window on a folder for the file
// search, are asked over D-Bus of any file manager that offers
// org.freedesktop.FileManager1 (ShowItemProperties, ShowFolders); the call
// does not wait for the answer. When no file manager answers, the item is
// shown in its folder (ShowItems), and failing that the folder is opened
// with the default application. Unattended, nothing is launched: each
// request is written to a stream.

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <functional>
#include <optional>
#include <ostream>

#include "services/shell/shell.h"

namespace qb::gui {

class DesktopShell : public QObject, public Shell {
 public:
  DesktopShell();

  int64_t ShellExecuteA(int64_t hwnd, const std::string& operation, const std::string& file,
                        const std::string& parameters, const std::string& directory,
                        int32_t showCommand) override;
  bool ShellExecuteEx(SHELLEXECUTEINFO& info) override;
  void FindFiles(const std::string& folder) override;

  // The bus the file manager is asked on (by default the session bus,
  // connected at the first request).
  void setBus(const QDBusConnection& bus) { bus_ = bus; }
  // What opens a URL with its default application (QDesktopServices::openUrl
  // by default); tests record instead.
  void setUrlOpener(std::function<bool(const QUrl&)> opener) { open_ = std::move(opener); }
  // From now on nothing is launched or asked: requests go to log.
  void setUnattended(std::ostream* log) {
    unattended_ = true;
    log_ = log;
  }

  static constexpr const char* kService = "org.freedesktop.FileManager1";
  static constexpr const char* kPath = "/org/freedesktop/FileManager1";

 private:
  // Calls the file manager's method with the URIs; on an error reply (or no
  // bus) runs fallback.
  void askFileManager(const QString& method, const QStringList& uris,
                      std::function<void()> fallback);
  bool unattendedRequest(const std::string& text);

  std::optional<QDBusConnection> bus_;
  std::function<bool(const QUrl&)> open_;
  bool unattended_ = false;
  std::ostream* log_ = nullptr;
};

}  // namespace qb::gui
