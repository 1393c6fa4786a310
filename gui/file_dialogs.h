#pragma once
// File dialogs that remember, for each of their purposes ("database",
// "documents", ...), the folder the user last chose in and the size and
// column layout the dialog was left with, so that the next one starts there
// and looks the same. The first one starts in a folder the caller gives, at
// a size where the columns show whole names, sizes and dates.

#include <QFileDialog>
#include <QStringList>

namespace qb::gui {

// Runs the dialog (modal) for a purpose and returns the paths chosen, none
// when it was cancelled. fallbackFolder: where to start when nothing is
// remembered for that purpose, or the remembered folder is gone.
QStringList runFileDialog(QFileDialog& dialog, const QString& purpose,
                          const QString& fallbackFolder);

// The folder a dialog for that purpose starts in.
QString startFolder(const QString& purpose, const QString& fallbackFolder);

}  // namespace qb::gui
