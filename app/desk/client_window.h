#pragma once
// ClientWindow: the demo host — the client screen of the practice-management
// application with the document component on it. It opens the client
// database, hands the component its five service objects, names the client
// and starts it in the host order: Initialize; errorClass, MsgboxClass,
// DatabaseReference, WorkingFolderReference, LocaleReference; the client;
// StartDocQuillboxControl; populateClientDocumentCategories;
// setupDocumentsDisplay; resizeDocQuillbox. It walks the firm's clients for
// the component's navigation events, keeps the view menu in step with the
// list, and saves the user's list settings when it closes.

#include <QMainWindow>
#include <memory>

#include "app/common/client_roster.h"
#include "app/desk/desk_options.h"

class QActionGroup;
class QLabel;

namespace qb {
class nvDocumentQuillbox;
class SqliteDatabase;
class FixedLocale;
class FixedWorkingFolder;
}  // namespace qb

namespace qb::gui {
class MessageBoxObject;
class QtPlatform;
class UserControlHost;
class WidgetOwnerForm;
}  // namespace qb::gui

namespace qb::desk {

class DesktopServices;
class DialogErrorObject;

class ClientWindow : public QMainWindow {
 public:
  // Opens options.databasePath and shows the starting client. A database
  // that can't be opened leaves the window empty, and a message box says why
  // and offers to open another database or to create the sample one.
  explicit ClientWindow(const DeskOptions& options, QWidget* parent = nullptr);
  ~ClientWindow() override;

  // Hosts the component afresh over another database file. False when the
  // file can't be opened: a message box says why, and the database open
  // before stays open with the window as it was.
  bool openDatabase(const QString& path);
  // Makes the sample firm's database and opens it: at path when nothing is
  // there, else beside the user's data (quillbox-sample.db, made once). False
  // when it can't be made or opened (a message box says why).
  bool createSampleDatabase(const QString& path);
  // Shows the client at a place of the roster: writes its id to the
  // component, then fills the tree and the list. Out of range does nothing.
  void showClient(int index);
  // The same for a client given by kind and id; false when it is not in the
  // roster.
  bool showClient(bool isCompany, int32_t id);
  int currentClient() const { return current_; }
  const hosts::ClientRoster& roster() const { return roster_; }

  // The component and its widgets; null before a database is open.
  nvDocumentQuillbox* component() const { return component_.get(); }
  gui::UserControlHost* componentHost() const { return host_; }
  gui::QtPlatform& platform() const { return *platform_; }
  DialogErrorObject& errors() const { return *errors_; }
  // The dialogs, file dialog and shell the component gets from the desktop.
  DesktopServices& desktop() const { return *desktop_; }
  gui::MessageBoxObject& messages() const { return *messages_; }

  // Lays the window out, renders it and writes it to a PNG file. False when
  // the file can't be written.
  bool saveScreenshot(const QString& path);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  // Opens path and hosts the component over it; reason says why not (the
  // window is then as it was).
  bool hostDatabase(const QString& path, QString& reason);
  void offerAnotherDatabase(const QString& path, const QString& reason);
  void buildDocumentMenu();
  void hostComponent();
  void releaseComponent();
  void wireComponentEvents();
  void moveTo(int index);
  void findClient();
  void chooseDatabase();
  void listChanged();
  void updateTitle();

  DeskOptions options_;
  std::shared_ptr<DialogErrorObject> errors_;
  std::shared_ptr<gui::MessageBoxObject> messages_;
  std::shared_ptr<SqliteDatabase> store_;
  std::shared_ptr<FixedWorkingFolder> folder_;
  std::shared_ptr<FixedLocale> locale_;
  std::unique_ptr<gui::WidgetOwnerForm> owner_;
  std::unique_ptr<gui::QtPlatform> platform_;
  std::unique_ptr<DesktopServices> desktop_;
  std::unique_ptr<nvDocumentQuillbox> component_;
  gui::UserControlHost* host_ = nullptr;
  int32_t listObserver_ = 0;
  bool started_ = false;

  hosts::ClientRoster roster_;
  int current_ = -1;

  QActionGroup* views_ = nullptr;
  QLabel* clientStatus_ = nullptr;
  QLabel* documentStatus_ = nullptr;
};

}  // namespace qb::desk
