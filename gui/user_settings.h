#pragma once
// The desktop program's own settings for its user, kept between runs in the
// XDG config folder ($XDG_CONFIG_HOME/quillbox/quillbox-desk.conf): the
// window's size and place, the database last open, the folders and the
// layouts the file dialogs were left with. What the component keeps per user
// stays in the client database.

#include <QSettings>
#include <memory>

namespace qb::gui {

std::unique_ptr<QSettings> userSettings();

}  // namespace qb::gui
