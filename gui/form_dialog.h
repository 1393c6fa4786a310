#pragma once
// FormDialog: the Qt dialog that shows a form model. It closes when the form
// hides (the form's own buttons decide), and the window's close box and the
// Escape key do what the form says (Form::userClose). Each kind of form has
// a subclass that builds its widgets with a FormBinder.

#include <QDialog>

#include "gui/form_binder.h"

class QVBoxLayout;

namespace qb {
class Form;
}

namespace qb::gui {

class FormDialog : public QDialog {
 public:
  FormDialog(Form& form, QWidget* parent);
  ~FormDialog() override;

  Form& form() const { return form_; }

  // Escape and the close box.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  FormBinder& binder() { return binder_; }
  // The dialog's column of widgets, opened by the form's shaded header.
  QVBoxLayout* columnUnderHeader(ShadeLine& header);

 private:
  Form& form_;
  FormBinder binder_;
  int32_t observer_ = 0;
};

}  // namespace qb::gui
