#pragma once
// WidgetOwnerForm: the host form that owns dialogs and messages, over the
// QWidget of the host's window. Its window handle is one of the platform's
// handles, distinct from every control's.

#include <QPointer>
#include <QWidget>

#include "gui/form_dialogs.h"
#include "services/controls/form.h"
#include "services/controls/platform.h"
#include "services/host/locale_reference.h"

namespace qb::gui {

class WidgetOwnerForm : public OwnerForm {
 public:
  explicit WidgetOwnerForm(QWidget* widget) : widget_(widget), hWnd_(newWindowHandle()) {}

  int64_t hWnd() const override { return hWnd_; }
  // The window, nullptr once it is gone.
  QWidget* widget() const { return widget_; }

 private:
  QPointer<QWidget> widget_;
  int64_t hWnd_;
};

// The widget of an owner form: the host's window, or the dialog that shows a
// form; nullptr when the owner has none.
inline QWidget* widgetOf(OwnerForm* owner) {
  if (auto* form = dynamic_cast<WidgetOwnerForm*>(owner)) return form->widget();
  if (auto* dialogForm = dynamic_cast<Form*>(owner)) return dialogOf(dialogForm);
  return nullptr;
}

}  // namespace qb::gui
