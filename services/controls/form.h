#pragma once
// Form: a dialog window over control models. A dialog derives from Form and
// holds its controls as members; Show(1) shows it modally through this
// thread's form service (platform.h): the GUI runs a real dialog bound to the
// form's controls, a test installs a callback in which it acts as the user.
// The modal call returns when the form has been hidden or unloaded by its own
// code (a button's handler), or when the service returns. Without a service a
// modal Show returns at once, the form left as the code set it up (a
// command-line host reads it).
//
// A form is the owner of the messages and dialogs it shows: it is an
// OwnerForm with its own window handle.

#include <cstdint>
#include <string>

#include "services/controls/container_control.h"
#include "services/host/locale_reference.h"

namespace qb {

class Form : public ContainerControl, public OwnerForm {
 public:
  explicit Form(std::string name);
  ~Form() override;

  int64_t hWnd() const override { return Control::hWnd(); }

  // Shows the form (Visible True). modal 1: through the form service, and
  // returns when the form is hidden or the service returns; owner: the
  // window it stands over. The form counts as loaded from here on.
  void Show(int16_t modal = 0, OwnerForm* owner = nullptr);
  // Hides the form; a modal Show returns.
  void Hide();
  // Hides the form, raises Unload and drops the loaded state.
  void Unload();
  bool loaded() const { return loaded_; }
  // True while a modal Show of this form runs.
  bool showingModally() const { return modalDepth_ > 0; }
  OwnerForm* owner() const { return owner_; }

  // With KeyPreview the form's KeyPress sees every key typed on its
  // controls before the control does (raiseKeyPress).
  bool KeyPreview() const { return keyPreview_; }
  void setKeyPreview(bool value) { keyPreview_ = value; }
  // The control of this form that has the keyboard focus, nullptr for none.
  Control* ActiveControl() const;

  // What the window's close box or the Escape key does. The default hides
  // the form; a dialog makes it one of its own buttons.
  virtual void userClose() { Hide(); }

  Event<void()> Unloaded;

 private:
  bool loaded_ = false;
  bool keyPreview_ = false;
  int modalDepth_ = 0;
  OwnerForm* owner_ = nullptr;
};

// The form a control sits on (through its containers), nullptr for none.
Form* formOf(const Control& control);
// A key typed on a control: the form's KeyPress first when the form has
// KeyPreview, then the control's, unless a handler swallowed it (set it to
// 0). keyAscii holds what is left.
void raiseKeyPress(Control& control, int16_t& keyAscii);

}  // namespace qb
