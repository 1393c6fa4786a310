#include "gui/theme_icons.h"

#include <QFile>
#include <QHash>
#include <QMimeDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <algorithm>

// The embedded icons' resource is registered from the global namespace, as
// Qt's resource system requires; the GUI library is static, so the program
// links it in through this call.
static void registerShippedIcons() {
  static const bool registered = [] {
    Q_INIT_RESOURCE(fallback_icons);
    return true;
  }();
  (void)registered;
}

namespace qb::gui {

namespace {

const QString kShippedFolder = QStringLiteral(":/quillbox/icons/");
// The sizes a shipped icon holds.
constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 96};

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

void ensureIconTheme() { registerShippedIcons(); }

bool desktopHasIconTheme() {
  const QString theme = QIcon::themeName();
  return !theme.isEmpty() && theme != "hicolor";
}

QIcon shippedIcon(const std::string& name) {
  registerShippedIcons();
  const QString file = QString::fromStdString(name);
  const QString drawing = kShippedFolder + "scalable/" + file + ".svg";
  if (!QFile::exists(drawing)) return QIcon();
  // The set's pixel drawings where it has them, the SVG drawn at the other
  // sizes (the larger ones for high-resolution screens and large views).
  const QIcon scalable(drawing);
  QIcon icon;
  for (int size : kIconSizes) {
    const QString drawn = kShippedFolder + QString("%1x%1/").arg(size) + file + ".png";
    if (QFile::exists(drawn)) {
      icon.addFile(drawn, QSize(size, size));
    } else {
      icon.addPixmap(scalable.pixmap(QSize(size, size), 1.0));
    }
  }
  return icon;
}

QIcon programIcon() { return shippedIcon("quillbox"); }

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
  // Keyed by theme too: a desktop may change its theme while the program runs.
  static QHash<QString, QIcon> cache;
  const bool useTheme = desktopHasIconTheme();
  const QString key =
      (useTheme ? QIcon::themeName() : QString()) + '/' + QString::fromStdString(name);
  auto found = cache.constFind(key);
  if (found != cache.constEnd()) return *found;
  QIcon icon;
  if (!name.empty()) {
    // Each name is asked of the theme, then of the shipped set, before the
    // next, more generic name is tried.
    for (const QString& candidate : candidateNames(QString::fromStdString(name))) {
      if (useTheme) icon = QIcon::fromTheme(candidate);
      if (icon.isNull()) icon = shippedIcon(candidate.toStdString());
      if (!icon.isNull()) break;
    }
  }
  if (icon.isNull()) icon = drawnPageIcon();
  cache.insert(key, icon);
  return icon;
}

namespace {

// A red disc with a white cross, for a desktop that has no emblem of the
// name asked.
QIcon drawnCrossEmblem() {
  static const QIcon icon = [] {
    QIcon drawn;
    for (int size : {8, 12, 16, 24, 32}) {
      QPixmap pixmap(size, size);
      pixmap.fill(Qt::transparent);
      QPainter painter(&pixmap);
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(QPen(QColor(140, 20, 20), 1));
      painter.setBrush(QColor(204, 0, 0));
      painter.drawEllipse(QRectF(0.5, 0.5, size - 1, size - 1));
      painter.setPen(QPen(Qt::white, std::max(1.5, size / 8.0), Qt::SolidLine, Qt::RoundCap));
      const qreal in = size * 0.3;
      painter.drawLine(QPointF(in, in), QPointF(size - in, size - in));
      painter.drawLine(QPointF(size - in, in), QPointF(in, size - in));
      painter.end();
      drawn.addPixmap(pixmap);
    }
    return drawn;
  }();
  return icon;
}

QIcon pictureIcon(const Picture& picture) {
  if (!picture.iconName.empty()) return themeIcon(picture.iconName);
  if (!picture.filePath.empty()) {
    QIcon icon(QString::fromStdString(picture.filePath));
    if (!icon.availableSizes().isEmpty()) return icon;
  }
  return drawnPageIcon();
}

}  // namespace

QIcon emblemIcon(const std::string& name) {
  QIcon icon;
  if (desktopHasIconTheme()) icon = QIcon::fromTheme(QString::fromStdString(name));
  if (icon.isNull()) icon = shippedIcon(name);
  return icon.isNull() ? drawnCrossEmblem() : icon;
}

QIcon iconWithEmblem(const QIcon& icon, const QIcon& emblem) {
  QIcon marked;
  for (int size : {16, 22, 24, 32, 48, 64, 96, 128}) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPixmap base = icon.pixmap(QSize(size, size), 1.0);
    painter.drawPixmap((size - base.width()) / 2, (size - base.height()) / 2, base);
    // Large enough to read on a small icon, small enough to leave a large
    // one recognisable.
    const int edge = size <= 24 ? (size * 5 + 7) / 8 : size / 2;
    const QPixmap mark = emblem.pixmap(QSize(edge, edge), 1.0);
    painter.drawPixmap(QRect(size - edge, size - edge, edge, edge), mark);
    painter.end();
    marked.addPixmap(pixmap);
  }
  return marked;
}

QIcon iconFor(const Picture& picture) {
  if (picture.emblemName.empty()) return pictureIcon(picture);
  // Composed once for each icon, emblem and theme: a list asks at every paint.
  static QHash<QString, QIcon> cache;
  const QString key = QIcon::themeName() + '/' + QString::fromStdString(picture.iconName) + '/' +
                      QString::fromStdString(picture.filePath) + '/' +
                      QString::fromStdString(picture.emblemName);
  auto found = cache.constFind(key);
  if (found != cache.constEnd()) return *found;
  const QIcon icon = iconWithEmblem(pictureIcon(picture), emblemIcon(picture.emblemName));
  cache.insert(key, icon);
  return icon;
}

}  // namespace qb::gui
