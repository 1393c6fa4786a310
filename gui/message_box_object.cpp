#include "gui/message_box_object.h"

#include <QMessageBox>

#include "gui/widget_owner_form.h"

namespace qb::gui {

namespace {

QMessageBox::Icon iconOf(int16_t messageStyle, bool question) {
  switch (messageStyle) {
    case 3:
      return QMessageBox::Critical;
    case 4:
      return question ? QMessageBox::Question : QMessageBox::Warning;
    case 10:
      return QMessageBox::Information;
    default:
      return question ? QMessageBox::Question : QMessageBox::Information;
  }
}

}  // namespace

MessageBoxObject::MessageBoxObject(QWidget* window, QString title)
    : window_(window), title_(std::move(title)) {}

void MessageBoxObject::setUnattended(std::ostream* log, int32_t answer) {
  unattended_ = true;
  log_ = log;
  answer_ = answer;
}

QWidget* MessageBoxObject::parentFor(OwnerForm* owner) const {
  QWidget* widget = widgetOf(owner);
  return widget ? widget : window_.data();
}

void MessageBoxObject::showMessage(const std::string& text, int16_t messageStyle,
                                   OwnerForm* owner) {
  texts_.push_back(text);
  if (unattended_) {
    if (log_) *log_ << text << "\n";
    return;
  }
  QMessageBox box(iconOf(messageStyle, false), title_, QString::fromStdString(text),
                  QMessageBox::Ok, parentFor(owner));
  box.exec();
}

void MessageBoxObject::askMessage(const std::string& text, int16_t messageStyle, OwnerForm* owner,
                                  int32_t& result) {
  texts_.push_back(text);
  if (unattended_) {
    if (log_) *log_ << text << "\n";
    result = answer_;
    return;
  }
  QMessageBox box(iconOf(messageStyle, true), title_, QString::fromStdString(text),
                  QMessageBox::Yes | QMessageBox::No, parentFor(owner));
  box.setDefaultButton(QMessageBox::Yes);
  result = box.exec() == QMessageBox::Yes ? 0 : 1;
}

}  // namespace qb::gui
