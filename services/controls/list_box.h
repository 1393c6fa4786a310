#pragma once
// ListBox: a list of text lines to pick from (ListControl), as a host hands
// one to the merge engine for its field lists. A click on a line chooses it
// (ListIndex, then Click); a double click raises DblClick as well.

#include "services/controls/list_control.h"

namespace qb {

class ListBox : public ListControl {
 public:
  using ListControl::ListControl;
};

}  // namespace qb
