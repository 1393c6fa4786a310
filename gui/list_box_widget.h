#pragma once
// ListBoxWidget: a list box model's lines in a list. The user's choice of a
// line becomes the model's ListIndex (which raises Click); a double click or
// Enter on a line raises DblClick. A host may style the lines by their
// ItemData (the merge field lists mark header lines with -1).

#include <QListWidget>
#include <functional>

#include "gui/bound_widget.h"
#include "services/controls/list_box.h"

namespace qb::gui {

class ListBoxWidget : public BoundWidget<QListWidget, ListBox> {
 public:
  using LineStyle = std::function<void(QListWidgetItem& line, int32_t itemData)>;

  ListBoxWidget(ListBox& control, QWidget* parent);

  // Called for each line as it is shown; the lines are shown again.
  void setLineStyle(LineStyle style);

 protected:
  void applyChange(ControlChange change) override;

 private:
  void applyLines();
  void applySelection();

  LineStyle lineStyle_;
  bool syncing_ = false;
};

}  // namespace qb::gui
