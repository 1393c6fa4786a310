#include "splitter/splitter.h"

#include <cmath>

#include "services/controls/platform.h"
#include "services/errors/procedure.h"

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

std::string traceName(const char* procedure) {
  return std::string("Orvanta.exe-Splitter-") + procedure;
}

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

// Every procedure follows the error convention: a failure (a neighbour that
// refuses its new place, 380) goes to the procedure's own handler, never out
// of a setter or a mouse handler, so that a drag still ends with
// SplitComplete.

void Splitter::setEnabled(bool value) {
  Procedure proc(traceName("Enabled"));
  proc.step([&] { picSplitter.setEnabled(value); });
  proc.step([&] { PropertyChanged.raise("Enabled"); });
}

void Splitter::setLeftOrTopControl(Control* control) {
  Procedure proc(traceName("LeftOrTopControl"));
  proc.step([&] { leftOrTop_ = control; });
  proc.step([&] { Refresh(); });
  proc.step([&] { PropertyChanged.raise("LeftOrTopControl"); });
}

void Splitter::setRightOrBottomControl(Control* control) {
  Procedure proc(traceName("RightOrBottomControl"));
  proc.step([&] { rightOrBottom_ = control; });
  proc.step([&] { Refresh(); });
  proc.step([&] { PropertyChanged.raise("RightOrBottomControl"); });
}

void Splitter::setOrientation(int32_t value) {
  Procedure proc(traceName("Orientation"));
  proc.step([&] { orientation_ = value; });
  proc.step(
      [&] { picSplitter.setMousePointer(value == 1 ? kPointerNorthSouth : kPointerEastWest); });
  proc.step([&] {
    float W = Width(), H = Height(), T = static_cast<float>(splitterWidth_);
    if (value == 1) {
      picSplitter.Move(0, Int(H * splitterPosition_ / 100.0), W, T);
    } else {
      picSplitter.Move(Int(W * splitterPosition_ / 100.0), 0, T, H);
    }
  });
  proc.step([&] { moveOnto(picMover, picSplitter); });
  proc.step([&] { PropertyChanged.raise("Orientation"); });
}

void Splitter::setSplitterWidth(int32_t value) {
  Procedure proc(traceName("SplitterWidth"));
  proc.step([&] { splitterWidth_ = value; });
  // The bar's height takes the width whatever the orientation.
  proc.step([&] { picSplitter.setHeight(static_cast<float>(value)); });
  proc.step([&] { placeMover(); });
  proc.step([&] { Refresh(); });
  proc.step([&] { PropertyChanged.raise("SplitterWidth"); });
}

void Splitter::setSplitterPosition(int32_t value) {
  Procedure proc(traceName("SplitterPosition"));
  proc.step([&] {
    if (value > splitterMax_) value = splitterMax_;
    if (value < splitterMin_) value = splitterMin_;
    splitterPosition_ = value;
  });
  proc.step([&] { placeMover(); });
  proc.step([&] { Refresh(); });
  proc.step([&] { PropertyChanged.raise("SplitterPosition"); });
}

void Splitter::setSplitterMax(int32_t value) {
  Procedure proc(traceName("SplitterMax"));
  proc.step([&] {
    if (value < 0) value = 1;
    if (value > 100) value = 99;
    // The lift to just above the minimum is overwritten at once: the maximum
    // is stored as it now stands, also below SplitterMin.
    if (value < splitterMin_) splitterMax_ = splitterMin_ + 1;
    splitterMax_ = value;
  });
  proc.step([&] { placeMover(); });
  proc.step([&] { Refresh(); });
  proc.step([&] { PropertyChanged.raise("SplitterMax"); });
}

void Splitter::setSplitterMin(int32_t value) {
  Procedure proc(traceName("SplitterMin"));
  // The checks look at the minimum stored before; the new value then replaces
  // it unchecked.
  proc.step([&] {
    if (splitterMin_ > 100) splitterMin_ = 99;
    if (splitterMin_ < 0) splitterMin_ = 1;
    if (splitterMin_ > splitterMax_) splitterMin_ = splitterMax_ - 1;
    splitterMin_ = value;
  });
  proc.step([&] { placeMover(); });
  proc.step([&] { Refresh(); });
  proc.step([&] { PropertyChanged.raise("SplitterMin"); });
}

void Splitter::setSplitterColor(uint32_t value) {
  Procedure proc(traceName("SplitterColor"));
  proc.step([&] { splitterColor_ = value; });
  proc.step([&] { picSplitter.setBackColor(value); });
  proc.step([&] { PropertyChanged.raise("SplitterColor"); });
}

void Splitter::placeMover() {
  Procedure proc(traceName("placeMover"));
  proc.step([&] {
    float W = Width(), H = Height(), T = static_cast<float>(splitterWidth_);
    if (orientation_ == 1) {
      picMover.Move(0, Int(H * splitterPosition_ / 100.0), W, T);
    } else {
      picMover.Move(Int(W * splitterPosition_ / 100.0), 0, T, H);
    }
  });
}

void Splitter::Refresh() {
  Procedure proc(traceName("Refresh"));
  proc.step([&] { moveOnto(picSplitter, picMover); });
  proc.step([&] { Control::Refresh(); });
  // In a form designer the neighbours stay where they are.
  if (!userMode_) return;
  float T = static_cast<float>(splitterWidth_);
  float SW = ScaleWidth(), SH = ScaleHeight();
  if (orientation_ == 1) {
    float barTop = picSplitter.Top();
    proc.step([&] {
      if (leftOrTop_) leftOrTop_->Move(0, 0, SW, barTop);
    });
    proc.step([&] {
      if (rightOrBottom_) rightOrBottom_->Move(0, barTop + T, SW, SH - barTop - T);
    });
  } else {
    float barLeft = picSplitter.Left();
    // The left neighbour takes the full height H, the right one SH.
    proc.step([&] {
      if (leftOrTop_) leftOrTop_->Move(0, 0, barLeft, Height());
    });
    proc.step([&] {
      if (rightOrBottom_) rightOrBottom_->Move(barLeft + T, 0, SW - barLeft - T, SH);
    });
  }
}

void Splitter::resized() {
  Procedure proc(traceName("UserControl_Resize"));
  proc.step([&] { Resize.raise(); });
  proc.step([&] { placeMover(); });
  proc.step([&] { Refresh(); });
}

void Splitter::picSplitter_MouseDown(int16_t, int16_t, float, float) {
  Procedure proc(traceName("picSplitter_MouseDown"));
  proc.step([&] { moveOnto(picMover, picSplitter); });
  proc.step([&] { picMover.setVisible(true); });
  proc.step([&] { picMover.ZOrder(0); });
  proc.step([&] { SplitBegin.raise(); });
}

// No button is tested: moving over the bar without a drag runs this too, and
// changes the position without a visible effect until the next Refresh.
void Splitter::picSplitter_MouseMove(int16_t, int16_t, float x, float y) {
  Procedure proc(traceName("picSplitter_MouseMove"));
  proc.step([&] {
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
  });
  proc.step([&] { SplitMove.raise(); });
}

void Splitter::picSplitter_MouseUp(int16_t, int16_t, float, float) {
  Procedure proc(traceName("picSplitter_MouseUp"));
  proc.step([&] { moveOnto(picSplitter, picMover); });
  proc.step([&] { picMover.setVisible(false); });
  proc.step([&] { Refresh(); });
  proc.step([&] { SplitComplete.raise(); });
}

void Splitter::InitProperties() {
  Procedure proc(traceName("UserControl_InitProperties"));
  proc.step([&] {
    splitterWidth_ = kDefaultSplitterWidth;
    leftOrTop_ = nullptr;
    orientation_ = kDefaultOrientation;
    rightOrBottom_ = nullptr;
    splitterPosition_ = kDefaultSplitterPosition;
    splitterMax_ = kDefaultSplitterMax;
    splitterMin_ = kDefaultSplitterMin;
    splitterColor_ = kDefaultSplitterColor;
  });
}

void Splitter::WriteProperties(PropertyBag& bag) const {
  Procedure proc(traceName("UserControl_WriteProperties"));
  proc.step([&] { bag.WriteProperty("Enabled", Enabled(), true); });
  proc.step([&] { bag.WriteObject("LeftOrTopControl", leftOrTop_); });
  proc.step([&] { bag.WriteProperty("Orientation", orientation_, kDefaultOrientation); });
  proc.step([&] { bag.WriteObject("RightOrBottomControl", rightOrBottom_); });
  proc.step(
      [&] { bag.WriteProperty("SplitterPosition", splitterPosition_, kDefaultSplitterPosition); });
  proc.step([&] { bag.WriteProperty("SplitterMax", splitterMax_, kDefaultSplitterMax); });
  proc.step([&] { bag.WriteProperty("SplitterMin", splitterMin_, kDefaultSplitterMin); });
  proc.step([&] {
    bag.WriteProperty("SplitterColor", static_cast<int32_t>(splitterColor_),
                      static_cast<int32_t>(kDefaultSplitterColor));
  });
  proc.step([&] { bag.WriteProperty("SplitterWidth", splitterWidth_, kDefaultSplitterWidth); });
}

void Splitter::ReadProperties(const PropertyBag& bag) {
  Procedure proc(traceName("UserControl_ReadProperties"));
  auto readLong = [&bag](const char* name, int32_t defaultValue) {
    Variant value = bag.ReadProperty(name, defaultValue);
    return value.type() == VarType::Long || value.type() == VarType::Integer ? value.rawInt()
                                                                             : defaultValue;
  };
  proc.step([&] { userMode_ = ambientUserMode(); });
  proc.step([&] {
    Variant enabled = bag.ReadProperty("Enabled", true);
    picSplitter.setEnabled(enabled.isBoolean() ? enabled.rawBool() : true);
  });
  proc.step([&] { leftOrTop_ = bag.ReadObject("LeftOrTopControl"); });
  proc.step([&] { rightOrBottom_ = bag.ReadObject("RightOrBottomControl"); });
  proc.step([&] {
    setSplitterColor(static_cast<uint32_t>(
        readLong("SplitterColor", static_cast<int32_t>(kDefaultSplitterColor))));
  });
  proc.step([&] { setSplitterWidth(readLong("SplitterWidth", kDefaultSplitterWidth)); });
  proc.step([&] { setSplitterMax(readLong("SplitterMax", kDefaultSplitterMax)); });
  proc.step([&] { setSplitterMin(readLong("SplitterMin", kDefaultSplitterMin)); });
  proc.step([&] { setSplitterPosition(readLong("SplitterPosition", kDefaultSplitterPosition)); });
  proc.step([&] { setOrientation(readLong("Orientation", kDefaultOrientation)); });
  proc.step([&] { picSplitter.setBackColor(splitterColor_); });
  proc.step([&] { picSplitter.setHeight(static_cast<float>(splitterWidth_)); });
}

}  // namespace qb
