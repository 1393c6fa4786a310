#include "gui/form_dialog.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "gui/shade_line_widget.h"
#include "services/controls/form.h"

namespace qb::gui {

FormDialog::FormDialog(Form& form, QWidget* parent) : QDialog(parent), form_(form) {
  setWindowTitle(QString::fromStdString(form.Caption()));
  setModal(true);
  observer_ = form_.addObserver([this](const Control&, ControlChange change) {
    if (change == ControlChange::Visibility && !form_.Visible() && isVisible()) done(Accepted);
    if (change == ControlChange::Text) setWindowTitle(QString::fromStdString(form_.Caption()));
  });
}

FormDialog::~FormDialog() { form_.removeObserver(observer_); }

QVBoxLayout* FormDialog::columnUnderHeader(ShadeLine& header) {
  auto* layout = new QVBoxLayout(this);
  ShadeLineWidget* heading = binder_.header(header, this);
  heading->setMinimumHeight(fontMetrics().height() * 2);
  layout->addWidget(heading);
  return layout;
}

void FormDialog::reject() {
  // The form decides; when it stays shown the dialog stays open.
  form_.userClose();
}

void FormDialog::closeEvent(QCloseEvent* event) {
  form_.userClose();
  if (form_.Visible()) {
    event->ignore();
  } else {
    event->accept();
  }
}

}  // namespace qb::gui
