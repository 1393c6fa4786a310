#include "gui/find_document_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include "dialogs/frm_find_document.h"
#include "gui/document_list_widget.h"

namespace qb::gui {

FindDocumentDialog::FindDocumentDialog(frmFindDocument& form, QWidget* parent)
    : FormDialog(form, parent) {
  FormBinder& bind = binder();
  QVBoxLayout* layout = columnUnderHeader(form.lblHeader());

  QTabWidget* tabs = bind.tabs(form.FindTab(), this);
  layout->addWidget(tabs, 1);

  // Tab 0: the criteria.
  QWidget* criteria = tabs->widget(0);
  auto* criteriaLayout = new QVBoxLayout(criteria);
  QGroupBox* group = bind.frame(form.fraSearchCriteria(), criteria);
  auto* rows = new QFormLayout(group);
  rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  QLabel* fieldCaption = bind.label(form.lblSearchField(), group);
  fieldCaption->setWordWrap(false);
  QComboBox* field = bind.comboBox(form.cboField(2), group);
  fieldCaption->setBuddy(field);
  rows->addRow(fieldCaption, field);
  QLabel* textCaption = bind.label(form.lblSearchText(), group);
  textCaption->setWordWrap(false);
  QLineEdit* text = bind.textBox(form.txtField(), group);
  textCaption->setBuddy(text);
  rows->addRow(textCaption, text);
  rows->addRow(bind.checkBox(form.chkField(0), group));
  rows->addRow(bind.checkBox(form.chkField(1), group));
  rows->addRow(bind.option(form.optSearchClients(0), group));
  rows->addRow(bind.option(form.optSearchClients(1), group));
  auto* find = new QHBoxLayout;
  find->addStretch();
  find->addWidget(bind.button(form.cmdFind(), group, "edit-find"));
  rows->addRow(find);
  criteriaLayout->addWidget(group);
  auto* desktop = new QHBoxLayout;
  desktop->addWidget(bind.button(form.cmdSearchComputerFiles(), criteria, "system-search"));
  desktop->addStretch();
  criteriaLayout->addLayout(desktop);
  criteriaLayout->addStretch();

  // Tab 1: the results.
  QWidget* results = tabs->widget(1);
  auto* resultsLayout = new QVBoxLayout(results);
  auto* views = new QHBoxLayout;
  QLabel* viewsCaption = bind.label(form.lblViews(), results);
  viewsCaption->setWordWrap(false);
  QComboBox* view = bind.comboBox(form.cboField(3), results);
  viewsCaption->setBuddy(view);
  views->addWidget(viewsCaption);
  views->addWidget(view);
  views->addStretch();
  resultsLayout->addLayout(views);
  DocumentListWidget* list = bind.list(form.FindResults(), results);
  list->setMinimumHeight(200);
  resultsLayout->addWidget(list, 1);
  auto* goTo = new QHBoxLayout;
  goTo->addStretch();
  goTo->addWidget(bind.button(form.cmdGoTo(), results, "go-jump"));
  resultsLayout->addLayout(goTo);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  QPushButton* cancel = bind.button(form.cmdCancel(), this);
  cancel->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));
  buttons->addWidget(cancel);
  layout->addLayout(buttons);

  setMinimumWidth(560);
  adjustSize();
  text->setFocus();
}

}  // namespace qb::gui
