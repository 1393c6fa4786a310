#include "app/desk/lookup_fill_dialog.h"

#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "app/desk/client_window.h"
#include "gui/theme_icons.h"
#include "lookup/cls_lookup_fields.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "services/controls/platform.h"
#include "services/runtime/conversions.h"

namespace qb::desk {

namespace {

constexpr int kHighestCustomColumn = 5;

const char* const kFamilies[] = {"Task schedule rows", "Personal tax rows", "Company projects"};

// "m:ss", or "h:mm:ss" from an hour on.
QString clockText(qint64 seconds) {
  const QString rest = QString("%1:%2")
                           .arg(seconds / 60 % 60, seconds >= 3600 ? 2 : 1, 10, QChar('0'))
                           .arg(seconds % 60, 2, 10, QChar('0'));
  return seconds >= 3600 ? QString::number(seconds / 3600) + ":" + rest : rest;
}

}  // namespace

FillProgressDialog::FillProgressDialog(const QString& what, QWidget* parent) : QDialog(parent) {
  setWindowTitle("Filling Lookup Column");
  setWindowModality(Qt::WindowModal);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(what, this));
  bar_ = new QProgressBar(this);
  bar_->setRange(0, 0);
  layout->addWidget(bar_);
  count_ = new QLabel("Reading the clients…", this);
  layout->addWidget(count_);
  setMinimumWidth(420);
  startedMs_ = QDateTime::currentMSecsSinceEpoch();
}

void FillProgressDialog::setTotal(int total) {
  bar_->setRange(0, total);
  bar_->setValue(0);
  count_->setText(QString("0 of %1 clients").arg(total));
}

void FillProgressDialog::setDone(int done) {
  bar_->setValue(done);
  const double seconds = (QDateTime::currentMSecsSinceEpoch() - startedMs_) / 1000.0;
  QString text = QString("%1 of %2 clients").arg(done).arg(bar_->maximum());
  if (seconds > 0.5 && done > 0) {
    const double rate = done / seconds;
    text += QString("  ·  %1 a second").arg(rate, 0, 'f', rate < 10 ? 1 : 0);
    if (bar_->maximum() > done) {
      text += QString("  ·  %1 left").arg(clockText(qRound64((bar_->maximum() - done) / rate)));
    }
  }
  count_->setText(text);
}

QString FillProgressDialog::countText() const { return count_->text(); }

void FillProgressDialog::reject() {
  // Escape does not hide a fill that is running.
  if (!running_) QDialog::reject();
}

LookupFillDialog::LookupFillDialog(QWidget* parent) : QDialog(parent) {
  setWindowTitle("Fill Lookup Column");
  setWindowIcon(gui::themeIcon("view-refresh"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(
      new QLabel("Writes a merge field's value for every client into a lookup column of\n"
                 "the client's work records. The column keeps the values until the next fill.",
                 this));
  auto* form = new QFormLayout();
  family_ = new QComboBox(this);
  for (const char* name : kFamilies) family_->addItem(name);
  form->addRow("&Records:", family_);
  column_ = new QComboBox(this);
  form->addRow("&Column:", column_);
  field_ = new QComboBox(this);
  form->addRow("&Merge field:", field_);
  taxYear_ = new QSpinBox(this);
  taxYear_->setRange(1900, 9999);
  taxYear_->setValue(clsLookupFields().PersonalTaxYear());
  form->addRow("&Tax year:", taxYear_);
  layout->addLayout(form);
  result_ = new QLabel(this);
  layout->addWidget(result_);

  // The merge fields of a company or contact, each name once, in the
  // catalogue's order, as the fill's merge builds them.
  clsInsertFieldsInRTB merge;
  merge.setMergeFieldListUse(4);
  merge.setListType(listTypeCompanyContact);
  bool bypassListBox = true;
  bool clearListbox = true;
  merge.createDefaultFieldListStructure(bypassListBox, clearListbox);
  FieldListClass table = merge.FieldList();
  QStringList names;
  for (int32_t index = 1; index <= merge.fieldListCounter(); ++index) {
    if (!table.moveToFieldRow(index)) continue;
    const QString name = QString::fromStdString(toText(table.getFieldColumn(fieldNameColumn)));
    if (name.isEmpty() || names.contains(name)) continue;
    names << name;
    field_->addItem(QString::fromStdString(toText(table.getFieldColumn(fieldDisplayNameColumn))),
                    name);
  }

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  fill_ = buttons->addButton("&Fill", QDialogButtonBox::ActionRole);
  fill_->setIcon(gui::themeIcon("view-refresh"));
  connect(fill_, &QPushButton::clicked, this, [this] { fill(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  connect(family_, &QComboBox::currentIndexChanged, this, [this] { listColumns(); });
  listColumns();
}

void LookupFillDialog::listColumns() {
  const int32_t family = family_->currentIndex() + 1;
  column_->clear();
  clsLookupFields fields;
  fields.setLookUpFieldsType(family);
  for (int16_t number = 1; number <= kHighestCustomColumn; ++number) {
    fields.setCustomNumber(number);
    if (fields.isLookupField()) column_->addItem(QString("Custom%1").arg(number), number);
  }
  const bool any = column_->count() > 0;
  if (!any) column_->addItem("(no lookup columns)");
  column_->setEnabled(any);
  fill_->setEnabled(any);
  taxYear_->setEnabled(family == clsLookupFields::familyPersonalTax);
}

void LookupFillDialog::fill() {
  const QString columnName = column_->currentText();
  clsLookupFields fields;
  fields.setLookUpFieldsType(family_->currentIndex() + 1);
  fields.setCustomNumber(static_cast<int16_t>(column_->currentData().toInt()));
  fields.setFieldName(field_->currentData().toString().toStdString());
  fields.setPersonalTaxYear(taxYear_->value());

  FillProgressDialog progress(
      QString("%1 of the %2 ← «%3»")
          .arg(columnName, family_->currentText().toLower(), field_->currentText()),
      this);
  int total = 0;
  int done = 0;
  bool ended = false;
  fields.startPopulateLookupFields = [&] { progress.show(); };
  fields.maxPopulateLookupFields = [&](int32_t& count) {
    total = count;
    progress.setTotal(count);
  };
  fields.incPopulateLookupFields = [&](int32_t& counter) {
    done = counter;
    progress.setDone(counter);
    if (stepped) stepped(progress, counter);
  };
  fields.endPopulateLookupFields = [&] { ended = true; };

  // The progress dialog is modal over this one; Fill can't start a second
  // run from an event the first one lets through.
  fill_->setEnabled(false);
  fields.populateLookupFieldValuesForAllClients();
  // A fill stopped by a failure leaves the busy pointer on.
  if (qb::screen().MousePointer() != 0) qb::screen().setMousePointer(0);
  progress.finish();
  progress.close();
  fill_->setEnabled(true);
  if (ended) {
    result_->setText(QString("Filled %1 for %2 clients.").arg(columnName).arg(total));
  } else if (total > 0) {
    result_->setText(QString("The fill stopped after %1 of %2 clients; the values written stay.")
                         .arg(done)
                         .arg(total));
  } else {
    result_->setText("Nothing to fill: the records have no clients.");
  }
}

void openLookupFillDialog(ClientWindow& window) {
  if (window.component() == nullptr) return;
  auto* dialog = new LookupFillDialog(&window);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->open();
}

}  // namespace qb::desk
