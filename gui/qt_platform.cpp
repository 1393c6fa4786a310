#include "gui/qt_platform.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QWidget>

#include "gui/popup_placement.h"
#include "gui/twips.h"
#include "services/controls/menu_item.h"
#include "services/controls/platform.h"

namespace qb::gui {

namespace {

constexpr int32_t kRightAlign = 8;
constexpr int16_t kBusyPointer = 11;
constexpr qint64 kPumpSliceMs = 20;

}  // namespace

QtPlatform::QtPlatform(QWidget* window)
    : window_(window),
      runner_([](PopupMenu& menu, const QPoint& position) { return menu.menu().exec(position); }) {
  installEventPump([this] { pumpEvents(); });
  pointerObserver_ = screen().addObserver([this](int16_t pointer) { showPointer(pointer); });
  installPopupMenuHandler(
      [this](MenuItem& model, int32_t flags, std::optional<float> x, std::optional<float> y) {
        PopupMenu menu(model, window_);
        QPoint at = QCursor::pos();
        if (x && y && window_) at = window_->mapToGlobal(QPoint(toPixels(*x), toPixels(*y)));
        QRect window;
        QScreen* screen = QGuiApplication::screenAt(at);
        if (window_) {
          const QWidget& top = *window_->window();
          window = QRect(top.mapToGlobal(QPoint(0, 0)), top.size());
          if (screen == nullptr) screen = top.screen();
        }
        const QRect area = screen ? screen->availableGeometry() : window;
        const QPoint position =
            popupPosition(at, menu.menu().sizeHint(), (flags & kRightAlign) != 0, window, area);
        menu.choose(runner_(menu, position));
      });
}

QtPlatform::~QtPlatform() {
  screen().removeObserver(pointerObserver_);
  if (busy_) QApplication::restoreOverrideCursor();
  resetPlatform();
}

void QtPlatform::pumpEvents() {
  // A long loop yields twice per row; events (input, repaints) are handled
  // at most once a slice, so that thousands of rows don't cost a repaint
  // each. Input still comes in within a slice.
  if (sinceLastPump_.isValid() && sinceLastPump_.elapsed() < kPumpSliceMs) return;
  QCoreApplication::processEvents();
  sinceLastPump_.restart();
}

void QtPlatform::showPointer(int16_t pointer) {
  const bool busy = pointer == kBusyPointer;
  if (busy == busy_) return;
  busy_ = busy;
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace qb::gui
