#pragma once
// Icons from the desktop's icon theme. The control models name their
// pictures by icon theme name ("folder-open", "application-pdf"); the GUI
// looks them up here. A name the theme lacks falls back to the generic icon
// of its file type, then to a drawn page, so no row or node is ever blank.

#include <QIcon>
#include <string>

#include "services/controls/picture.h"

namespace qb::gui {

// Sets an icon theme when the platform gives none (the offscreen platform, a
// bare X server): Adwaita from the system's icon folders, hicolor behind it.
// Does nothing when the desktop names a theme.
void ensureIconTheme();

// The theme icon of that name, else its file type's generic icon, else the
// drawn page. Never null.
QIcon themeIcon(const std::string& name);

// The icon of a picture: a theme icon by name or an image file. An empty
// picture, or a file that can't be read, gives the drawn page.
QIcon iconFor(const Picture& picture);

// A plain page with a folded corner, drawn, for a file without an icon.
QIcon drawnPageIcon();

// The icon's shape in one colour, as the desktop draws symbolic icons on
// buttons (the theme's own action icons are pale greys that read as
// disabled). The disabled look is left to the style.
QIcon monochromeIcon(const QIcon& icon, const QColor& color);

}  // namespace qb::gui
