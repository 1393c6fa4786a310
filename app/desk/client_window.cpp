#include "app/desk/client_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QStatusBar>
#include <QVBoxLayout>
#include <iostream>

#include "app/desk/client_picker_dialog.h"
#include "app/desk/desktop_services.h"
#include "app/desk/dialog_error_object.h"
#include "app/desk/link_health_window.h"
#include "app/desk/lookup_fill_dialog.h"
#include "app/desk/merge_document_window.h"
#include "app/desk/merge_fields_window.h"
#include "app/desk/window_state.h"
#include "control/nv_document_quillbox.h"
#include "data/mod_database_functions.h"
#include "gui/file_dialogs.h"
#include "gui/message_box_object.h"
#include "gui/qt_platform.h"
#include "gui/theme_icons.h"
#include "gui/user_control_host.h"
#include "gui/widget_owner_form.h"
#include "sample/new_database.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/host/working_folder.h"
#include "services/store/sqlite_database.h"
#include "services/util/standard_form_helper.h"

namespace qb::desk {

namespace {

constexpr const char* kProduct = "Orvanta";
constexpr int kMinimumWidth = 640;  // pixels the component needs to lay itself out
constexpr int kMinimumHeight = 400;

struct ViewEntry {
  const char* text;
  enumListViewViews view;
};
constexpr ViewEntry kViews[] = {{"&Icons", viewIcons},
                                {"&Small Icons", viewSmallIcons},
                                {"&List", viewList},
                                {"&Details", viewDetails}};

}  // namespace

ClientWindow::ClientWindow(const DeskOptions& options, QWidget* parent)
    : QMainWindow(parent),
      options_(options),
      errors_(std::make_shared<DialogErrorObject>(this, kProduct)),
      messages_(std::make_shared<gui::MessageBoxObject>(this, kProduct)),
      owner_(std::make_unique<gui::WidgetOwnerForm>(this)),
      platform_(std::make_unique<gui::QtPlatform>(this)) {
  if (options_.unattended) {
    errors_->setUnattended(&std::cerr);
    messages_->setUnattended(&std::cerr);
  }
  desktop_ = std::make_unique<DesktopServices>(this, options_.unattended ? &std::cerr : nullptr);
  setWindowTitle("Client Documents");
  setWindowIcon(gui::programIcon());
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  layout->setContentsMargins(4, 4, 4, 0);
  setCentralWidget(central);
  buildMenus();
  clientStatus_ = new QLabel(this);
  documentStatus_ = new QLabel(this);
  statusBar()->addPermanentWidget(clientStatus_);
  statusBar()->addPermanentWidget(documentStatus_);
  restoreWindowGeometry(*this, QSize(1100, 720));
  // Without a database named, the one open last time.
  const QString database = options_.databasePath.empty()
                               ? lastDatabase()
                               : QString::fromStdString(options_.databasePath);
  if (database.isEmpty()) {
    statusBar()->showMessage("No client database is open: File ▸ Open Database… opens one.");
    return;
  }
  QString reason;
  if (!hostDatabase(database, reason)) offerAnotherDatabase(database, reason);
}

ClientWindow::~ClientWindow() { releaseComponent(); }

void ClientWindow::buildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  QAction* open = file->addAction(gui::themeIcon("document-open"), "&Open Database…", this,
                                  [this] { chooseDatabase(); });
  open->setShortcut(QKeySequence::Open);
  file->addAction(gui::themeIcon("emblem-unreadable"), "&Link Health…", this,
                  [this] { openLinkHealthWindow(*this); });
  file->addSeparator();
  QAction* quit =
      file->addAction(gui::themeIcon("application-exit"), "&Quit", this, [this] { close(); });
  quit->setShortcut(QKeySequence::Quit);

  QMenu* client = menuBar()->addMenu("&Client");
  client->addAction(gui::themeIcon("go-first"), "&First Client", QKeySequence("Alt+Home"), this,
                    [this] { moveTo(0); });
  client->addAction(gui::themeIcon("go-previous"), "&Previous Client", QKeySequence("Alt+PgUp"),
                    this, [this] { moveTo(current_ - 1); });
  client->addAction(gui::themeIcon("go-next"), "&Next Client", QKeySequence("Alt+PgDown"), this,
                    [this] { moveTo(current_ + 1); });
  client->addAction(gui::themeIcon("go-last"), "&Last Client", QKeySequence("Alt+End"), this,
                    [this] { moveTo(roster_.size() - 1); });
  client->addSeparator();
  client->addAction(gui::themeIcon("edit-find"), "F&ind Client…", QKeySequence::Find, this,
                    [this] { findClient(); });

  buildDocumentMenu();

  QMenu* view = menuBar()->addMenu("&View");
  views_ = new QActionGroup(this);
  for (const ViewEntry& entry : kViews) {
    QAction* action = view->addAction(entry.text);
    action->setCheckable(true);
    action->setData(static_cast<int>(entry.view));
    views_->addAction(action);
    connect(action, &QAction::triggered, this, [this, v = entry.view] {
      if (component_) component_->changeDocListViewView(v);
    });
  }
  view->addSeparator();
  view->addAction(gui::themeIcon("view-refresh"), "&Refresh", QKeySequence::Refresh, this, [this] {
    if (component_) component_->setupDocumentsDisplay();
  });

  QMenu* tools = menuBar()->addMenu("&Tools");
  tools->addAction(gui::themeIcon("insert-text"), "&Merge Fields…", this,
                   [this] { openMergeFieldsWindow(*this); });
  tools->addAction(gui::themeIcon("x-office-document"), "Merge &Document…", this,
                   [this] { chooseMergeDocument(*this); });
  tools->addSeparator();
  tools->addAction(gui::themeIcon("view-refresh"), "Fill &Lookup Column…", this,
                   [this] { openLookupFillDialog(*this); });
}

bool ClientWindow::openDatabase(const QString& path) {
  QString reason;
  if (hostDatabase(path, reason)) return true;
  const bool keeping = component_ != nullptr;
  messages_->showMessage(
      (reason + (keeping ? "\n\nThe database open now stays open." : QString())).toStdString(), 3,
      nullptr);
  return false;
}

bool ClientWindow::hostDatabase(const QString& path, QString& reason) {
  // The new file is opened before the open one is let go, so that a file
  // that can't be opened leaves the window as it was.
  auto store = std::make_shared<SqliteDatabase>();
  try {
    store->open(path.toStdString());
  } catch (const std::exception& failure) {
    reason = QString::fromStdString(failure.what());
    statusBar()->showMessage(QString("Can't open %1: %2").arg(path, reason.section('\n', 0, 0)));
    return false;
  }
  releaseComponent();
  store_ = store;
  folder_ = std::make_shared<FixedWorkingFolder>(QFileInfo(path).absolutePath().toStdString());
  locale_ = std::make_shared<FixedLocale>();
  locale_->countryCode = options_.country;
  locale_->provinceCode = options_.province;
  locale_->userID = options_.user;
  locale_->productLabel = kProduct;
  locale_->ownerForm = owner_.get();
  locale_->formHelper = desktop_->formHelper();
  hostComponent();
  statusBar()->showMessage(QDir::toNativeSeparators(path), 4000);
  rememberDatabase(path);
  return true;
}

void ClientWindow::hostComponent() {
  // A fresh host on this thread: the first service objects handed in win.
  resetModuleState();
  component_ = std::make_unique<nvDocumentQuillbox>();
  nvDocumentQuillbox& quillbox = *component_;
  quillbox.Initialize();
  quillbox.setErrorClass(errors_);
  quillbox.setMsgboxClass(messages_);
  quillbox.setDatabaseReference(store_);
  quillbox.setWorkingFolderReference(folder_);
  quillbox.setLocaleReference(locale_);

  roster_ = hosts::ClientRoster::load(*store_);
  current_ = -1;
  if (options_.clientIsCompany) {
    current_ = roster_.find(*options_.clientIsCompany, options_.clientID);
    if (current_ < 0 && *options_.clientIsCompany) quillbox.setCompanyIDNum(options_.clientID);
    if (current_ < 0 && !*options_.clientIsCompany) quillbox.setContactIDNum(options_.clientID);
    options_.clientIsCompany.reset();  // the next database starts at its own first client
  } else {
    current_ = roster_.firstWithDocuments();
  }
  if (current_ >= 0) {
    const hosts::Client& client = roster_.at(current_);
    if (client.isCompany) {
      quillbox.setCompanyIDNum(client.id);
    } else {
      quillbox.setContactIDNum(client.id);
    }
  }
  wireComponentEvents();

  host_ = new gui::UserControlHost(quillbox, centralWidget());
  host_->setMinimumSize(kMinimumWidth, kMinimumHeight);
  host_->onResized = [this] {
    if (started_) component_->resizeDocQuillbox();
  };
  centralWidget()->layout()->addWidget(host_);

  quillbox.StartDocQuillboxControl();
  quillbox.populateClientDocumentCategories();
  quillbox.setupDocumentsDisplay();
  started_ = true;
  // The place's size as it stands (the window may not show yet); showing or
  // resizing the window lays the component out again.
  host_->takeSize();
  quillbox.resizeDocQuillbox();

  listObserver_ = quillbox.lvDocuments().addObserver([this](const Control&, ControlChange change) {
    if (change == ControlChange::Items || change == ControlChange::View) listChanged();
  });
  updateTitle();
  listChanged();
}

void ClientWindow::wireComponentEvents() {
  nvDocumentQuillbox& quillbox = *component_;
  quillbox.moveFirst = [this] { moveTo(0); };
  quillbox.movePrevious = [this] { moveTo(current_ - 1); };
  quillbox.moveNext = [this] { moveTo(current_ + 1); };
  quillbox.moveLast = [this] { moveTo(roster_.size() - 1); };
  quillbox.findClient = [this] { findClient(); };
  // The search found a document of another client: show that client, then
  // the document.
  quillbox.changeCompany = [this](int32_t& companyID, int32_t& documentID) {
    int32_t document = documentID;
    if (showClient(true, companyID)) component_->goToDocument(document);
  };
  quillbox.changeContact = [this](int32_t& contactID, int32_t& documentID) {
    int32_t document = documentID;
    if (showClient(false, contactID)) component_->goToDocument(document);
  };
  // A merge document of the list opens in the merge window, for the client
  // on screen; the component names it by its document type.
  quillbox.openDocMerge = [this](int16_t& docType, std::string& docPath) {
    constexpr int16_t kMergeDocumentType = 7;
    if (docType == kMergeDocumentType) {
      openMergeDocumentWindow(*this, docPath);
    } else {
      statusBar()->showMessage("Merge document: " + QString::fromStdString(docPath), 8000);
    }
  };
}

void ClientWindow::releaseComponent() {
  if (!component_) return;
  started_ = false;
  component_->lvDocuments().removeObserver(listObserver_);
  // The widgets stop observing the models before the component goes.
  delete host_;
  host_ = nullptr;
  component_.reset();
  resetModuleState();
  store_.reset();
  roster_ = hosts::ClientRoster();
  current_ = -1;
}

void ClientWindow::closeEvent(QCloseEvent* event) {
  // The user's view of the list is kept for the next time.
  if (component_) component_->putDocQuillboxListViewSettings();
  saveWindowGeometry(*this);
  releaseComponent();
  event->accept();
}

void ClientWindow::showClient(int index) {
  if (!component_ || index < 0 || index >= roster_.size()) return;
  current_ = index;
  const hosts::Client& client = roster_.at(index);
  if (client.isCompany) {
    component_->setCompanyIDNum(client.id);
  } else {
    component_->setContactIDNum(client.id);
  }
  component_->populateClientDocumentCategories();
  component_->setupDocumentsDisplay();
  listChanged();
}

bool ClientWindow::showClient(bool isCompany, int32_t id) {
  const int index = roster_.find(isCompany, id);
  if (index < 0) return false;
  showClient(index);
  return true;
}

void ClientWindow::moveTo(int index) {
  if (roster_.empty()) return;
  index = std::clamp(index, 0, roster_.size() - 1);
  if (index != current_) showClient(index);
}

void ClientWindow::findClient() {
  if (!component_ || options_.unattended) return;
  ClientPickerDialog picker(roster_, current_, this);
  if (picker.exec() == QDialog::Accepted && picker.picked() >= 0) showClient(picker.picked());
}

void ClientWindow::chooseDatabase() {
  // The folder last chosen in, else the open database's.
  const QString current = store_ ? QString::fromStdString(folder_->getDataFolder()) : QString();
  QFileDialog dialog(this, "Open Client Database", QString(),
                     "Client databases (*.db);;All files (*)");
  dialog.setFileMode(QFileDialog::ExistingFile);
  const QStringList chosen = gui::runFileDialog(dialog, "database", current);
  if (chosen.isEmpty()) return;
  const QString& path = chosen.first();
  if (component_) component_->putDocQuillboxListViewSettings();
  openDatabase(path);
}

void ClientWindow::offerAnotherDatabase(const QString& path, const QString& reason) {
  const QString text = QString("The client database \"%1\" can't be opened.").arg(path);
  if (options_.unattended) {
    messages_->showMessage((text + "\n" + reason).toStdString(), 3, nullptr);
    return;
  }
  QMessageBox box(QMessageBox::Critical, kProduct, text, QMessageBox::NoButton, this);
  box.setInformativeText(reason.section('\n', 0, 0));
  box.setDetailedText(reason);
  QPushButton* another = box.addButton("&Open Another Database…", QMessageBox::AcceptRole);
  QPushButton* sample = box.addButton("&Create the Sample Database", QMessageBox::ActionRole);
  box.addButton("Continue &Without", QMessageBox::RejectRole);
  box.setDefaultButton(another);
  box.exec();
  if (box.clickedButton() == another) {
    chooseDatabase();
  } else if (box.clickedButton() == sample) {
    createSampleDatabase(path);
  }
}

bool ClientWindow::createSampleDatabase(const QString& path) {
  // A file that is there is never replaced: the sample goes beside the user's
  // data then, made once.
  QString target = path;
  if (path.isEmpty() || QFileInfo::exists(path)) {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(data);
    target = data + "/quillbox-sample.db";
  }
  if (!QFileInfo::exists(target)) {
    QApplication::setOverrideCursor(Qt::BusyCursor);
    QString failure;
    try {
      NewDatabase sample;
      sample.content = NewDatabase::Content::Sample;
      sample.filesFolder = defaultFilesFolder(target.toStdString());
      makeDatabase(target.toStdString(), sample);
    } catch (const std::exception& error) {
      failure = QString::fromStdString(error.what());
    }
    QApplication::restoreOverrideCursor();
    if (!failure.isEmpty()) {
      messages_->showMessage(failure.toStdString(), 3, nullptr);
      return false;
    }
  }
  return openDatabase(target);
}

void ClientWindow::listChanged() {
  if (!component_) {
    clientStatus_->clear();
    documentStatus_->clear();
    return;
  }
  clientStatus_->setText(current_ >= 0
                             ? QString("Client %1 of %2").arg(current_ + 1).arg(roster_.size())
                             : QString("%1 clients").arg(roster_.size()));
  const int count = component_->lvDocuments().ListItems().Count();
  documentStatus_->setText(count == 1 ? QString("1 document") : QString("%1 documents").arg(count));
  for (QAction* action : views_->actions()) {
    action->setChecked(action->data().toInt() == static_cast<int>(component_->ListViewViews()));
  }
}

void ClientWindow::updateTitle() {
  std::string firm;
  if (component_) {
    firm = modDatabaseFunctions::getCompanyNameFromCompanyID(
        modDatabaseFunctions::getAccountantFirmID());
  }
  setWindowTitle(firm.empty() ? QString("Client Documents")
                              : QString("Client Documents — %1").arg(QString::fromStdString(firm)));
}

bool ClientWindow::saveScreenshot(const QString& path) {
  if (!isVisible()) show();
  // Let the layout settle and the component lay itself out.
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  const QFileInfo file(path);
  QDir().mkpath(file.absolutePath());
  return grab().save(file.absoluteFilePath(), "PNG");
}

}  // namespace qb::desk
