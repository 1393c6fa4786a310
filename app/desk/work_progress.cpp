#include "app/desk/work_progress.h"

#include <QCoreApplication>
#include <QProgressBar>
#include <QWidget>

namespace qb::desk {

namespace {

// The least time between two repaints of the window while work runs.
constexpr qint64 kPaintSliceMs = 50;

}  // namespace

WorkProgress::WorkProgress(QWidget& window, QProgressBar& bar, const QString& format)
    : window_(window), bar_(bar) {
  window_.setCursor(Qt::BusyCursor);
  bar_.setFormat(format);
  bar_.setRange(0, 0);
  bar_.show();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  sincePaint_.start();
}

WorkProgress::~WorkProgress() {
  bar_.hide();
  window_.unsetCursor();
}

links::Progress WorkProgress::callback() {
  return [this](size_t done, size_t total) { step(done, total); };
}

void WorkProgress::step(size_t done, size_t total) {
  if (total == 0) {
    bar_.setRange(0, 0);
  } else {
    bar_.setRange(0, static_cast<int>(total));
    bar_.setValue(static_cast<int>(done));
  }
  if (sincePaint_.elapsed() < kPaintSliceMs && done != total) return;
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  sincePaint_.restart();
}

}  // namespace qb::desk
