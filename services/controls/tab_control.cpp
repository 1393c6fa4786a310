#include "services/controls/tab_control.h"

#include <algorithm>

#include "services/controls/control_failures.h"

namespace qb {

void TabControl::setTabs(int16_t count) {
  if (count < 1) control_failures::invalidProperty();
  tabs_.resize(count);
  if (tab_ >= count) tab_ = static_cast<int16_t>(count - 1);
  notify(ControlChange::Items);
}

void TabControl::setTab(int16_t index) {
  info(index);
  if (index == tab_) return;
  tab_ = index;
  notify(ControlChange::Selection);
  Click.raise();
}

TabControl::TabInfo& TabControl::info(int16_t index) {
  if (index < 0 || index >= Tabs()) control_failures::invalidProperty();
  return tabs_[index];
}

const TabControl::TabInfo& TabControl::info(int16_t index) const {
  if (index < 0 || index >= Tabs()) control_failures::invalidProperty();
  return tabs_[index];
}

const std::string& TabControl::TabCaption(int16_t index) const { return info(index).caption; }

void TabControl::setTabCaption(int16_t index, std::string caption) {
  info(index).caption = std::move(caption);
  notify(ControlChange::Text);
}

bool TabControl::TabVisible(int16_t index) const { return info(index).visible; }

void TabControl::setTabVisible(int16_t index, bool visible) {
  info(index).visible = visible;
  notify(ControlChange::Visibility);
}

void TabControl::place(Control& child, int16_t index) {
  TabInfo& target = info(index);
  for (TabInfo& tab : tabs_) std::erase(tab.controls, &child);
  target.controls.push_back(&child);
  add(child);
}

int16_t TabControl::tabOf(const Control& child) const {
  for (size_t i = 0; i < tabs_.size(); ++i) {
    const auto& controls = tabs_[i].controls;
    if (std::find(controls.begin(), controls.end(), &child) != controls.end()) {
      return static_cast<int16_t>(i);
    }
  }
  return -1;
}

}  // namespace qb
