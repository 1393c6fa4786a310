#pragma once
// The demo host's error object: it keeps the trace stack like the console
// host's and shows a recorded failure in a dialog, the error's number and
// description with the trace under "Show Details". The user's answer is
// always "leave the procedure" (2). Unattended it writes the report to a
// stream instead.

#include <QPointer>
#include <QString>
#include <QWidget>
#include <ostream>
#include <sstream>

#include "services/errors/console_error_object.h"

namespace qb::desk {

class DialogErrorObject : public ConsoleErrorObject {
 public:
  DialogErrorObject(QWidget* window, QString title);

  void showError() override;
  // No dialogs from now on: reports go to log (when given).
  void setUnattended(std::ostream* log);

 private:
  std::ostringstream report_;
  QPointer<QWidget> window_;
  QString title_;
  bool unattended_ = false;
  std::ostream* log_ = nullptr;
};

}  // namespace qb::desk
