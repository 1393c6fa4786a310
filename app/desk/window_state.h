#pragma once
// What the host window keeps between runs, in the user's settings
// (gui/user_settings.h): its size and place, and the database last open, which
// a start without --db opens again.

#include <QSize>
#include <QString>

class QWidget;

namespace qb::desk {

// Puts the window where and as large as it was left; firstSize the first
// time.
void restoreWindowGeometry(QWidget& window, const QSize& firstSize);
void saveWindowGeometry(const QWidget& window);

// The database last opened, "" when none was or its file is gone.
QString lastDatabase();
void rememberDatabase(const QString& path);

}  // namespace qb::desk
