#pragma once
// Splitter: a user control that divides its area between two neighbour
// controls with a bar that the user drags. The position is a whole percent of
// the control's width (Orientation 0, a vertical bar) or height (Orientation 1,
// a horizontal bar), so it survives resizing. A drag moves the ghost bar
// picMover; the neighbours are moved with their Move only when the mouse is
// released (Refresh). The GUI (or a test) raises MouseDown, MouseMove and
// MouseUp on picSplitter with coordinates relative to the bar, in twips.
//
// Every property setter reports the change by name through PropertyChanged.
// Every procedure follows the error convention (a failure goes to its own
// handler; nothing throws out of the control).
// The setters' rules are the control's own and are kept as they stand,
// including the lopsided pair SplitterMax / SplitterMin.

#include <cstdint>
#include <string>

#include "services/controls/container_control.h"
#include "services/controls/event.h"
#include "services/controls/picture_box.h"
#include "services/controls/property_bag.h"

namespace qb {

class Splitter : public ContainerControl {
 public:
  // Defaults of the properties, as InitProperties sets them.
  static constexpr int32_t kDefaultSplitterWidth = 70;
  static constexpr int32_t kDefaultOrientation = 0;
  static constexpr int32_t kDefaultSplitterPosition = 50;
  static constexpr int32_t kDefaultSplitterMax = 90;
  static constexpr int32_t kDefaultSplitterMin = 10;
  static constexpr uint32_t kDefaultSplitterColor = 0x8000000F;  // button face

  // Member descriptions, as a host's object browser shows them.
  static constexpr const char* kDescribeSplitterPosition = "Sets/Returns the splitter position.";
  static constexpr const char* kDescribeLeftOrTopControl =
      "Sets/ returns the top or left control of the splitter";
  static constexpr const char* kDescribeOrientation =
      "Specifies what direction the splitter is set.";
  static constexpr const char* kDescribeRightOrBottomControl =
      "Returns/Sets the botoom, or top control.";
  static constexpr const char* kDescribeSplitterMax = "Maximum Right or Top of Splitter Position";
  static constexpr const char* kDescribeSplitterMin = "Minimum Left or Bottom of Splitter Position";
  static constexpr const char* kDescribeSplitterColor = "Color Of The Splitter Bar";

  // A new splitter has the defaults (InitProperties) and the run-time flag
  // from the platform's ambient run mode.
  explicit Splitter(std::string name = "", int32_t index = -1);
  ~Splitter() override;

  // The visible bar (the only mouse target) and the ghost bar of a drag.
  PictureBox picSplitter{"picSplitter"};
  PictureBox picMover{"picMover"};

  // Enabled is the bar's: it is passed through to picSplitter both ways. The
  // splitter itself stays enabled, so the neighbours it holds stay usable
  // while the bar is locked.
  bool Enabled() const { return picSplitter.Enabled(); }
  void setEnabled(bool value) override;

  Control* LeftOrTopControl() const { return leftOrTop_; }
  void setLeftOrTopControl(Control* control);
  Control* RightOrBottomControl() const { return rightOrBottom_; }
  void setRightOrBottomControl(Control* control);
  // 0 vertical bar (pointer 9, east-west), 1 horizontal bar (pointer 7,
  // north-south); any value other than 1 acts as 0 but is stored as given.
  int32_t Orientation() const { return orientation_; }
  void setOrientation(int32_t value);
  // Thickness of the bar in twips.
  int32_t SplitterWidth() const { return splitterWidth_; }
  void setSplitterWidth(int32_t value);
  // Whole percent; limited to at most SplitterMax, then at least SplitterMin.
  int32_t SplitterPosition() const { return splitterPosition_; }
  void setSplitterPosition(int32_t value);
  // Negative becomes 1, over 100 becomes 99; stored even below SplitterMin.
  int32_t SplitterMax() const { return splitterMax_; }
  void setSplitterMax(int32_t value);
  // The tests act on the value stored before; the new value is then stored
  // as it came, unchecked.
  int32_t SplitterMin() const { return splitterMin_; }
  void setSplitterMin(int32_t value);
  uint32_t SplitterColor() const { return splitterColor_; }
  void setSplitterColor(uint32_t value);

  // The window handles the platform's user control supplies.
  int64_t ContainerHwnd() const;

  // True when the host is in run mode; False in a form designer, where
  // Refresh moves the bar only.
  bool userMode() const { return userMode_; }

  // Applies the layout: the bar goes to the ghost's place, then (in run mode)
  // the neighbours that are set are moved beside it.
  void Refresh();

  // The property bag: defaults, save and load.
  void InitProperties();
  void WriteProperties(PropertyBag& bag) const;
  void ReadProperties(const PropertyBag& bag);

  // Events, without arguments, raised by the control.
  Event<void()> Resize;
  Event<void()> SplitComplete;
  Event<void()> SplitMove;
  Event<void()> SplitBegin;
  // The name of each property a setter changed ("SplitterPosition", ...).
  Event<void(const std::string& propertyName)> PropertyChanged;

 protected:
  // The control changed size: raise Resize, place the ghost, Refresh.
  void resized() override;

 private:
  void placeMover();
  void picSplitter_MouseDown(int16_t button, int16_t shift, float x, float y);
  void picSplitter_MouseMove(int16_t button, int16_t shift, float x, float y);
  void picSplitter_MouseUp(int16_t button, int16_t shift, float x, float y);

  int32_t splitterWidth_ = kDefaultSplitterWidth;
  Control* leftOrTop_ = nullptr;
  int32_t orientation_ = kDefaultOrientation;
  Control* rightOrBottom_ = nullptr;
  int32_t splitterPosition_ = kDefaultSplitterPosition;
  int32_t splitterMax_ = kDefaultSplitterMax;
  int32_t splitterMin_ = kDefaultSplitterMin;
  uint32_t splitterColor_ = kDefaultSplitterColor;
  bool userMode_ = true;
};

}  // namespace qb
