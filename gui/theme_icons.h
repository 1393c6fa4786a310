#pragma once
// Icons by freedesktop icon name. The control models name their pictures by
// icon name ("folder-open", "application-pdf"), and the GUI asks for button
// and menu icons the same way. The desktop's icon theme answers first; the
// icons the program ships (SVG, embedded) answer for a desktop without a
// theme and for names the theme lacks; a file type's generic icon, then a
// drawn page, come last, so no row, node or button is ever blank.

#include <QIcon>
#include <string>

#include "services/controls/picture.h"

namespace qb::gui {

// The names of the dialog buttons' icons. The program ships each of them.
namespace iconNames {
constexpr const char* kOpen = "document-open";
constexpr const char* kBrowse = "folder";
constexpr const char* kFind = "edit-find";
constexpr const char* kClose = "window-close";
constexpr const char* kCancel = "dialog-cancel";
constexpr const char* kOk = "dialog-ok";
constexpr const char* kGoTo = "go-jump";
}  // namespace iconNames

// Makes the shipped icons available. The desktop's icon theme, or its lack
// of one, is left as it is. Call once after the QApplication is made.
void ensureIconTheme();

// True when the desktop names an icon theme of its own: a name other than
// none and the bare "hicolor" base.
bool desktopHasIconTheme();

// The icon of that name: the desktop theme's, else the shipped one, else the
// theme's or the shipped generic icon of its file type or media group, else
// the drawn page. Never null.
QIcon themeIcon(const std::string& name);

// The shipped icon of that name; a null icon when the program ships none.
QIcon shippedIcon(const std::string& name);

// The program's own icon, for its windows.
QIcon programIcon();

// The icon of a picture: an icon by name or an image file, with its emblem
// over the lower right corner when it has one. An empty picture, or a file
// that can't be read, gives the drawn page.
QIcon iconFor(const Picture& picture);

// An emblem by name: the desktop theme's, else the shipped one, else a drawn
// red cross. Never null.
QIcon emblemIcon(const std::string& name);

// The icon with the emblem drawn over its lower right corner, at every size
// a list or a dialog asks for.
QIcon iconWithEmblem(const QIcon& icon, const QIcon& emblem);

// A plain page with a folded corner, drawn, for a file without an icon.
QIcon drawnPageIcon();

// The icon's shape in one colour, as the desktop draws symbolic icons on
// buttons (the theme's own action icons are pale greys that read as
// disabled). The disabled look is left to the style.
QIcon monochromeIcon(const QIcon& icon, const QColor& color);

}  // namespace qb::gui
