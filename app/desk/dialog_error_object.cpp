#include "app/desk/dialog_error_object.h"

#include <QMessageBox>

namespace qb::desk {

DialogErrorObject::DialogErrorObject(QWidget* window, QString title)
    : ConsoleErrorObject(&report_, 2), window_(window), title_(std::move(title)) {}

void DialogErrorObject::setUnattended(std::ostream* log) {
  unattended_ = true;
  log_ = log;
}

void DialogErrorObject::showError() {
  // The console report, taken apart: its first line for the box, the rest
  // (source and trace) for the details.
  report_.str("");
  ConsoleErrorObject::showError();
  const std::string report = report_.str();
  if (unattended_) {
    if (log_) *log_ << report << std::flush;
    return;
  }
  const QString text = QString::fromStdString(report);
  const qsizetype lineEnd = text.indexOf('\n');
  QMessageBox box(QMessageBox::Critical, title_, text.left(lineEnd), QMessageBox::Ok,
                  window_.data());
  box.setInformativeText("The operation was stopped.");
  box.setDetailedText(text.mid(lineEnd + 1));
  box.exec();
}

}  // namespace qb::desk
