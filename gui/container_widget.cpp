#include "gui/container_widget.h"

#include <QDropEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include "gui/colors.h"
#include "gui/theme_icons.h"
#include "services/controls/frame.h"
#include "services/controls/picture_box.h"

namespace qb::gui {

ContainerWidget::ContainerWidget(ContainerControl& control, QWidget* parent)
    : BoundWidget(control, parent) {
  binding().forwardInputFrom(*this, true);
  setAcceptDrops(control.OLEDropMode() == vbOLEDropManual);
  binding().applyAll();
}

void ContainerWidget::dragEnterEvent(QDragEnterEvent* event) {
  if (!binding().oleDrag().dragEnter(*this, *event)) event->ignore();
}

void ContainerWidget::dragMoveEvent(QDragMoveEvent* event) {
  if (!binding().oleDrag().dragMove(*this, *event)) event->ignore();
}

void ContainerWidget::dragLeaveEvent(QDragLeaveEvent*) { binding().oleDrag().dragLeave(); }

void ContainerWidget::dropEvent(QDropEvent* event) {
  if (!binding().oleDrag().drop(*this, *event)) event->ignore();
}

void ContainerWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), toQColor(control().BackColor(), palette()));
  if (control().BorderStyle() == 1) {
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.frameShape = QFrame::StyledPanel;
    frame.state |= QStyle::State_Sunken;
    frame.lineWidth = 1;
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
  }
  if (auto* picture = dynamic_cast<PictureBox*>(&control());
      picture && !picture->Picture().isEmpty()) {
    const int size = picture->Picture().size > 0 ? picture->Picture().size : 32;
    iconFor(picture->Picture())
        .paint(&painter, QRect(0, 0, size, size), Qt::AlignLeft | Qt::AlignTop);
  }
  if (dynamic_cast<Frame*>(&control()) != nullptr && !control().Caption().empty()) {
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(6, 2, -6, 0), Qt::AlignLeft | Qt::AlignTop,
                     QString::fromStdString(control().Caption()));
  }
}

}  // namespace qb::gui
