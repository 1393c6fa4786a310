#include "gui/theme_icons.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QMimeDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStandardPaths>

namespace qb::gui {

namespace {

// The icon folders of the system's data directories.
QStringList systemIconFolders() {
  QStringList folders;
  for (const QString& data :
       QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
    folders << data + "/icons";
  }
  folders << "/usr/share/icons"
          << "/usr/local/share/icons";
  QStringList existing;
  for (const QString& folder : folders) {
    if (QDir(folder).exists() && !existing.contains(folder)) existing << folder;
  }
  return existing;
}

QPixmap drawnPage(int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal margin = size / 8.0;
  const qreal fold = size / 4.0;
  const QRectF page(margin + 0.5, 0.5, size - 2 * margin - 1, size - 1);
  QPainterPath outline;
  outline.moveTo(page.topLeft());
  outline.lineTo(page.right() - fold, page.top());
  outline.lineTo(page.right(), page.top() + fold);
  outline.lineTo(page.bottomRight());
  outline.lineTo(page.bottomLeft());
  outline.closeSubpath();
  painter.setPen(QPen(QColor(120, 120, 120), 1));
  painter.setBrush(QColor(250, 250, 250));
  painter.drawPath(outline);
  QPainterPath corner;
  corner.moveTo(page.right() - fold, page.top());
  corner.lineTo(page.right() - fold, page.top() + fold);
  corner.lineTo(page.right(), page.top() + fold);
  painter.setBrush(QColor(215, 215, 215));
  painter.drawPath(corner);
  // A few lines of text on the larger page.
  if (size >= 24) {
    painter.setPen(QPen(QColor(170, 170, 170), 1));
    for (qreal y = page.top() + fold + 3; y < page.bottom() - 3; y += 4) {
      painter.drawLine(QPointF(page.left() + 3, y), QPointF(page.right() - 3, y));
    }
  }
  return pixmap;
}

// The names to try for an icon: the name itself, the generic icon of the file
// type it names ("application-pdf" is application/pdf), the generic icon of
// its media group, the generic file.
QStringList candidateNames(const QString& name) {
  QStringList names{name};
  const int dash = name.indexOf('-');
  if (dash > 0) {
    QString mimeName = name;
    mimeName[dash] = '/';
    QMimeType type = QMimeDatabase().mimeTypeForName(mimeName);
    if (type.isValid()) names << type.iconName() << type.genericIconName();
    names << name.left(dash) + "-x-generic";
  }
  names << "text-x-generic";
  names.removeDuplicates();
  return names;
}

}  // namespace

void ensureIconTheme() {
  const bool offscreen = QGuiApplication::platformName() == "offscreen";
  if (!QIcon::themeName().isEmpty() && !offscreen) return;
  QStringList paths = QIcon::themeSearchPaths();
  for (const QString& folder : systemIconFolders()) {
    if (!paths.contains(folder)) paths << folder;
  }
  QIcon::setThemeSearchPaths(paths);
  QIcon::setFallbackThemeName("hicolor");
  for (const QString& folder : paths) {
    if (QFileInfo::exists(folder + "/Adwaita/index.theme")) {
      QIcon::setThemeName("Adwaita");
      return;
    }
  }
  QIcon::setThemeName("hicolor");
}

QIcon drawnPageIcon() {
  static const QIcon icon = [] {
    QIcon drawn;
    for (int size : {16, 24, 32, 48}) drawn.addPixmap(drawnPage(size));
    return drawn;
  }();
  return icon;
}

QIcon monochromeIcon(const QIcon& icon, const QColor& color) {
  QIcon tinted;
  for (int size : {16, 24, 32}) {
    QPixmap pixmap = icon.pixmap(size);
    if (pixmap.isNull()) continue;
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    painter.end();
    tinted.addPixmap(pixmap);
  }
  return tinted.isNull() ? icon : tinted;
}

QIcon themeIcon(const std::string& name) {
  static QHash<QString, QIcon> cache;
  const QString key = QString::fromStdString(name);
  auto found = cache.constFind(key);
  if (found != cache.constEnd()) return *found;
  QIcon icon;
  if (!key.isEmpty()) {
    for (const QString& candidate : candidateNames(key)) {
      icon = QIcon::fromTheme(candidate);
      if (!icon.isNull()) break;
    }
  }
  if (icon.isNull()) icon = drawnPageIcon();
  cache.insert(key, icon);
  return icon;
}

QIcon iconFor(const Picture& picture) {
  if (!picture.iconName.empty()) return themeIcon(picture.iconName);
  if (!picture.filePath.empty()) {
    QIcon icon(QString::fromStdString(picture.filePath));
    if (!icon.availableSizes().isEmpty()) return icon;
  }
  return drawnPageIcon();
}

}  // namespace qb::gui
