#include "app/desk/merge_fields_window.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "app/desk/client_window.h"
#include "gui/list_box_widget.h"
#include "gui/rich_text_box_widget.h"
#include "gui/theme_icons.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "services/controls/rich_text_box.h"

namespace qb::desk {

MergeFieldsWindow::MergeFieldsWindow(const hosts::Client& client, QWidget* parent)
    : QDialog(parent),
      template_(std::make_unique<RichTextBox>("rtbTemplate")),
      fields_(std::make_unique<clsInsertFieldsInRTB>()) {
  setWindowTitle("Merge Fields");
  setWindowIcon(gui::themeIcon("insert-text"));
  auto* layout = new QVBoxLayout(this);
  auto* caption = new QLabel(QString("Fields for <b>%1</b> (%2), in the firm's region: %3")
                                 .arg(QString::fromStdString(client.name).toHtmlEscaped(),
                                      client.isCompany ? "company" : "contact", regionText()),
                             this);
  layout->addWidget(caption);
  lists_ = new MergeFieldLists(*fields_, *template_, client, this);
  layout->addWidget(lists_, 3);

  layout->addWidget(new QLabel("Double-click a field to put its marker into the template:", this));
  templateWidget_ = new gui::RichTextBoxWidget(*template_, this);
  templateWidget_->setPlaceholderText("Dear «Contact First Name», …");
  layout->addWidget(templateWidget_, 1);
  lists_->picked = [this] { templateWidget_->setFocus(); };
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  resize(900, 640);
}

MergeFieldsWindow::~MergeFieldsWindow() {
  // The widgets stop observing the models before the models go.
  delete lists_;
  delete templateWidget_;
}

void openMergeFieldsWindow(ClientWindow& window) {
  if (window.component() == nullptr || window.currentClient() < 0) return;
  auto* fields = new MergeFieldsWindow(window.roster().at(window.currentClient()), &window);
  fields->setAttribute(Qt::WA_DeleteOnClose);
  fields->open();
}

}  // namespace qb::desk
