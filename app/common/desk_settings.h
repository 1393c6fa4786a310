#pragma once
// The desktop program's settings file as the command-line tool reads it:
// quillbox/quillbox-desk.conf in the user's XDG config folder, an INI file
// that the desktop program writes through Qt (gui/user_settings.h). The tool
// only reads it, for the database the desktop program opened last.

#include <string>

namespace qb::hosts {

// $XDG_CONFIG_HOME, else $HOME/.config; "" when neither is set.
std::string userConfigFolder();

// The database the desktop program opened last, from the settings file under
// configFolder; "" when there is none, or the file is gone.
std::string lastDeskDatabase(const std::string& configFolder = userConfigFolder());

// An INI value as Qt writes it: quoted when it holds separators, with \" and
// \\ escaped, and "@" doubled at the start.
std::string iniValue(const std::string& written);

}  // namespace qb::hosts
