#include "gui/progress_bar_widget.h"

#include <cmath>

namespace qb::gui {

ProgressBarWidget::ProgressBarWidget(ProgressBar& control, QWidget* parent)
    : BoundWidget(control, parent) {
  setTextVisible(false);
  binding().forwardInputFrom(*this, true);
  binding().applyAll();
}

void ProgressBarWidget::applyChange(ControlChange change) {
  if (change != ControlChange::Value) return;
  const int minimum = static_cast<int>(std::floor(control().Min()));
  const int maximum = static_cast<int>(std::ceil(control().Max()));
  // Qt shows a busy animation for an empty range; the platform an empty bar.
  if (maximum <= minimum) {
    setRange(0, 1);
    setValue(0);
    return;
  }
  setRange(minimum, maximum);
  setValue(static_cast<int>(std::lround(control().Value())));
}

}  // namespace qb::gui
