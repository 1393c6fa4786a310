#pragma once
// Frame: a captioned container ("fraDocumentInfo(0)").

#include "services/controls/container_control.h"

namespace qb {

class Frame : public ContainerControl {
 public:
  using ContainerControl::ContainerControl;
};

}  // namespace qb
