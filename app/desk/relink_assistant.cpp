#include "app/desk/relink_assistant.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/desk/work_progress.h"
#include "gui/file_dialogs.h"
#include "gui/theme_icons.h"
#include "links/folder_prefix.h"
#include "links/link_reader.h"

namespace qb::desk {

namespace {

QString text(const std::string& value) { return QString::fromStdString(value); }

QString linksText(size_t count) {
  return count == 1 ? QString("1 link") : QString("%1 links").arg(count);
}

// The label of an outcome as the table shows it.
QString outcomeText(links::RepointOutcome outcome) {
  switch (outcome) {
    case links::RepointOutcome::repointed:
      return "Relinked";
    case links::RepointOutcome::notFound:
      return "Not found: left as it was";
    case links::RepointOutcome::changedMeanwhile:
      return "Changed meanwhile: left";
    case links::RepointOutcome::failed:
      return "Failed: left";
  }
  return {};
}

}  // namespace

RelinkAssistant::RelinkAssistant(const links::LinkScope& scope, const QString& oldFolder,
                                 QWidget* parent)
    : QDialog(parent), scope_(scope) {
  setWindowTitle("Relink Folder");
  setWindowIcon(gui::themeIcon("folder"));
  auto* layout = new QVBoxLayout(this);
  auto* intro = new QLabel(
      "When a share or drive has moved: every link under the old folder is pointed at the "
      "same file under the new folder. Preview first; only links whose file is at the new "
      "place are changed, and no file is moved.",
      this);
  intro->setWordWrap(true);
  layout->addWidget(intro);

  auto* folders = new QFormLayout;
  oldFolder_ = new QLineEdit(oldFolder, this);
  oldFolder_->setObjectName("oldFolder");
  oldFolder_->setPlaceholderText("/srv/clients");
  folders->addRow("&Old folder:", oldFolder_);
  newFolder_ = new QLineEdit(this);
  newFolder_->setObjectName("newFolder");
  newFolder_->setPlaceholderText("/mnt/clients");
  auto* browse = new QPushButton(gui::themeIcon("folder"), "&Browse…", this);
  auto* newRow = new QHBoxLayout;
  newRow->addWidget(newFolder_, 1);
  newRow->addWidget(browse);
  auto* newLabel = new QLabel("&New folder:", this);
  newLabel->setBuddy(newFolder_);
  folders->addRow(newLabel, newRow);
  layout->addLayout(folders);

  table_ = new QTreeWidget(this);
  table_->setObjectName("preview");
  table_->setRootIsDecorated(false);
  table_->setUniformRowHeights(true);
  table_->setTextElideMode(Qt::ElideMiddle);
  table_->setHeaderLabels({"Link", "Client", "New Path", "File"});
  table_->header()->setSectionResizeMode(2, QHeaderView::Stretch);
  layout->addWidget(table_, 1);
  progress_ = new QProgressBar(this);
  progress_->hide();
  layout->addWidget(progress_);
  status_ = new QLabel(this);
  status_->setObjectName("status");
  status_->setWordWrap(true);
  layout->addWidget(status_);

  auto* buttons = new QDialogButtonBox(this);
  preview_ = buttons->addButton("&Preview", QDialogButtonBox::ActionRole);
  preview_->setIcon(gui::themeIcon("system-search"));
  apply_ = buttons->addButton("&Apply…", QDialogButtonBox::AcceptRole);
  apply_->setIcon(gui::themeIcon("dialog-ok"));
  apply_->setEnabled(false);
  // Enter previews; applying takes a click and a confirmation.
  preview_->setDefault(true);
  apply_->setAutoDefault(false);
  buttons->addButton(QDialogButtonBox::Close);
  layout->addWidget(buttons);

  connect(browse, &QPushButton::clicked, this, [this] { browseNewFolder(); });
  connect(preview_, &QPushButton::clicked, this, [this] { preview(); });
  connect(apply_, &QPushButton::clicked, this, [this] { apply(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  // A folder typed anew needs a new preview before anything is applied.
  for (QLineEdit* edit : {oldFolder_, newFolder_}) {
    connect(edit, &QLineEdit::textEdited, this, [this] {
      previewed_ = false;
      apply_->setEnabled(false);
    });
  }
  confirm = [this](const QString& question) {
    return QMessageBox::question(this, windowTitle(), question) == QMessageBox::Yes;
  };
  resize(860, 520);
}

void RelinkAssistant::browseNewFolder() {
  QFileDialog dialog(this, "New Folder", newFolder_->text());
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  const QStringList chosen = gui::runFileDialog(dialog, "relink", newFolder_->text());
  if (chosen.isEmpty()) return;
  newFolder_->setText(chosen.first());
  previewed_ = false;
  apply_->setEnabled(false);
}

void RelinkAssistant::refuse(const QString& reason) {
  table_->clear();
  previewed_ = false;
  apply_->setEnabled(false);
  status_->setText("<span style='color:#a40000'>" + reason.toHtmlEscaped() + "</span>");
}

bool RelinkAssistant::preview() {
  std::string from, to, error;
  if (!links::normalizePrefix(oldFolder_->text().trimmed().toStdString(), from, error)) {
    refuse("Old folder: " + text(error) + ".");
    return false;
  }
  if (!links::normalizePrefix(newFolder_->text().trimmed().toStdString(), to, error)) {
    refuse("New folder: " + text(error) + ".");
    return false;
  }
  if (from == to) {
    refuse("The old and the new folder are the same.");
    return false;
  }
  if (!links::checkFolderReachable(to, error)) {
    refuse("New folder: " + text(error) + ".");
    return false;
  }
  {
    WorkProgress progress(*this, *progress_, "Looking at the new places: %v of %m");
    plan_ = links::planRelink(links::readLinks(scope_), from, to, progress.callback());
  }
  previewed_ = true;
  showPlan(nullptr);
  return true;
}

void RelinkAssistant::showPlan(const std::vector<links::RepointOutcome>* outcomes) {
  table_->clear();
  QList<QTreeWidgetItem*> rows;
  for (size_t i = 0; i < plan_.rows.size(); ++i) {
    const links::RelinkRow& row = plan_.rows[i];
    auto* item =
        new QTreeWidgetItem({text(row.link.name), text(row.link.clientName), text(row.newPath),
                             outcomes    ? outcomeText((*outcomes)[i])
                             : row.found ? "Found"
                                         : "Not found"});
    item->setToolTip(2, "Now: " + text(row.link.path));
    const bool good = outcomes ? (*outcomes)[i] == links::RepointOutcome::repointed : row.found;
    item->setIcon(3, gui::themeIcon(good ? "dialog-ok" : "dialog-warning"));
    rows.append(item);
  }
  table_->addTopLevelItems(rows);
  table_->resizeColumnToContents(0);
  table_->resizeColumnToContents(1);
  const size_t found = plan_.foundCount();
  const QString under = text(plan_.from), there = text(plan_.to);
  if (plan_.rows.empty()) {
    status_->setText(plan_.newInsideOld()
                         ? QString("No link lies under %1 outside %2.").arg(under, there)
                         : QString("No link lies under %1.").arg(under));
  } else if (outcomes == nullptr) {
    status_->setText(QString("%1 under %2: %3 with the file under %4, %5 without. Nothing "
                             "has been changed yet.")
                         .arg(linksText(plan_.rows.size()), under)
                         .arg(found)
                         .arg(there)
                         .arg(plan_.rows.size() - found));
  } else {
    size_t relinked = 0;
    for (links::RepointOutcome outcome : *outcomes)
      relinked += outcome == links::RepointOutcome::repointed ? 1 : 0;
    status_->setText(QString("Relinked %1 of %2; the other %3 stay as they were.")
                         .arg(relinked)
                         .arg(linksText(plan_.rows.size()))
                         .arg(plan_.rows.size() - relinked));
  }
  apply_->setEnabled(outcomes == nullptr && found > 0);
}

void RelinkAssistant::apply() {
  if (!previewed_ && !preview()) return;
  const size_t found = plan_.foundCount();
  if (found == 0) return;
  const QString question =
      QString(
          "Point %1 from %2 to %3?\n\n%4 whose file is not there stay as they are. No file "
          "is moved.")
          .arg(linksText(found), text(plan_.from), text(plan_.to),
               linksText(plan_.rows.size() - found));
  if (!confirm(question)) return;
  std::vector<links::RepointOutcome> outcomes;
  {
    WorkProgress progress(*this, *progress_, "Relinking: %v of %m");
    outcomes = links::applyRelink(plan_, progress.callback());
  }
  for (links::RepointOutcome outcome : outcomes)
    changed_ = changed_ || outcome == links::RepointOutcome::repointed;
  previewed_ = false;
  showPlan(&outcomes);
}

}  // namespace qb::desk
