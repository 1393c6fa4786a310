#include "gui/list_box_widget.h"

#include "gui/sync_guard.h"

namespace qb::gui {

ListBoxWidget::ListBoxWidget(ListBox& control, QWidget* parent) : BoundWidget(control, parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setUniformItemSizes(true);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (syncing_ || row >= this->control().ListCount()) return;
    this->control().setListIndex(row);
  });
  connect(this, &QListWidget::itemActivated, this, [this] { this->control().DblClick.raise(); });
  binding().applyAll();
}

void ListBoxWidget::setLineStyle(LineStyle style) {
  lineStyle_ = std::move(style);
  applyLines();
}

void ListBoxWidget::applyChange(ControlChange change) {
  if (change == ControlChange::Items) applyLines();
  if (change == ControlChange::Items || change == ControlChange::Selection) applySelection();
}

void ListBoxWidget::applyLines() {
  quietly(syncing_, [&] {
    clear();
    for (int32_t i = 0; i < control().ListCount(); ++i) {
      auto* line = new QListWidgetItem(QString::fromStdString(control().List(i)), this);
      if (lineStyle_) lineStyle_(*line, control().ItemData(i));
    }
  });
}

void ListBoxWidget::applySelection() {
  quietly(syncing_, [&] { setCurrentRow(control().ListIndex()); });
}

}  // namespace qb::gui
