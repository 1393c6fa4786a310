#include "services/controls/form.h"

#include "services/controls/platform.h"

namespace qb {

Form::Form(std::string name) : ContainerControl(std::move(name)) { setVisible(false); }

Form::~Form() = default;

void Form::Show(int16_t modal, OwnerForm* owner) {
  loaded_ = true;
  owner_ = owner;
  setVisible(true);
  if (modal != 1) return;
  ++modalDepth_;
  runModalForm(*this, owner);
  --modalDepth_;
}

void Form::Hide() { setVisible(false); }

void Form::Unload() {
  Hide();
  if (!loaded_) return;
  loaded_ = false;
  Unloaded.raise();
}

Control* Form::ActiveControl() const {
  Control* focused = focusedControl();
  return focused != nullptr && formOf(*focused) == this ? focused : nullptr;
}

Form* formOf(const Control& control) {
  for (ContainerControl* container = control.Container(); container != nullptr;
       container = container->Container()) {
    if (auto* form = dynamic_cast<Form*>(container)) return form;
  }
  return nullptr;
}

void raiseKeyPress(Control& control, int16_t& keyAscii) {
  Form* form = formOf(control);
  if (form != nullptr && form->KeyPreview()) {
    form->KeyPress.raise(keyAscii);
    if (keyAscii == 0) return;
  }
  control.KeyPress.raise(keyAscii);
}

}  // namespace qb
