#include "services/controls/control.h"

#include <algorithm>

#include "services/controls/container_control.h"
#include "services/controls/control_failures.h"
#include "services/controls/platform.h"

namespace qb {

Control::Control(std::string name, int32_t index)
    : name_(std::move(name)), index_(index), hWnd_(newWindowHandle()) {}

Control::~Control() {
  if (focusedControl() == this) platform_internal::setFocused(nullptr);
  if (container_) container_->remove(*this);
}

void Control::setLeft(float value) { Move(value, top_, width_, height_); }
void Control::setTop(float value) { Move(left_, value, width_, height_); }
void Control::setWidth(float value) { Move(left_, top_, value, height_); }
void Control::setHeight(float value) { Move(left_, top_, width_, value); }
void Control::Move(float left, float top) { Move(left, top, width_, height_); }

void Control::Move(float left, float top, float width, float height) {
  if (width < 0 || height < 0) control_failures::invalidProperty();
  bool sizeChanged = width != width_ || height != height_;
  if (!sizeChanged && left == left_ && top == top_) return;
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  notify(ControlChange::Geometry);
  if (sizeChanged) resized();
}

void Control::setVisible(bool value) {
  if (value == visible_) return;
  visible_ = value;
  notify(ControlChange::Visibility);
}

void Control::setEnabled(bool value) {
  if (value == enabled_) return;
  enabled_ = value;
  notify(ControlChange::Enabled);
}

void Control::setToolTipText(std::string value) {
  toolTipText_ = std::move(value);
  notify(ControlChange::Text);
}

void Control::setCaption(std::string value) {
  caption_ = std::move(value);
  notify(ControlChange::Text);
}

void Control::setBackColor(uint32_t value) {
  backColor_ = value;
  notify(ControlChange::Appearance);
}

void Control::setMousePointer(int16_t value) {
  mousePointer_ = value;
  notify(ControlChange::Appearance);
}

void Control::ZOrder(int16_t position) {
  if (position == 0) ++zOrderCount_;
  notify(ControlChange::ZOrder);
}

void Control::Refresh() {
  ++refreshCount_;
  notify(ControlChange::Repaint);
}

void Control::SetFocus() {
  Control* previous = focusedControl();
  if (previous == this) return;
  platform_internal::setFocused(this);
  if (previous) previous->LostFocus.raise();
  notify(ControlChange::Focus);
  GotFocus.raise();
}

bool Control::hasFocus() const { return focusedControl() == this; }

int32_t Control::addObserver(ControlObserver observer) {
  observers_.emplace_back(nextObserverId_, std::move(observer));
  return nextObserverId_++;
}

void Control::removeObserver(int32_t id) {
  std::erase_if(observers_, [id](const auto& entry) { return entry.first == id; });
}

void Control::notify(ControlChange change) const {
  if (observers_.empty()) return;
  auto observers = observers_;  // an observer may add or remove observers
  for (auto& [id, observer] : observers) observer(*this, change);
}

}  // namespace qb
