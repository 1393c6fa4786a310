#pragma once
// FormDialogs: the GUI's form service. While it lives, a form shown modally
// (Form::Show(1)) runs as a real modal Qt dialog of its kind, owned by the
// window of its owner form (the host's window, or the dialog of the form
// that showed it), until the form hides. A form of a kind that has no
// dialog returns at once.

#include <QPointer>
#include <functional>

class QDialog;
class QWidget;

namespace qb {
class Form;
}

namespace qb::gui {

class FormDialogs {
 public:
  // window: the parent of dialogs whose owner has no window of its own.
  explicit FormDialogs(QWidget* window);
  ~FormDialogs();
  FormDialogs(const FormDialogs&) = delete;
  FormDialogs& operator=(const FormDialogs&) = delete;

  // Called once each dialog is on screen, before the user acts: tests take
  // screenshots and act as the user here.
  using ShownHook = std::function<void(QDialog& dialog, Form& form)>;
  void setShownHook(ShownHook hook) { shown_ = std::move(hook); }

 private:
  void run(Form& form, QWidget* parent);

  QPointer<QWidget> window_;
  ShownHook shown_;
};

// The dialog showing a form now, nullptr when none does.
QWidget* dialogOf(const Form* form);

}  // namespace qb::gui
