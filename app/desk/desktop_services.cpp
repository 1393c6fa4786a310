#include "app/desk/desktop_services.h"

#include "gui/desktop_shell.h"
#include "gui/file_dialogs.h"
#include "gui/form_dialogs.h"
#include "services/util/standard_form_helper.h"

namespace qb::desk {

DesktopServices::DesktopServices(QWidget* window, std::ostream* unattendedLog)
    : formDialogs_(std::make_unique<gui::FormDialogs>(window)),
      fileDialogs_(std::make_unique<gui::FileDialogs>(window)),
      shell_(std::make_shared<gui::DesktopShell>()),
      formHelper_(std::make_shared<StandardFormHelper>()) {
  if (unattendedLog != nullptr) shell_->setUnattended(unattendedLog);
  installShell(shell_);
}

DesktopServices::~DesktopServices() { installShell(nullptr); }

}  // namespace qb::desk
