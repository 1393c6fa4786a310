#pragma once
// ProgressBarWidget: the model's Min, Max and Value on a progress bar. A
// range with no length shows an empty bar.

#include <QProgressBar>

#include "gui/control_binding.h"
#include "services/controls/progress_bar.h"

namespace qb::gui {

class ProgressBarWidget : public QProgressBar {
 public:
  ProgressBarWidget(ProgressBar& control, QWidget* parent);

 private:
  void applyChange(ControlChange change);

  ProgressBar& control_;
  ControlBinding binding_;
};

}  // namespace qb::gui
