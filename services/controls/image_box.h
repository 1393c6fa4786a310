#pragma once
// ImageBox: a plain picture on a form (a dialog's document icon).

#include "services/controls/control.h"
#include "services/controls/picture.h"

namespace qb {

class ImageBox : public Control {
 public:
  using Control::Control;

  const qb::Picture& Picture() const { return picture_; }
  void setPicture(qb::Picture value);

 private:
  qb::Picture picture_;
};

}  // namespace qb
