#include "gui/label_widget.h"

namespace qb::gui {

LabelWidget::LabelWidget(Label& control, QWidget* parent)
    : QLabel(parent), control_(control), binding_(control, *this, [this](ControlChange c) { applyChange(c); }) {
  setWordWrap(true);
  setTextFormat(Qt::PlainText);
  binding_.forwardInputFrom(*this, true);
  binding_.applyAll();
}

void LabelWidget::applyChange(ControlChange change) {
  if (change != ControlChange::Text && change != ControlChange::Appearance) return;
  setText(QString::fromStdString(control_.Caption()));
  Qt::Alignment horizontal = control_.Alignment() == 1   ? Qt::AlignRight
                             : control_.Alignment() == 2 ? Qt::AlignHCenter
                                                         : Qt::AlignLeft;
  setAlignment(horizontal | Qt::AlignTop);
}

}  // namespace qb::gui
