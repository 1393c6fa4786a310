#include "gui/ole_drag_drop.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QFontMetrics>
#include <QIcon>
#include <QMimeData>
#include <QPainter>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "gui/input_codes.h"
#include "gui/input_forwarder.h"
#include "services/controls/control.h"

namespace qb::gui {

namespace {

bool holdsFiles(const DataObject& data) { return data.GetFormat(CF_HDROP); }

// The action a drop of data with this effect takes, of those the source
// offers; IgnoreAction refuses. Files are taken as a copy, or as a link
// when the source offers no copy, and never moved: the source would remove
// what it dragged.
Qt::DropAction actionFor(int32_t effect, const DataObject& data, Qt::DropActions possible) {
  if (effect == DROPEFFECT_NONE) return Qt::IgnoreAction;
  if (holdsFiles(data)) {
    if (possible & Qt::CopyAction) return Qt::CopyAction;
    if (possible & Qt::LinkAction) return Qt::LinkAction;
    return Qt::IgnoreAction;
  }
  const Qt::DropAction wanted = effect == DROPEFFECT_MOVE ? Qt::MoveAction : Qt::CopyAction;
  return possible & wanted ? wanted : Qt::IgnoreAction;
}

int32_t effectOf(Qt::DropAction action) {
  switch (action) {
    case Qt::CopyAction:
    case Qt::LinkAction:
      return DROPEFFECT_COPY;
    case Qt::MoveAction:
      return DROPEFFECT_MOVE;
    default:
      return DROPEFFECT_NONE;
  }
}

Qt::DropActions actionsOf(int32_t allowedEffects) {
  Qt::DropActions actions;
  if (allowedEffects & DROPEFFECT_COPY) actions |= Qt::CopyAction;
  if (allowedEffects & DROPEFFECT_MOVE) actions |= Qt::MoveAction;
  return actions;
}

}  // namespace

OleDragDrop::OleDragDrop(Control& control, QWidget& reference, InputForwarder& input)
    : control_(control), reference_(reference), input_(input) {}

OleDragDrop::~OleDragDrop() { *alive_ = false; }

DataObject OleDragDrop::dataObjectOf(const QMimeData& mime) {
  DataObject data;
  if (mime.hasUrls()) {
    for (const QUrl& url : mime.urls()) {
      if (url.isLocalFile()) data.Files().Add(url.toLocalFile().toStdString());
    }
    if (data.Files().Count() > 0) data.SetData(CF_HDROP);
  }
  if (mime.hasText() && !mime.hasUrls()) data.SetData(vbCFText);
  return data;
}

QPixmap OleDragDrop::dragPicture(const QIcon& icon, const QString& text) {
  const QFont font = QApplication::font();
  const QFontMetrics metrics(font);
  const int iconSize = 32;
  const QString shown = metrics.elidedText(text, Qt::ElideRight, 260);
  QPixmap picture(iconSize + 8 + metrics.horizontalAdvance(shown) + 8,
                  std::max(iconSize, metrics.height()) + 4);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  icon.paint(&painter, QRect(0, 2, iconSize, iconSize));
  const QRect label(iconSize + 4, (picture.height() - metrics.height()) / 2 - 2,
                    picture.width() - iconSize - 4, metrics.height() + 4);
  QColor back = QApplication::palette().color(QPalette::Highlight);
  back.setAlpha(200);
  painter.setPen(Qt::NoPen);
  painter.setBrush(back);
  painter.drawRoundedRect(label, 4, 4);
  painter.setPen(QApplication::palette().color(QPalette::HighlightedText));
  painter.setFont(font);
  painter.drawText(label, Qt::AlignCenter, shown);
  return picture;
}

void OleDragDrop::changed(std::optional<QPoint> point, int32_t effect) {
  point_ = point;
  effect_ = effect;
  if (onDragChanged) onDragChanged();
}

bool OleDragDrop::over(QWidget& source, QDragMoveEvent& event, int16_t state) {
  if (control_.OLEDropMode() != vbOLEDropManual || event.mimeData() == nullptr) return false;
  data_ = dataObjectOf(*event.mimeData());
  // Files are proposed as a copy; anything else is refused unless the
  // control's handler says otherwise.
  int32_t effect = holdsFiles(data_) ? DROPEFFECT_COPY : DROPEFFECT_NONE;
  float x = 0, y = 0;
  const QPoint at = event.position().toPoint();
  input_.toTwips(source, at, x, y);
  control_.OLEDragOver.raise(data_, effect, buttonState(event.buttons()),
                             shiftState(event.modifiers()), x, y, state);
  const Qt::DropAction action = actionFor(effect, data_, event.possibleActions());
  if (action == Qt::IgnoreAction) {
    event.ignore();
  } else {
    event.setDropAction(action);
    event.accept();
  }
  const QPoint local = &source == &reference_ ? at : source.mapTo(&reference_, at);
  changed(local, effectOf(action));
  return true;
}

bool OleDragDrop::dragEnter(QWidget& source, QDragEnterEvent& event) {
  return over(source, event, vbEnter);
}

bool OleDragDrop::dragMove(QWidget& source, QDragMoveEvent& event) {
  return over(source, event, vbOver);
}

void OleDragDrop::dragLeave() {
  if (!point_) return;
  int32_t effect = effect_;
  float x = 0, y = 0;
  input_.toTwips(reference_, *point_, x, y);
  control_.OLEDragOver.raise(data_, effect, 0, 0, x, y, vbLeave);
  changed(std::nullopt, DROPEFFECT_NONE);
}

bool OleDragDrop::drop(QWidget& source, QDropEvent& event) {
  if (control_.OLEDropMode() != vbOLEDropManual || event.mimeData() == nullptr) return false;
  DataObject data = dataObjectOf(*event.mimeData());
  const Qt::DropAction action =
      actionFor(point_ ? effect_ : DROPEFFECT_NONE, data, event.possibleActions());
  changed(std::nullopt, DROPEFFECT_NONE);
  // A drop where the effect was none does not reach the control.
  if (action == Qt::IgnoreAction) {
    event.ignore();
    return true;
  }
  event.setDropAction(action);
  event.accept();
  float x = 0, y = 0;
  input_.toTwips(source, event.position().toPoint(), x, y);
  const int16_t button = buttonState(event.buttons());
  const int16_t shift = shiftState(event.modifiers());
  // After the event has returned: linking many files takes a while.
  QTimer::singleShot(
      0, &reference_,
      [this, alive = alive_, data, effect = effectOf(action), button, shift, x, y]() mutable {
        if (!*alive) return;
        control_.OLEDragDrop.raise(data, effect, button, shift, x, y);
      });
  return true;
}

std::unique_ptr<QMimeData> OleDragDrop::beginDrag(int32_t& allowedEffects) {
  allowedEffects = DROPEFFECT_NONE;
  if (control_.OLEDragMode() != vbOLEDragAutomatic) return nullptr;
  DataObject data;
  control_.OLEStartDrag.raise(data, allowedEffects);
  if (allowedEffects == DROPEFFECT_NONE) return nullptr;
  auto mime = std::make_unique<QMimeData>();
  mime->setData(kOwnFormat, QByteArray());
  return mime;
}

void OleDragDrop::startDrag(QWidget& source, const QPixmap& picture) {
  int32_t allowed = DROPEFFECT_NONE;
  std::unique_ptr<QMimeData> mime = beginDrag(allowed);
  if (!mime) return;
  auto* drag = new QDrag(&source);
  drag->setMimeData(mime.release());
  if (!picture.isNull()) {
    drag->setPixmap(picture);
    drag->setHotSpot(QPoint(-12, -12));
  }
  auto alive = alive_;
  int32_t effect = effectOf(drag->exec(actionsOf(allowed), Qt::MoveAction));
  if (*alive) control_.OLECompleteDrag.raise(effect);
}

}  // namespace qb::gui
