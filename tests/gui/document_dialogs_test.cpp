// The document dialogs on screen, hosted in the client window: the
// properties dialog in its states and the find dialog driven with real
// widgets, with screenshots of each; the file dialog's answer in both forms;
// the list's keys and double click; and the file manager asked over D-Bus,
// on a private bus with a stand-in file manager.

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDialog>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeView>
#include <cstdlib>
#include <sstream>

#include "app/desk/desktop_services.h"
#include "app/desk/dialog_error_object.h"
#include "dialogs/frm_doc_properties.h"
#include "dialogs/frm_find_document.h"
#include "gui/desktop_shell.h"
#include "gui/file_dialog_service.h"
#include "gui/form_dialogs.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/shell/common_dialog.h"
#include "tests/gui/desk_fixture.h"
#include "tests/gui/dialog_helpers.h"

namespace qb::test {

namespace {

std::shared_ptr<docQuillboxDocumentClass> loadedDocument(int32_t id) {
  auto document = std::make_shared<docQuillboxDocumentClass>();
  document->setDocumentID(id);
  bool loadAll = true, found = false;
  document->loadDocument(loadAll, found);
  EXPECT_TRUE(found) << id;
  return document;
}

}  // namespace

class DocumentDialogsTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    window_->desktop().shell().setUnattended(&launched_);
  }
  std::ostringstream launched_;
};

TEST_F(DocumentDialogsTest, ThePropertiesDialogInItsStatesLooksNativeAndCloseSaves) {
  // A present, read-only file, chosen in the list and opened from its menu.
  clickCategory("2024");
  gui::DocumentListWidget& list = listWidget();
  QAbstractItemView& view = list.currentView();
  click(*view.viewport(), view.visualRect(view.model()->index(0, 0)).center());
  const std::string name = quillbox().lvDocuments().SelectedItem()->Text();
  bool shown = false;
  whenDialogShows([&](QDialog& dialog, Form&) {
    shown = true;
    EXPECT_EQ(dialog.parentWidget(), window_.get());
    EXPECT_TRUE(dialog.isModal());
    auto& tabs = widgetNamed<QTabWidget>(dialog, "PropertiesTab");
    EXPECT_FALSE(tabs.isTabVisible(1));
    EXPECT_EQ(widgetNamed<QLineEdit>(dialog, "txtField(0)").text().toStdString(), name);
    EXPECT_TRUE(widgetNamed<QLineEdit>(dialog, "txtFileSize").isReadOnly());
    EXPECT_TRUE(widgetNamed<QLabel>(dialog, "lblReadOnly").isVisible());
    expectNoTextCut(dialog);
    saveDialog(dialog, "properties-present", folder_);
    // The user renames the link and clicks Close.
    auto& field = widgetNamed<QLineEdit>(dialog, "txtField(0)");
    field.selectAll();
    type(field, "Renamed return");
    widgetNamed<QPushButton>(dialog, "cmdClose").click();
    settle();
  });
  quillbox().openDocumentProperties();
  EXPECT_TRUE(shown);
  EXPECT_EQ(quillbox().lvDocuments().SelectedItem()->Text(), "Renamed return");

  // The missing-file page in two of its states, and after Browse found the
  // file in another folder.
  for (int32_t id : {23, 34}) {
    whenDialogShows([&](QDialog& dialog, Form& form) {
      auto& properties = dynamic_cast<frmDocProperties&>(form);
      auto& tabs = widgetNamed<QTabWidget>(dialog, "PropertiesTab");
      EXPECT_TRUE(tabs.isTabVisible(1));
      EXPECT_EQ(tabs.currentIndex(), 1);
      EXPECT_EQ(widgetNamed<QPushButton>(dialog, "cmdBrowse").isVisible(),
                properties.cmdBrowse().Visible());
      expectNoTextCut(dialog);
      saveDialog(dialog, id == 23 ? "properties-missing-file" : "properties-network-computer",
                 folder_);
    });
    frmDocProperties dialog;
    dialog.Initialize(loadedDocument(id));
  }
  const std::string found = folder_.writeFile("moved/Engagement Letter 2019.docx", "letter");
  installFileDialogService([&](CommonDialog& dialog) {
    dialog.setFileName(found);
    return true;
  });
  whenDialogShows([&](QDialog& dialog, Form&) {
    widgetNamed<QPushButton>(dialog, "cmdBrowse").click();
    settle();
    EXPECT_EQ(widgetNamed<QTabWidget>(dialog, "PropertiesTab").currentIndex(), 0);
    EXPECT_EQ(widgetNamed<QLineEdit>(dialog, "txtFileLocation").text().toStdString(), found);
    saveDialog(dialog, "properties-found-by-browse", folder_);
    press(dialog, Qt::Key_Escape);  // closes as Close does, and saves
  });
  frmDocProperties relink;
  relink.Initialize(loadedDocument(23));
  EXPECT_EQ(loadedDocument(23)->documentPath(), found);
  EXPECT_EQ(window_->errors().failureCount(), 0);
}

TEST_F(DocumentDialogsTest, TheFindDialogSearchesWithRealWidgetsAndGoesToAnotherClient) {
  // The host's own handler shows the client and the document; the test
  // notes which client it was.
  int32_t changedTo = -1;
  auto host = quillbox().changeCompany;
  quillbox().changeCompany = [&](int32_t& company, int32_t& document) {
    changedTo = company;
    host(company, document);
  };
  std::string firstResult;
  whenDialogShows([&](QDialog& dialog, Form& form) {
    auto& tabs = widgetNamed<QTabWidget>(dialog, "FindTab");
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_EQ(widgetNamed<QComboBox>(dialog, "cboField(2)").currentText(), "<All>");
    EXPECT_FALSE(widgetNamed<QPushButton>(dialog, "cmdGoTo").isEnabled());
    expectNoTextCut(dialog);
    saveDialog(dialog, "find-criteria", folder_);

    widgetNamed<QRadioButton>(dialog, "optSearchClients(1)").click();
    widgetNamed<QCheckBox>(dialog, "chkField(1)").click();
    auto& text = widgetNamed<QLineEdit>(dialog, "txtField(0)");
    text.setFocus();
    settle();
    type(text, "Assessment\r");  // Enter finds
    EXPECT_EQ(tabs.currentIndex(), 1);
    auto& results = widgetNamed<gui::DocumentListWidget>(dialog, "FindResults");
    ASSERT_GT(results.itemModel().rowCount(), 1);
    // The id column is there but shows nothing.
    EXPECT_EQ(results.detailsView().header()->sectionSize(1), 0);
    firstResult =
        results.itemModel().data(results.itemModel().index(0, 3)).toString().toStdString();
    expectNoTextCut(dialog);
    saveDialog(dialog, "find-results", folder_);
    // The last result is another client's: Go To.
    QTreeView& view = results.detailsView();
    const QModelIndex last = results.itemModel().index(results.itemModel().rowCount() - 1, 0);
    view.scrollTo(last);
    settle();
    click(*view.viewport(), view.visualRect(last).center());
    // The click moved the selection from the first result to the last.
    auto& find = dynamic_cast<frmFindDocument&>(form);
    EXPECT_EQ(find.FindResults().selectedItems(),
              std::vector<ListItem*>{find.FindResults().SelectedItem()});
    EXPECT_EQ(find.FindResults().SelectedItem()->Index(), results.itemModel().rowCount());
    widgetNamed<QPushButton>(dialog, "cmdGoTo").click();
  });
  quillbox().cmdDocManager(3).click();
  EXPECT_EQ(firstResult, "Maple Leaf Bakery Ltd.");
  ASSERT_GE(changedTo, 0);
  EXPECT_EQ(quillbox().companyIDNum(), changedTo);
  EXPECT_NE(changedTo, 2);
  // The document found is the one selected in the other client's list.
  ListItem* selected = quillbox().lvDocuments().SelectedItem();
  ASSERT_NE(selected, nullptr);
  EXPECT_EQ(selected->Text(), "Notice of Assessment 2024");
  screenshot("after-find-go-to");
}

TEST_F(DocumentDialogsTest, FilesPickedInTheFileDialogAreLinkedAndTheListKeysRunTheirCommands) {
  clickCategory("Correspondence");
  const int before = quillbox().lvDocuments().ListItems().Count();
  const std::string a = folder_.writeFile("files/Data/Incoming/Relevé été.pdf", "%PDF");
  const std::string b = folder_.writeFile("files/Data/Incoming/notes 2024.txt", "x");
  std::string title;
  window_->desktop().fileDialogService().setShownHook([&](QFileDialog& dialog) {
    title = dialog.windowTitle().toStdString();
    dialog.setDirectory(QFileInfo(QString::fromStdString(a)).absolutePath());
    dialog.selectFile("\"Relevé été.pdf\" \"notes 2024.txt\"");
    QMetaObject::invokeMethod(&dialog, "accept", Qt::DirectConnection);
  });
  quillbox().cmdDocManager(0).click();
  settle();
  EXPECT_EQ(title, "Select client files");
  EXPECT_EQ(quillbox().lvDocuments().ListItems().Count(), before + 2);

  // Enter and a double click open the selected rows; Delete removes them.
  gui::DocumentListWidget& list = listWidget();
  QAbstractItemView& view = list.currentView();
  const QModelIndex first = view.model()->index(0, 0);
  click(*view.viewport(), view.visualRect(view.model()->index(1, 0)).center());
  click(*view.viewport(), view.visualRect(first).center());  // a click moves the selection
  ASSERT_EQ(quillbox().lvDocuments().selectedItems().size(), 1u);
  const std::string path =
      quillbox().getDocPathFromTag(quillbox().lvDocuments().SelectedItem()->Tag());
  press(view, Qt::Key_Return);
  mouse(*view.viewport(), QEvent::MouseButtonDblClick, view.visualRect(first).center(),
        Qt::LeftButton, Qt::LeftButton);
  settle();
  EXPECT_NE(launched_.str().find("open " + path), std::string::npos) << launched_.str();
  press(view, Qt::Key_Delete);
  EXPECT_EQ(quillbox().lvDocuments().ListItems().Count(), before + 1);
}

TEST(FileDialogFilters, TheFilterTextBecomesQtFiltersAndAMissingFolderItsNearestParent) {
  EXPECT_EQ(gui::FileDialogService::qtFilters("All Files (*.*)|*.*"), QStringList{"All Files (*)"});
  EXPECT_EQ(gui::FileDialogService::qtFilters("Documents|*.doc;*.docx|All Files (*.*)|*.*"),
            (QStringList{"Documents (*.doc *.docx)", "All Files (*)"}));
  TempFolder folder;
  EXPECT_EQ(gui::FileDialogService::nearestFolder(folder.file("Data/Clients")).toStdString(),
            folder.path().string());
}

// A stand-in file manager on a private session bus: it records each call and
// answers it, or answers every call with an error.
class FakeFileManager : public QDBusVirtualObject {
 public:
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    QString call = message.member();
    for (const QVariant& argument : message.arguments()) {
      if (argument.metaType().id() == QMetaType::QStringList)
        call += " " + argument.toStringList().join(",");
    }
    calls << call;
    if (message.member() == "ShowItemProperties" && !supportsProperties) {
      connection.send(message.createErrorReply(QDBusError::UnknownMethod, "not offered"));
    } else {
      connection.send(message.createReply());
    }
    return true;
  }
  QString introspect(const QString&) const override { return {}; }
  QStringList calls;
  bool supportsProperties = true;
};

TEST(DesktopShell, TheFileManagerIsAskedOverDBusAndTheFolderOpensWhenNoneAnswers) {
  ensureApplication();
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
  if (!daemon.waitForStarted(5000)) GTEST_SKIP() << "no dbus-daemon on this machine";
  ASSERT_TRUE(daemon.waitForReadyRead(5000));
  const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
  {
    QDBusConnection managerSide = QDBusConnection::connectToBus(address, "file-manager");
    QDBusConnection shellSide = QDBusConnection::connectToBus(address, "shell");
    ASSERT_TRUE(managerSide.isConnected());
    FakeFileManager manager;
    ASSERT_TRUE(managerSide.registerVirtualObject(gui::DesktopShell::kPath, &manager));
    ASSERT_TRUE(managerSide.registerService(gui::DesktopShell::kService));

    gui::DesktopShell shell;
    shell.setBus(shellSide);
    QStringList opened;
    shell.setUrlOpener([&](const QUrl& url) {
      opened << url.toLocalFile();
      return true;
    });
    auto waitFor = [&](const std::function<bool()>& done) {
      QElapsedTimer timer;
      timer.start();
      while (!done() && timer.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
      return done();
    };
    SHELLEXECUTEINFO info;
    info.lpVerb = "properties";
    info.lpFile = "/srv/Client Files/Relevé.pdf";
    EXPECT_TRUE(shell.ShellExecuteEx(info));
    shell.FindFiles("/srv/Client Files/Data");
    ASSERT_TRUE(waitFor([&] { return manager.calls.size() == 2; }));
    EXPECT_EQ(manager.calls[0].toStdString(),
              "ShowItemProperties file:///srv/Client%20Files/Relev%C3%A9.pdf");
    EXPECT_EQ(manager.calls[1].toStdString(), "ShowFolders file:///srv/Client%20Files/Data");

    // A file manager without a properties window shows the item in its folder.
    manager.supportsProperties = false;
    shell.ShellExecuteEx(info);
    ASSERT_TRUE(waitFor([&] { return manager.calls.size() == 4; }));
    EXPECT_TRUE(manager.calls[3].startsWith("ShowItems "));
    // No file manager at all: the folder opens with its default application.
    managerSide.unregisterService(gui::DesktopShell::kService);
    shell.ShellExecuteEx(info);
    ASSERT_TRUE(waitFor([&] { return opened.size() == 1; }));
    EXPECT_EQ(opened[0].toStdString(), "/srv/Client Files");
    EXPECT_TRUE(opened.size() == 1);
    EXPECT_EQ(shell.ShellExecuteA(0, "print", "/srv/a.pdf", "", "", 10), SE_ERR_NOASSOC);
  }
  QDBusConnection::disconnectFromBus("file-manager");
  QDBusConnection::disconnectFromBus("shell");
  daemon.kill();
  daemon.waitForFinished();
}

}  // namespace qb::test
