#include "app/desk/client_picker_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qb::desk {

ClientPickerDialog::ClientPickerDialog(const hosts::ClientRoster& roster, int current,
                                       QWidget* parent)
    : QDialog(parent), search_(new QLineEdit(this)), list_(new QTreeWidget(this)) {
  setWindowTitle("Find Client");
  resize(420, 460);
  auto* layout = new QVBoxLayout(this);
  auto* prompt = new QLabel("&Name contains:", this);
  prompt->setBuddy(search_);
  search_->setClearButtonEnabled(true);
  search_->setPlaceholderText("Type part of a company or contact name");
  layout->addWidget(prompt);
  layout->addWidget(search_);

  list_->setColumnCount(2);
  list_->setHeaderLabels({"Client", "Type"});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  for (int i = 0; i < roster.size(); ++i) {
    const hosts::Client& client = roster.at(i);
    auto* item = new QTreeWidgetItem(
        list_, {QString::fromStdString(client.name), client.isCompany ? "Company" : "Contact"});
    item->setData(0, Qt::UserRole, i);
    if (i == current) list_->setCurrentItem(item);
  }
  layout->addWidget(list_, 1);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(list_, &QTreeWidget::itemActivated, this, [this] { accept(); });
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { filter(text); });
  connect(list_, &QTreeWidget::currentItemChanged, this, [this, buttons](QTreeWidgetItem* item) {
    buttons->button(QDialogButtonBox::Ok)->setEnabled(item != nullptr && !item->isHidden());
  });
  buttons->button(QDialogButtonBox::Ok)->setEnabled(list_->currentItem() != nullptr);
  search_->installEventFilter(this);
  search_->setFocus();
}

bool ClientPickerDialog::eventFilter(QObject* watched, QEvent* event) {
  // The arrow and page keys in the filter box go on into the list, onto the
  // client highlighted there (the first one shown when none is).
  if (watched == search_ && event->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Down:
      case Qt::Key_Up:
      case Qt::Key_PageDown:
      case Qt::Key_PageUp:
        if (list_->currentItem() == nullptr || list_->currentItem()->isHidden())
          filter(search_->text());
        list_->setFocus(Qt::TabFocusReason);
        if (QTreeWidgetItem* item = list_->currentItem()) list_->scrollToItem(item);
        return true;
      default:
        break;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void ClientPickerDialog::filter(const QString& text) {
  QTreeWidgetItem* firstShown = nullptr;
  for (int i = 0; i < list_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = list_->topLevelItem(i);
    const bool shown = item->text(0).contains(text.trimmed(), Qt::CaseInsensitive);
    item->setHidden(!shown);
    if (shown && firstShown == nullptr) firstShown = item;
  }
  if (list_->currentItem() == nullptr || list_->currentItem()->isHidden())
    list_->setCurrentItem(firstShown);
}

int ClientPickerDialog::picked() const {
  QTreeWidgetItem* item = list_->currentItem();
  return item != nullptr && !item->isHidden() ? item->data(0, Qt::UserRole).toInt() : -1;
}

}  // namespace qb::desk
