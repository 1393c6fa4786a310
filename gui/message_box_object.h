#pragma once
// MessageBoxObject: the host's message object (MsgboxClass) with Qt message
// boxes, modal over the owner form's window. messageStyle picks the icon: 3
// (a failure while loading) critical, 4 (a refusal, a question) warning or
// question, 10 (a protected category) information. askMessage offers Yes
// and No; its result is 0 for Yes and 1 for No.
//
// Unattended (for screenshots and tests) it shows no dialog: messages are
// written to a stream and every question gets a fixed answer.

#include <QPointer>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "services/host/message_object.h"

namespace qb::gui {

class MessageBoxObject : public MessageObject {
 public:
  // window: the parent of the boxes when the owner form is not a widget's;
  // title: the boxes' title (the product's name).
  MessageBoxObject(QWidget* window, QString title);

  void showMessage(const std::string& text, int16_t messageStyle, OwnerForm* owner) override;
  void askMessage(const std::string& text, int16_t messageStyle, OwnerForm* owner,
                  int32_t& result) override;

  // No dialogs from now on: texts go to log (when given), questions get
  // answer (1, no, unless told).
  void setUnattended(std::ostream* log, int32_t answer = 1);
  // Every text shown or asked, in order.
  const std::vector<std::string>& texts() const { return texts_; }

 private:
  QWidget* parentFor(OwnerForm* owner) const;

  QPointer<QWidget> window_;
  QString title_;
  bool unattended_ = false;
  std::ostream* log_ = nullptr;
  int32_t answer_ = 1;
  std::vector<std::string> texts_;
};

}  // namespace qb::gui
