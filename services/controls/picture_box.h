#pragma once
// PictureBox: a container that can show a picture; used for drawn frames, the
// progress panel and the splitter's bars. BackColor, MousePointer, ZOrder and
// Visible come from Control.

#include "services/controls/container_control.h"
#include "services/controls/picture.h"

namespace qb {

class PictureBox : public ContainerControl {
 public:
  using ContainerControl::ContainerControl;

  const qb::Picture& Picture() const { return picture_; }
  void setPicture(qb::Picture value);

 private:
  qb::Picture picture_;
};

}  // namespace qb
