#include "app/desk/link_health_window.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "app/desk/client_window.h"
#include "app/desk/relink_assistant.h"
#include "app/desk/work_progress.h"
#include "control/nv_document_quillbox.h"
#include "dialogs/frm_doc_properties.h"
#include "gui/theme_icons.h"
#include "gui/widget_owner_form.h"
#include "links/link_reader.h"
#include "services/files/file_facts_service.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/quillbox/doc_quillbox_document_class.h"
#include "services/quillbox/file_icons.h"
#include "services/util/file_utilities_class.h"

namespace qb::desk {

namespace {

constexpr int kLinkRole = Qt::UserRole;  // a link row's place in the results
enum Column { columnLink, columnState, columnCategory, columnPath, columnComputer };

QString text(const std::string& value) { return QString::fromStdString(value); }

// The icon of a link: its file type's (a folder's for a folder), with the
// broken-link emblem when its file can't be opened.
QIcon linkIcon(const links::CheckedLink& row) {
  using namespace quillboxLibrary;
  const std::string type =
      row.state == links::LinkState::folder
          ? kFolderIcon
          : iconNameForExtension(fileUtilitiesClass().getFileExtension(row.link.path));
  const Picture picture = Picture::themeIcon(type, kSmallIconSize)
                              .withEmblem(links::isBroken(row.state) ? kBrokenLinkEmblem : "");
  return gui::iconFor(picture);
}

// "12 links: 7 present, 2 file gone, …": the states that have links.
QString summaryText(const links::StateCounts& counts) {
  QString summary = counts.total == 1 ? "1 link" : QString("%1 links").arg(counts.total);
  QStringList parts;
  for (links::LinkState state : links::kLinkStates) {
    if (counts.of(state) == 0) continue;
    parts << QString("%1 %2")
                 .arg(counts.of(state))
                 .arg(QString(links::linkStateLabel(state)).toLower());
  }
  if (!parts.isEmpty()) summary += ": " + parts.join(", ");
  return summary + ".";
}

// While it lives, dialogs of the library are owned by this window.
class OwnedDialogs {
 public:
  explicit OwnedDialogs(QWidget* window) : owner_(window) {
    locale_ = dynamic_cast<FixedLocale*>(moduleState().localeReference.get());
    if (locale_ == nullptr) return;
    previous_ = locale_->ownerForm;
    locale_->ownerForm = &owner_;
  }
  ~OwnedDialogs() {
    if (locale_ != nullptr) locale_->ownerForm = previous_;
  }

 private:
  gui::WidgetOwnerForm owner_;
  FixedLocale* locale_ = nullptr;
  OwnerForm* previous_ = nullptr;
};

}  // namespace

LinkHealthWindow::LinkHealthWindow(ClientWindow& window) : QDialog(&window), window_(window) {
  setWindowTitle("Link Health");
  setWindowIcon(gui::themeIcon(quillboxLibrary::kBrokenLinkEmblem));
  auto* layout = new QVBoxLayout(this);

  auto* choices = new QHBoxLayout;
  auto* scopeLabel = new QLabel("&Links of:", this);
  scope_ = new QComboBox(this);
  scope_->setObjectName("scope");
  scope_->addItem("All clients");
  if (window_.currentClient() >= 0)
    scope_->addItem(text(window_.roster().at(window_.currentClient()).name));
  scopeLabel->setBuddy(scope_);
  auto* filterLabel = new QLabel("&Show:", this);
  filter_ = new QComboBox(this);
  filter_->setObjectName("filter");
  filter_->addItem("Broken links", -1);
  filter_->addItem("All links", -2);
  for (links::LinkState state : links::kLinkStates)
    filter_->addItem(links::linkStateLabel(state), static_cast<int>(state));
  filterLabel->setBuddy(filter_);
  checkAgain_ = new QPushButton(gui::themeIcon("view-refresh"), "Check &Again", this);
  choices->addWidget(scopeLabel);
  choices->addWidget(scope_);
  choices->addSpacing(12);
  choices->addWidget(filterLabel);
  choices->addWidget(filter_);
  choices->addStretch(1);
  choices->addWidget(checkAgain_);
  layout->addLayout(choices);

  progress_ = new QProgressBar(this);
  progress_->hide();
  layout->addWidget(progress_);

  tree_ = new QTreeWidget(this);
  tree_->setObjectName("links");
  tree_->setUniformRowHeights(true);
  tree_->setAlternatingRowColors(true);
  // A long path keeps its start and its file's name.
  tree_->setTextElideMode(Qt::ElideMiddle);
  tree_->setHeaderLabels({"Link", "State", "Category", "Path", "Computer"});
  tree_->header()->setStretchLastSection(false);
  tree_->header()->setSectionResizeMode(columnPath, QHeaderView::Stretch);
  layout->addWidget(tree_, 1);
  summary_ = new QLabel(this);
  summary_->setObjectName("summary");
  summary_->setWordWrap(true);
  layout->addWidget(summary_);

  auto* buttons = new QDialogButtonBox(this);
  properties_ = buttons->addButton("&Properties…", QDialogButtonBox::ActionRole);
  properties_->setIcon(gui::themeIcon("document-properties"));
  relink_ = buttons->addButton("&Relink Folder…", QDialogButtonBox::ActionRole);
  relink_->setIcon(gui::themeIcon("folder"));
  buttons->addButton(QDialogButtonBox::Close);
  layout->addWidget(buttons);

  connect(scope_, &QComboBox::activated, this, [this] { check(); });
  connect(filter_, &QComboBox::activated, this, [this](int index) {
    const int data = filter_->itemData(index).toInt();
    if (data == -1)
      setFilter({links::StateFilter::Kind::broken});
    else if (data == -2)
      setFilter({links::StateFilter::Kind::all});
    else
      setFilter(links::StateFilter::only(static_cast<links::LinkState>(data)));
  });
  connect(checkAgain_, &QPushButton::clicked, this, [this] { check(); });
  connect(tree_, &QTreeWidget::itemActivated, this,
          [this](QTreeWidgetItem* row) { openProperties(row); });
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this] { updateButtons(); });
  connect(properties_, &QPushButton::clicked, this,
          [this] { openProperties(tree_->currentItem()); });
  connect(relink_, &QPushButton::clicked, this, [this] { openRelinkAssistant(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  updateButtons();
  resize(1000, 600);
}

links::LinkScope LinkHealthWindow::scope() const {
  if (scope_->currentIndex() == 1 && window_.currentClient() >= 0) {
    const hosts::Client& client = window_.roster().at(window_.currentClient());
    return client.isCompany ? links::LinkScope::company(client.id)
                            : links::LinkScope::contact(client.id);
  }
  return links::LinkScope::all();
}

void LinkHealthWindow::setClientOnly(bool clientOnly) {
  scope_->setCurrentIndex(clientOnly && scope_->count() > 1 ? 1 : 0);
}

void LinkHealthWindow::check() {
  checkAgain_->setEnabled(false);
  {
    WorkProgress progress(*this, *progress_, "Checking links: %v of %m");
    checked_ = links::checkLinks(links::readLinks(scope()), progress.callback());
  }
  checkAgain_->setEnabled(true);
  showResults();
}

void LinkHealthWindow::setFilter(const links::StateFilter& filter) {
  filterState_ = filter;
  int data = filter.kind == links::StateFilter::Kind::broken ? -1
             : filter.kind == links::StateFilter::Kind::all  ? -2
                                                             : static_cast<int>(filter.state);
  filter_->setCurrentIndex(filter_->findData(data));
  showResults();
}

void LinkHealthWindow::showResults() {
  tree_->clear();
  QList<QTreeWidgetItem*> clients;
  for (const links::ClientGroup& group : links::groupByClient(checked_, filterState_)) {
    const size_t broken = group.counts.broken();
    auto* client = new QTreeWidgetItem;
    const QString name =
        group.first->hasClient() ? text(group.first->clientName) : QString("(no client)");
    client->setText(columnLink, QString("%1 — %2 of %3 broken")
                                    .arg(name)
                                    .arg(broken)
                                    .arg(group.counts.total == 1
                                             ? QString("1 link")
                                             : QString("%1 links").arg(group.counts.total)));
    QFont bold = client->font(columnLink);
    bold.setBold(true);
    client->setFont(columnLink, bold);
    client->setFlags(Qt::ItemIsEnabled);
    for (size_t index : group.shown) {
      const links::CheckedLink& row = checked_[index];
      auto* item = new QTreeWidgetItem(client);
      item->setText(columnLink, text(row.link.name));
      item->setIcon(columnLink, linkIcon(row));
      item->setText(columnState, links::linkStateLabel(row.state));
      item->setToolTip(columnState,
                       text(links::linkStateDescription(row.state, row.link.computer)));
      item->setText(columnCategory, text(row.link.categoryPath));
      item->setToolTip(columnCategory, text(row.link.categoryPath));
      item->setText(columnPath, text(row.link.path));
      item->setToolTip(columnPath, text(row.link.path));
      item->setText(columnComputer, text(row.link.computer));
      item->setData(columnLink, kLinkRole, static_cast<qulonglong>(index));
    }
    clients.append(client);
  }
  tree_->addTopLevelItems(clients);
  for (QTreeWidgetItem* client : clients) client->setFirstColumnSpanned(true);
  tree_->expandAll();
  // The columns before the path fit their text, each within a quarter of
  // the view, so that the path keeps room.
  for (int column : {columnLink, columnState, columnCategory}) {
    tree_->resizeColumnToContents(column);
    tree_->setColumnWidth(column,
                          std::min(tree_->columnWidth(column), tree_->viewport()->width() / 4));
  }
  const links::StateCounts counts = links::countStates(checked_);
  QString summary = summaryText(counts);
  if (clients.isEmpty())
    summary =
        (filterState_.kind == links::StateFilter::Kind::broken ? QString("No broken links. ")
                                                               : QString("No links to show. ")) +
        summary;
  summary_->setText(summary);
  updateButtons();
}

const links::CheckedLink* LinkHealthWindow::linkOf(const QTreeWidgetItem* row) const {
  if (row == nullptr) return nullptr;
  const QVariant index = row->data(columnLink, kLinkRole);
  if (!index.isValid() || index.toULongLong() >= checked_.size()) return nullptr;
  return &checked_[index.toULongLong()];
}

void LinkHealthWindow::updateButtons() {
  properties_->setEnabled(linkOf(tree_->currentItem()) != nullptr);
  relink_->setEnabled(!checked_.empty());
}

void LinkHealthWindow::openProperties(QTreeWidgetItem* row) {
  const links::CheckedLink* link = linkOf(row);
  if (link == nullptr) return;
  const size_t index = row->data(columnLink, kLinkRole).toULongLong();
  const int32_t id = link->link.documentID;
  auto document = std::make_shared<docQuillboxDocumentClass>();
  document->setDocumentID(id);
  bool loadAll = true, found = false;
  document->loadDocument(loadAll, found);
  if (found) {
    OwnedDialogs owned(this);
    frmDocProperties dialog;
    dialog.Initialize(document);
  }
  // The link as it is now: renamed, relinked, or gone.
  links::LinkRecord fresh;
  if (links::readLink(id, fresh)) {
    FileFactsOperation operation;
    const links::LinkState state =
        links::linkStateOf(fresh.path, fresh.computer, ReaderRights::ofThisProcess());
    checked_[index] = {std::move(fresh), state};
  } else {
    checked_.erase(checked_.begin() + static_cast<std::ptrdiff_t>(index));
  }
  showResults();
  if (window_.component() != nullptr) window_.component()->setupDocumentsDisplay();
}

void LinkHealthWindow::openRelinkAssistant() {
  QString oldFolder;
  if (const links::CheckedLink* link = linkOf(tree_->currentItem()))
    oldFolder = text(fileUtilitiesClass().getFolderFromPath(link->link.path));
  RelinkAssistant assistant(scope(), oldFolder, this);
  if (onAssistantShown) {
    assistant.show();
    onAssistantShown(assistant);
    assistant.close();
  } else {
    assistant.exec();
  }
  if (!assistant.changedLinks()) return;
  check();
  if (window_.component() != nullptr) window_.component()->setupDocumentsDisplay();
}

LinkHealthWindow* openLinkHealthWindow(ClientWindow& window) {
  if (window.component() == nullptr) return nullptr;
  auto* health = new LinkHealthWindow(window);
  health->setAttribute(Qt::WA_DeleteOnClose);
  health->setWindowModality(Qt::WindowModal);
  health->show();
  health->check();
  return health;
}

}  // namespace qb::desk
