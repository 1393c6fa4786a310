#include "gui/shade_line_widget.h"

#include <QLinearGradient>
#include <QPainter>

#include "gui/colors.h"

namespace qb::gui {

ShadeLineWidget::ShadeLineWidget(ShadeLine& control, QWidget* parent)
    : BoundWidget(control, parent) {
  QFont heading = font();
  heading.setBold(true);
  heading.setPointSizeF(heading.pointSizeF() * 1.1);
  setFont(heading);
  binding().forwardInputFrom(*this, true);
  binding().applyAll();
}

void ShadeLineWidget::applyChange(ControlChange change) {
  if (change == ControlChange::Text || change == ControlChange::Appearance) update();
}

void ShadeLineWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor start = toQColor(control().StartColor(), palette());
  const QColor end = toQColor(control().EndColor(), palette());
  QLinearGradient gradient(rect().topLeft(), rect().topRight());
  gradient.setColorAt(0, start);
  gradient.setColorAt(1, end);
  painter.fillRect(rect(), gradient);
  // A darker line under the strip sets it off from what follows.
  painter.setPen(start.darker(130));
  painter.drawLine(rect().bottomLeft(), rect().bottomRight());
  // The caption reads on the dark end of the bar.
  painter.setPen(start.lightness() < 128 ? QColor(Qt::white) : QColor(Qt::black));
  painter.drawText(rect().adjusted(6, 0, -6, 0), Qt::AlignLeft | Qt::AlignVCenter,
                   QString::fromStdString(control().Caption()));
}

}  // namespace qb::gui
