#include "gui/desktop_shell.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>

namespace qb::gui {

namespace {

constexpr int kFileManagerTimeoutMs = 5000;
constexpr int64_t kLaunched = 42;  // above 32: the request went out

QUrl fileUrl(const std::string& path) { return QUrl::fromLocalFile(QString::fromStdString(path)); }

}  // namespace

DesktopShell::DesktopShell()
    : open_([](const QUrl& url) { return QDesktopServices::openUrl(url); }) {}

bool DesktopShell::unattendedRequest(const std::string& text) {
  if (!unattended_) return false;
  if (log_) *log_ << text << "\n";
  return true;
}

int64_t DesktopShell::ShellExecuteA(int64_t, const std::string& operation, const std::string& file,
                                    const std::string&, const std::string&, int32_t) {
  if (operation != "open") return SE_ERR_NOASSOC;
  if (unattendedRequest("open " + file)) return kLaunched;
  return open_(fileUrl(file)) ? kLaunched : SE_ERR_NOASSOC;
}

bool DesktopShell::ShellExecuteEx(SHELLEXECUTEINFO& info) {
  info.hInstApp = kLaunched;
  if (info.lpVerb != "properties") {
    info.hInstApp = SE_ERR_NOASSOC;
    return false;
  }
  if (unattendedRequest("properties " + info.lpFile)) return true;
  const QStringList item{fileUrl(info.lpFile).toString(QUrl::FullyEncoded)};
  const QUrl folder =
      QUrl::fromLocalFile(QFileInfo(QString::fromStdString(info.lpFile)).absolutePath());
  askFileManager("ShowItemProperties", item, [this, item, folder] {
    askFileManager("ShowItems", item, [this, folder] { open_(folder); });
  });
  return true;
}

void DesktopShell::FindFiles(const std::string& folder) {
  if (unattendedRequest("find " + folder)) return;
  const QUrl url = fileUrl(folder);
  askFileManager("ShowFolders", {url.toString(QUrl::FullyEncoded)}, [this, url] { open_(url); });
}

void DesktopShell::askFileManager(const QString& method, const QStringList& uris,
                                  std::function<void()> fallback) {
  if (!bus_) bus_ = QDBusConnection::sessionBus();
  if (!bus_->isConnected()) {
    fallback();
    return;
  }
  QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kService, method);
  call << uris << QString();  // no startup notification id
  auto* watcher = new QDBusPendingCallWatcher(bus_->asyncCall(call, kFileManagerTimeoutMs), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this,
          [fallback = std::move(fallback)](QDBusPendingCallWatcher* answer) {
            if (answer->isError()) fallback();
            answer->deleteLater();
          });
}

}  // namespace qb::gui
