#pragma once
// The two bars of the Splitter: picSplitter, the bar the user drags (its
// mouse input goes to the model in the bar's own twips, its pointer is the
// sizing arrow the model sets), and picMover, the ghost bar that shows where
// the divider goes while the mouse is down. The ghost lets the mouse through.

#include <QWidget>

#include "gui/bound_widget.h"
#include "services/controls/picture_box.h"

namespace qb::gui {

class SplitterBarWidget : public BoundWidget<QWidget, PictureBox> {
 public:
  SplitterBarWidget(PictureBox& bar, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class GhostBarWidget : public BoundWidget<QWidget, PictureBox> {
 public:
  GhostBarWidget(PictureBox& ghost, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qb::gui
