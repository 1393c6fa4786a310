#pragma once
// TabControl: a row of tabs, each with a caption and a visibility, and the
// selected tab (Tab, from 0). Controls are placed on a tab with place(); a
// GUI shows those of the selected tab. A new control has three tabs.
// Selecting a hidden tab is allowed, as the platform allowed it. Click is
// raised when Tab changes.

#include <cstdint>
#include <string>
#include <vector>

#include "services/controls/container_control.h"

namespace qb {

class TabControl : public ContainerControl {
 public:
  using ContainerControl::ContainerControl;

  int16_t Tabs() const { return static_cast<int16_t>(tabs_.size()); }
  // Sets the number of tabs; new ones are visible with an empty caption.
  void setTabs(int16_t count);
  int16_t Tab() const { return tab_; }
  // Selects a tab; an index out of 0..Tabs-1 is refused with
  // RuntimeError(err::kInvalidProperty, "Invalid property value").
  void setTab(int16_t index);
  // Per-tab caption and visibility; an index out of range is refused as above.
  const std::string& TabCaption(int16_t index) const;
  void setTabCaption(int16_t index, std::string caption);
  bool TabVisible(int16_t index) const;
  void setTabVisible(int16_t index, bool visible);

  // Adds child to this container on the given tab.
  void place(Control& child, int16_t index);
  // The tab a child was placed on, -1 for none.
  int16_t tabOf(const Control& child) const;

 private:
  struct TabInfo {
    std::string caption;
    bool visible = true;
    std::vector<const Control*> controls;
  };
  TabInfo& info(int16_t index);
  const TabInfo& info(int16_t index) const;

  std::vector<TabInfo> tabs_ = std::vector<TabInfo>(3);  // three tabs, as a new one has
  int16_t tab_ = 0;
};

}  // namespace qb
