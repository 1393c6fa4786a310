#include "gui/form_dialogs.h"

#include <QApplication>
#include <QHash>
#include <QTimer>
#include <memory>

#include "dialogs/frm_doc_properties.h"
#include "dialogs/frm_edit_doc_category.h"
#include "dialogs/frm_find_document.h"
#include "gui/doc_properties_dialog.h"
#include "gui/edit_doc_category_dialog.h"
#include "gui/find_document_dialog.h"
#include "gui/widget_owner_form.h"
#include "services/controls/platform.h"

namespace qb::gui {

namespace {

QHash<const Form*, QWidget*>& openDialogs() {
  static QHash<const Form*, QWidget*> dialogs;
  return dialogs;
}

// The dialog of each kind of form.
std::unique_ptr<FormDialog> dialogFor(Form& form, QWidget* parent) {
  if (auto* properties = dynamic_cast<frmDocProperties*>(&form))
    return std::make_unique<DocPropertiesDialog>(*properties, parent);
  if (auto* find = dynamic_cast<frmFindDocument*>(&form))
    return std::make_unique<FindDocumentDialog>(*find, parent);
  if (auto* category = dynamic_cast<frmEditDocCategory*>(&form))
    return std::make_unique<EditDocCategoryDialog>(*category, parent);
  return nullptr;
}

}  // namespace

QWidget* dialogOf(const Form* form) { return openDialogs().value(form, nullptr); }

FormDialogs::FormDialogs(QWidget* window) : window_(window) {
  installFormService([this](Form& form, OwnerForm* owner) {
    QWidget* parent = widgetOf(owner);
    if (parent == nullptr) parent = QApplication::activeModalWidget();
    if (parent == nullptr) parent = window_.data();
    run(form, parent);
  });
}

FormDialogs::~FormDialogs() { installFormService({}); }

void FormDialogs::run(Form& form, QWidget* parent) {
  std::unique_ptr<FormDialog> dialog = dialogFor(form, parent);
  if (!dialog || !form.Visible()) return;
  openDialogs().insert(&form, dialog.get());
  if (shown_) {
    QTimer::singleShot(0, dialog.get(), [this, &form, raw = dialog.get()] {
      if (shown_) shown_(*raw, form);
    });
  }
  dialog->exec();
  openDialogs().remove(&form);
}

}  // namespace qb::gui
