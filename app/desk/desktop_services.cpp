#include "app/desk/desktop_services.h"

#include "gui/desktop_shell.h"
#include "gui/file_dialog_service.h"
#include "gui/form_dialogs.h"
#include "services/util/standard_form_helper.h"

namespace qb::desk {

DesktopServices::DesktopServices(QWidget* window, std::ostream* unattendedLog)
    : formDialogs_(std::make_unique<gui::FormDialogs>(window)),
      fileDialogService_(std::make_unique<gui::FileDialogService>(window)),
      shell_(std::make_shared<gui::DesktopShell>()),
      formHelper_(std::make_shared<StandardFormHelper>()) {
  if (unattendedLog != nullptr) shell_->setUnattended(unattendedLog);
  installShell(shell_);
}

DesktopServices::~DesktopServices() { installShell(nullptr); }

}  // namespace qb::desk
