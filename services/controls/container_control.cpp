#include "services/controls/container_control.h"

#include <algorithm>

namespace qb {

namespace {
constexpr float kBorderTwips = 30;  // a fixed single border, each side
}

ContainerControl::~ContainerControl() {
  for (Control* child : children_) child->container_ = nullptr;
}

void ContainerControl::add(Control& child) {
  if (child.container_ == this) return;
  if (child.container_) child.container_->remove(child);
  child.container_ = this;
  children_.push_back(&child);
}

void ContainerControl::remove(Control& child) {
  auto found = std::find(children_.begin(), children_.end(), &child);
  if (found == children_.end()) return;
  children_.erase(found);
  child.container_ = nullptr;
}

void ContainerControl::setBorderStyle(int16_t value) {
  borderStyle_ = value;
  notify(ControlChange::Appearance);
}

float ContainerControl::ScaleWidth() const {
  return std::max(0.0f, Width() - (borderStyle_ ? 2 * kBorderTwips : 0));
}

float ContainerControl::ScaleHeight() const {
  return std::max(0.0f, Height() - (borderStyle_ ? 2 * kBorderTwips : 0));
}

}  // namespace qb
