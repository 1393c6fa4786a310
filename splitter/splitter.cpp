#include "splitter/splitter.h"

#include <cmath>

#include "services/controls/platform.h"

namespace qb {

namespace {

// The platform's Int: rounding down to a whole number.
int32_t Int(double value) { return static_cast<int32_t>(std::floor(value)); }

// The whole number nearest to value, halves to even, as the platform converts.
int32_t nearestWhole(double value) { return static_cast<int32_t>(std::nearbyint(value)); }

// Places target on the place of source.
void moveOnto(Control& target, const Control& source) {
  target.Move(source.Left(), source.Top(), source.Width(), source.Height());
}

constexpr int16_t kPointerNorthSouth = 7;
constexpr int16_t kPointerEastWest = 9;

}  // namespace

Splitter::Splitter(std::string name, int32_t index)
    : ContainerControl(std::move(name), index), userMode_(ambientUserMode()) {
  add(picSplitter);
  add(picMover);
  picSplitter.setMousePointer(kPointerEastWest);
  picSplitter.setBackColor(splitterColor_);
  picMover.setVisible(false);
  picSplitter.MouseDown = [this](int16_t button, int16_t shift, float x, float y) {
    picSplitter_MouseDown(button, shift, x, y);
  };
  picSplitter.MouseMove = [this](int16_t button, int16_t shift, float x, float y) {
    picSplitter_MouseMove(button, shift, x, y);
  };
  picSplitter.MouseUp = [this](int16_t button, int16_t shift, float x, float y) {
    picSplitter_MouseUp(button, shift, x, y);
  };
}

Splitter::~Splitter() {
  remove(picSplitter);
  remove(picMover);
}

int64_t Splitter::ContainerHwnd() const { return Container() ? Container()->hWnd() : 0; }

void Splitter::setEnabled(bool value) {
  picSplitter.setEnabled(value);
  PropertyChanged.raise("Enabled");
}

void Splitter::setLeftOrTopControl(Control* control) {
  leftOrTop_ = control;
  Refresh();
  PropertyChanged.raise("LeftOrTopControl");
}

void Splitter::setRightOrBottomControl(Control* control) {
  rightOrBottom_ = control;
  Refresh();
  PropertyChanged.raise("RightOrBottomControl");
}

void Splitter::setOrientation(int32_t value) {
  orientation_ = value;
  picSplitter.setMousePointer(value == 1 ? kPointerNorthSouth : kPointerEastWest);
  float W = Width(), H = Height(), T = static_cast<float>(splitterWidth_);
  if (value == 1) {
    picSplitter.Move(0, Int(H * splitterPosition_ / 100.0), W, T);
  } else {
    picSplitter.Move(Int(W * splitterPosition_ / 100.0), 0, T, H);
  }
  moveOnto(picMover, picSplitter);
  PropertyChanged.raise("Orientation");
}

void Splitter::setSplitterWidth(int32_t value) {
  splitterWidth_ = value;
  // The bar's height takes the width whatever the orientation.
  picSplitter.setHeight(static_cast<float>(value));
  placeMover();
  Refresh();
  PropertyChanged.raise("SplitterWidth");
}

void Splitter::setSplitterPosition(int32_t value) {
  if (value > splitterMax_) value = splitterMax_;
  if (value < splitterMin_) value = splitterMin_;
  splitterPosition_ = value;
  placeMover();
  Refresh();
  PropertyChanged.raise("SplitterPosition");
}

void Splitter::setSplitterMax(int32_t value) {
  if (value < 0) value = 1;
  if (value > 100) value = 99;
  // The lift to just above the minimum is overwritten at once: the maximum
  // is stored as it now stands, also below SplitterMin.
  if (value < splitterMin_) splitterMax_ = splitterMin_ + 1;
  splitterMax_ = value;
  placeMover();
  Refresh();
  PropertyChanged.raise("SplitterMax");
}

void Splitter::setSplitterMin(int32_t value) {
  // The checks look at the minimum stored before; the new value then replaces
  // it unchecked.
  if (splitterMin_ > 100) splitterMin_ = 99;
  if (splitterMin_ < 0) splitterMin_ = 1;
  if (splitterMin_ > splitterMax_) splitterMin_ = splitterMax_ - 1;
  splitterMin_ = value;
  placeMover();
  Refresh();
  PropertyChanged.raise("SplitterMin");
}

void Splitter::setSplitterColor(uint32_t value) {
  splitterColor_ = value;
  picSplitter.setBackColor(value);
  PropertyChanged.raise("SplitterColor");
}

void Splitter::placeMover() {
  float W = Width(), H = Height(), T = static_cast<float>(splitterWidth_);
  if (orientation_ == 1) {
    picMover.Move(0, Int(H * splitterPosition_ / 100.0), W, T);
  } else {
    picMover.Move(Int(W * splitterPosition_ / 100.0), 0, T, H);
  }
}

void Splitter::Refresh() {
  moveOnto(picSplitter, picMover);
  Control::Refresh();
  // In a form designer the neighbours stay where they are.
  if (!userMode_) return;
  float T = static_cast<float>(splitterWidth_);
  float SW = ScaleWidth(), SH = ScaleHeight();
  if (orientation_ == 1) {
    float barTop = picSplitter.Top();
    if (leftOrTop_) leftOrTop_->Move(0, 0, SW, barTop);
    if (rightOrBottom_) rightOrBottom_->Move(0, barTop + T, SW, SH - barTop - T);
  } else {
    float barLeft = picSplitter.Left();
    // The left neighbour takes the full height H, the right one SH.
    if (leftOrTop_) leftOrTop_->Move(0, 0, barLeft, Height());
    if (rightOrBottom_) rightOrBottom_->Move(barLeft + T, 0, SW - barLeft - T, SH);
  }
}

void Splitter::resized() {
  Resize.raise();
  placeMover();
  Refresh();
}

void Splitter::picSplitter_MouseDown(int16_t, int16_t, float, float) {
  moveOnto(picMover, picSplitter);
  picMover.setVisible(true);
  picMover.ZOrder(0);
  SplitBegin.raise();
}

// No button is tested: moving over the bar without a drag runs this too, and
// changes the position without a visible effect until the next Refresh.
void Splitter::picSplitter_MouseMove(int16_t, int16_t, float x, float y) {
  double W = Width(), H = Height();
  float T = static_cast<float>(splitterWidth_);
  if (orientation_ == 1) {
    int32_t place = nearestWhole(picSplitter.Top() + y);
    if (Int(H * splitterMin_ / 100) < place && place < Int(H * splitterMax_ / 100)) {
      picMover.Move(0, picSplitter.Top() + y, Width(), T);
      splitterPosition_ = Int(100 / (H / place));
    }
  } else {
    int32_t place = nearestWhole(picSplitter.Left() + x);
    if (Int(W * splitterMin_ / 100) < place && place < Int(W * splitterMax_ / 100)) {
      picMover.Move(picSplitter.Left() + x, 0, T, Height());
      splitterPosition_ = Int(100 / (W / place));
    }
  }
  SplitMove.raise();
}

void Splitter::picSplitter_MouseUp(int16_t, int16_t, float, float) {
  moveOnto(picSplitter, picMover);
  picMover.setVisible(false);
  Refresh();
  SplitComplete.raise();
}

void Splitter::InitProperties() {
  splitterWidth_ = kDefaultSplitterWidth;
  leftOrTop_ = nullptr;
  orientation_ = kDefaultOrientation;
  rightOrBottom_ = nullptr;
  splitterPosition_ = kDefaultSplitterPosition;
  splitterMax_ = kDefaultSplitterMax;
  splitterMin_ = kDefaultSplitterMin;
  splitterColor_ = kDefaultSplitterColor;
}

void Splitter::WriteProperties(PropertyBag& bag) const {
  bag.WriteProperty("Enabled", Enabled(), true);
  bag.WriteObject("LeftOrTopControl", leftOrTop_);
  bag.WriteProperty("Orientation", orientation_, kDefaultOrientation);
  bag.WriteObject("RightOrBottomControl", rightOrBottom_);
  bag.WriteProperty("SplitterPosition", splitterPosition_, kDefaultSplitterPosition);
  bag.WriteProperty("SplitterMax", splitterMax_, kDefaultSplitterMax);
  bag.WriteProperty("SplitterMin", splitterMin_, kDefaultSplitterMin);
  bag.WriteProperty("SplitterColor", static_cast<int32_t>(splitterColor_),
                    static_cast<int32_t>(kDefaultSplitterColor));
  bag.WriteProperty("SplitterWidth", splitterWidth_, kDefaultSplitterWidth);
}

void Splitter::ReadProperties(const PropertyBag& bag) {
  auto readLong = [&bag](const char* name, int32_t defaultValue) {
    Variant value = bag.ReadProperty(name, defaultValue);
    return value.type() == VarType::Long || value.type() == VarType::Integer ? value.rawInt()
                                                                             : defaultValue;
  };
  userMode_ = ambientUserMode();
  Variant enabled = bag.ReadProperty("Enabled", true);
  picSplitter.setEnabled(enabled.isBoolean() ? enabled.rawBool() : true);
  leftOrTop_ = bag.ReadObject("LeftOrTopControl");
  rightOrBottom_ = bag.ReadObject("RightOrBottomControl");
  setSplitterColor(static_cast<uint32_t>(
      readLong("SplitterColor", static_cast<int32_t>(kDefaultSplitterColor))));
  setSplitterWidth(readLong("SplitterWidth", kDefaultSplitterWidth));
  setSplitterMax(readLong("SplitterMax", kDefaultSplitterMax));
  setSplitterMin(readLong("SplitterMin", kDefaultSplitterMin));
  setSplitterPosition(readLong("SplitterPosition", kDefaultSplitterPosition));
  setOrientation(readLong("Orientation", kDefaultOrientation));
  picSplitter.setBackColor(splitterColor_);
  picSplitter.setHeight(static_cast<float>(splitterWidth_));
}

}  // namespace qb
