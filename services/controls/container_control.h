#pragma once
// ContainerControl: a control that holds other controls (a frame, a picture
// box, a user control). Children are placed relative to it; it does not own
// them. ScaleWidth and ScaleHeight are the inner size: Width and Height less
// the border (30 twips a side with BorderStyle 1, none with 0).

#include <vector>

#include "services/controls/control.h"

namespace qb {

class ContainerControl : public Control {
 public:
  using Control::Control;
  ~ContainerControl() override;

  // Puts child into this container (taking it out of any other one) and
  // appends it to the children. Adding a child twice keeps one entry.
  void add(Control& child);
  // Takes child out; a control that is not a child is ignored.
  void remove(Control& child);
  const std::vector<Control*>& children() const { return children_; }

  // 0 none, 1 fixed single.
  int16_t BorderStyle() const { return borderStyle_; }
  void setBorderStyle(int16_t value);
  float ScaleWidth() const;
  float ScaleHeight() const;

 private:
  std::vector<Control*> children_;
  int16_t borderStyle_ = 0;
};

}  // namespace qb
