#pragma once
// ProgressBarWidget: the model's Min, Max and Value on a progress bar. A
// range with no length shows an empty bar.

#include <QProgressBar>

#include "gui/bound_widget.h"
#include "services/controls/progress_bar.h"

namespace qb::gui {

class ProgressBarWidget : public BoundWidget<QProgressBar, ProgressBar> {
 public:
  ProgressBarWidget(ProgressBar& control, QWidget* parent);

 protected:
  void applyChange(ControlChange change) override;
};

}  // namespace qb::gui
