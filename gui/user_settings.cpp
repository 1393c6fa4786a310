#include "gui/user_settings.h"

namespace qb::gui {

std::unique_ptr<QSettings> userSettings() {
  return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, "quillbox",
                                     "quillbox-desk");
}

}  // namespace qb::gui
