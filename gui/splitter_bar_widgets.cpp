#include "gui/splitter_bar_widgets.h"

#include <QPainter>

#include "gui/colors.h"

namespace qb::gui {

SplitterBarWidget::SplitterBarWidget(PictureBox& bar, QWidget* parent) : BoundWidget(bar, parent) {
  // The bar takes every mouse move, also without a button, as the platform
  // sends them.
  setMouseTracking(true);
  binding().forwardInputFrom(*this, true);
  binding().applyAll();
}

void SplitterBarWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), toQColor(control().BackColor(), palette()));
  // A grip of three dots in the middle of the bar, along its length.
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Mid));
  const bool vertical = height() >= width();
  const QPointF centre = QRectF(rect()).center();
  for (int i = -1; i <= 1; ++i) {
    const QPointF dot = vertical ? centre + QPointF(0, i * 5) : centre + QPointF(i * 5, 0);
    painter.drawEllipse(dot, 1.3, 1.3);
  }
}

GhostBarWidget::GhostBarWidget(PictureBox& ghost, QWidget* parent) : BoundWidget(ghost, parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  binding().applyAll();
}

void GhostBarWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor shade = palette().color(QPalette::Dark);
  shade.setAlpha(170);
  painter.fillRect(rect(), shade);
}

}  // namespace qb::gui
