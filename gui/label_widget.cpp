#include "gui/label_widget.h"

namespace qb::gui {

LabelWidget::LabelWidget(Label& control, QWidget* parent) : BoundWidget(control, parent) {
  setWordWrap(true);
  setTextFormat(Qt::PlainText);
  binding().forwardInputFrom(*this, true);
  binding().applyAll();
}

void LabelWidget::applyChange(ControlChange change) {
  if (change != ControlChange::Text && change != ControlChange::Appearance) return;
  setText(QString::fromStdString(control().Caption()));
  Qt::Alignment horizontal = control().Alignment() == 1   ? Qt::AlignRight
                             : control().Alignment() == 2 ? Qt::AlignHCenter
                                                          : Qt::AlignLeft;
  setAlignment(horizontal | Qt::AlignTop);
}

}  // namespace qb::gui
