#include "gui/doc_properties_dialog.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "dialogs/frm_doc_properties.h"

namespace qb::gui {

namespace {

void emphasise(QLabel* label, double scale) {
  QFont font = label->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * scale);
  label->setFont(font);
}

}  // namespace

DocPropertiesDialog::DocPropertiesDialog(frmDocProperties& form, QWidget* parent)
    : FormDialog(form, parent) {
  FormBinder& bind = binder();
  auto* layout = new QVBoxLayout(this);

  // The document: its icon and its name in large type.
  auto* title = new QHBoxLayout;
  title->addWidget(bind.image(form.IconImage(), this, 32));
  QLabel* name = bind.label(form.lblFileName(), this);
  emphasise(name, 1.4);
  title->addWidget(name, 1);
  layout->addLayout(title);

  QTabWidget* tabs = bind.tabs(form.PropertiesTab(), this);
  layout->addWidget(tabs, 1);

  // Tab 0: the link and the file.
  QWidget* facts = tabs->widget(0);
  auto* factsLayout = new QVBoxLayout(facts);
  TextBox* fields[] = {&form.txtField(),        &form.txtDateAdded(), &form.txtUserAdded(),
                       &form.txtFileLocation(), &form.txtFileSize(),  &form.txtCreated(),
                       &form.txtModified(),     &form.txtAccessed()};
  QGroupBox* groups[] = {bind.frame(form.fraLinkInformation(), facts),
                         bind.frame(form.fraFileInformation(), facts)};
  for (QGroupBox* group : groups) {
    auto* rows = new QFormLayout(group);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    factsLayout->addWidget(group);
  }
  // The captions of both groups share one width, so that the fields line up.
  std::vector<QLabel*> captions;
  for (int16_t i = 0; i < static_cast<int16_t>(std::size(fields)); ++i) {
    QGroupBox* group = groups[i < 3 ? 0 : 1];
    QLabel* caption = bind.label(form.lblFieldCaption(i), group);
    caption->setWordWrap(false);
    QLineEdit* field = bind.textBox(*fields[i], group);
    caption->setBuddy(field);
    static_cast<QFormLayout*>(group->layout())->addRow(caption, field);
    captions.push_back(caption);
  }
  int captionWidth = 0;
  for (QLabel* caption : captions)
    captionWidth = std::max(captionWidth, caption->sizeHint().width());
  for (QLabel* caption : captions) caption->setMinimumWidth(captionWidth);
  auto* note = new QHBoxLayout;
  QLabel* noteWord = bind.label(form.Label16(), facts);
  emphasise(noteWord, 1.0);
  noteWord->setWordWrap(false);
  note->addWidget(noteWord);
  note->addWidget(bind.label(form.lblReadOnly(), facts), 1);
  note->addStretch();  // keeps the button its size when the note is hidden
  note->addWidget(bind.button(form.cmdFileProperties(), facts, "document-properties"));
  factsLayout->addLayout(note);
  factsLayout->addStretch();

  // Tab 1: why the file is missing, Browse, and the help.
  QWidget* missing = tabs->widget(1);
  auto* missingLayout = new QVBoxLayout(missing);
  QLabel* notFound = bind.label(form.Label9(), missing);
  emphasise(notFound, 1.2);
  missingLayout->addWidget(notFound);
  missingLayout->addWidget(bind.label(form.lblErrorDescription(), missing));
  auto* browse = new QHBoxLayout;
  QPushButton* browseButton = bind.button(form.cmdBrowse(), missing);
  browseButton->setIcon(style()->standardIcon(QStyle::SP_DialogOpenButton));
  browse->addWidget(browseButton);
  browse->addStretch();
  missingLayout->addLayout(browse);
  QGroupBox* help = bind.frame(form.fraHelp(), missing);
  auto* helpLayout = new QVBoxLayout(help);
  for (int16_t i = 0; i < frmDocProperties::kHelpLabels; ++i) {
    QLabel* text = bind.label(form.lblHelp(i), help);
    if (i == 2) emphasise(text, 1.0);  // "Note:"
    helpLayout->addWidget(text);
  }
  missingLayout->addWidget(help);
  missingLayout->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  QPushButton* close = bind.button(form.cmdClose(), this);
  close->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));
  close->setDefault(true);
  buttons->addWidget(close);
  layout->addLayout(buttons);

  setMinimumWidth(560);
  adjustSize();
}

}  // namespace qb::gui
