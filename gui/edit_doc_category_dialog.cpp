#include "gui/edit_doc_category_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "dialogs/frm_edit_doc_category.h"

namespace qb::gui {

EditDocCategoryDialog::EditDocCategoryDialog(frmEditDocCategory& form, QWidget* parent)
    : FormDialog(form, parent) {
  FormBinder& bind = binder();
  QVBoxLayout* layout = columnUnderHeader(form.lblHeader());

  // The category: name, parent, description.
  QGroupBox* information = bind.frame(form.fraCategoryInformation(), this);
  auto* rows = new QFormLayout(information);
  rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  QLineEdit* name = bind.textBox(form.txtField(0), information);
  QComboBox* parentCombo = bind.comboBox(form.cboField(), information);
  parentCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  QPlainTextEdit* description = bind.textArea(form.txtField2(), information);
  description->setFixedHeight(description->fontMetrics().lineSpacing() * 4 + 12);
  QWidget* fields[] = {name, parentCombo, description};
  for (int16_t i = 0; i < 3; ++i) {
    QLabel* caption = bind.label(form.lblField(i), information);
    caption->setWordWrap(false);
    caption->setBuddy(fields[i]);
    rows->addRow(caption, fields[i]);
  }
  layout->addWidget(information);

  // The synchronised folder.
  QGroupBox* folder = bind.frame(form.fraFolderSynchronization(), this);
  auto* folderLayout = new QVBoxLayout(folder);
  folderLayout->addWidget(bind.label(form.lblFolderNote(), folder));
  auto* folderRow = new QHBoxLayout;
  QLineEdit* path = bind.textBox(form.txtField(1), folder);
  path->setMinimumWidth(320);
  folderRow->addWidget(path, 1);
  folderRow->addWidget(bind.button(form.cmdBrowse(), folder, "folder-open"));
  folderLayout->addLayout(folderRow);
  layout->addWidget(folder);
  layout->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  QPushButton* ok = bind.button(form.cmdOK(), this);
  ok->setIcon(style()->standardIcon(QStyle::SP_DialogOkButton));
  ok->setDefault(true);
  QPushButton* cancel = bind.button(form.cmdCancel(), this);
  cancel->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);

  setMinimumWidth(520);
  adjustSize();
  name->setFocus();
  name->selectAll();
}

}  // namespace qb::gui
