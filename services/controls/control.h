#pragma once
// Control: what every control of a form has in common. Geometry in twips
// (single precision, as the platform keeps Left/Top/Width/Height), Visible,
// Enabled, Tag, ToolTipText, a Caption for the controls that show one, the
// container it sits in, repaint and focus, and the mouse, key, focus and OLE
// drag events. A GUI widget that renders a control registers an observer and
// is told what changed, so it stays in step with the model.
//
// Controls are owned by their form or user control (as members); containers
// hold plain pointers to their children. A control is neither copied nor
// moved: observers and containers keep its address.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "services/controls/event.h"

namespace qb {

class ContainerControl;
class DataObject;

// What changed on a control, as observers are told.
enum class ControlChange {
  Geometry,    // Left, Top, Width or Height
  Visibility,  // Visible
  Enabled,     // Enabled
  Text,        // Caption, Text, ToolTipText, a node's or item's text
  Items,       // items or nodes added, removed, cleared, moved or reordered
  Selection,   // selected item or node, list index, check value, tab
  Images,      // image list binding, pictures, a node's or item's image
  View,        // view, arrangement, sorting, column headers, expansion, scroll
  Value,       // a value (progress bar value and range)
  Appearance,  // colours, mouse pointer, border
  ZOrder,      // brought to front or sent back
  Focus,       // took the keyboard focus
  Repaint,     // Refresh was called
};

class Control;
using ControlObserver = std::function<void(const Control&, ControlChange)>;

class Control {
 public:
  // name: the control's name on its form ("lvDocuments"); index: its index in
  // a control array (fraDocumentInfo(1) has 1), -1 when it is not in one.
  explicit Control(std::string name = "", int32_t index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  int32_t Index() const { return index_; }
  // The window handle, distinct for every control on the thread (platform.h).
  int64_t hWnd() const { return hWnd_; }

  // Geometry in twips. Width and Height refuse a negative value with
  // RuntimeError(err::kInvalidProperty, "Invalid property value"); Left and
  // Top take any value, negative ones included.
  float Left() const { return left_; }
  float Top() const { return top_; }
  float Width() const { return width_; }
  float Height() const { return height_; }
  void setLeft(float value);
  void setTop(float value);
  void setWidth(float value);
  void setHeight(float value);
  // Places the control in one step. A negative width or height is refused as
  // above and nothing changes.
  void Move(float left, float top, float width, float height);
  // Moves the control keeping its size.
  void Move(float left, float top);

  bool Visible() const { return visible_; }
  void setVisible(bool value);
  bool Enabled() const { return enabled_; }
  // Virtual so that a user control can pass it on to its parts.
  virtual void setEnabled(bool value);

  const std::string& Tag() const { return tag_; }
  void setTag(std::string value) { tag_ = std::move(value); }
  const std::string& ToolTipText() const { return toolTipText_; }
  void setToolTipText(std::string value);
  // Caption of frames, labels, buttons, caption strips, option and check
  // boxes; other controls keep it without showing it.
  const std::string& Caption() const { return caption_; }
  void setCaption(std::string value);

  // Colour as the platform writes it: 0x00BBGGRR, or a system colour with the
  // high bit set (0x8000000F is the button face). Default: button face.
  uint32_t BackColor() const { return backColor_; }
  void setBackColor(uint32_t value);
  // 0 default, 7 north-south arrows, 9 east-west arrows, 11 busy.
  int16_t MousePointer() const { return mousePointer_; }
  void setMousePointer(int16_t value);

  // ZOrder(0) brings the control to the front of its siblings, ZOrder(1) sends
  // it back. zOrderCount() counts the calls that brought it to the front.
  void ZOrder(int16_t position = 0);
  int32_t zOrderCount() const { return zOrderCount_; }

  // OLE drag mode (0 manual, 1 automatic) and drop mode (0 none, 1 manual).
  int16_t OLEDragMode() const { return oleDragMode_; }
  void setOLEDragMode(int16_t value) { oleDragMode_ = value; }
  int16_t OLEDropMode() const { return oleDropMode_; }
  void setOLEDropMode(int16_t value) { oleDropMode_ = value; }

  // The container the control sits in, nullptr for a form's top control.
  ContainerControl* Container() const { return container_; }

  // Repaints: counts the call and tells the observers (ControlChange::Repaint).
  void Refresh();
  int32_t refreshCount() const { return refreshCount_; }

  // Takes the keyboard focus: the control that had it raises LostFocus, this
  // one GotFocus. Taking the focus twice raises nothing the second time.
  void SetFocus();
  bool hasFocus() const;

  // Observers: called after every change with what changed. addObserver
  // returns an id for removeObserver; removing an unknown id does nothing.
  int32_t addObserver(ControlObserver observer);
  void removeObserver(int32_t id);

  // Events. Buttons: 1 left, 2 right, 4 middle; shift: 1 Shift, 2 Ctrl, 4 Alt;
  // x and y in twips relative to the control.
  Event<void(int16_t button, int16_t shift, float x, float y)> MouseDown;
  Event<void(int16_t button, int16_t shift, float x, float y)> MouseMove;
  Event<void(int16_t button, int16_t shift, float x, float y)> MouseUp;
  Event<void()> Click;
  Event<void()> DblClick;
  Event<void(int16_t keyCode, int16_t shift)> KeyDown;
  Event<void(int16_t keyCode, int16_t shift)> KeyUp;
  // keyAscii by reference: a handler may change or swallow (0) the key.
  Event<void(int16_t& keyAscii)> KeyPress;
  Event<void()> GotFocus;
  Event<void()> LostFocus;
  // OLE drag and drop. effect / allowedEffects by reference: the handler sets
  // the effect shown (0 none, 1 copy, 2 move, see data_object.h). state of a
  // drag over: 0 enter, 1 leave, 2 over.
  Event<void(DataObject& data, int32_t& allowedEffects)> OLEStartDrag;
  Event<void(DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y,
             int16_t state)>
      OLEDragOver;
  Event<void(DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y)>
      OLEDragDrop;
  Event<void(int32_t& effect)> OLECompleteDrag;

 protected:
  // Tells every observer what changed.
  void notify(ControlChange change) const;
  // Called after Width or Height changed (by a setter or Move); user controls
  // lay out their parts here.
  virtual void resized() {}

 private:
  friend class ContainerControl;

  std::string name_;
  int32_t index_;
  int64_t hWnd_;
  float left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
  std::string tag_;
  std::string toolTipText_;
  std::string caption_;
  uint32_t backColor_ = 0x8000000F;
  int16_t mousePointer_ = 0;
  int32_t zOrderCount_ = 0;
  int16_t oleDragMode_ = 0;
  int16_t oleDropMode_ = 0;
  ContainerControl* container_ = nullptr;
  int32_t refreshCount_ = 0;
  int32_t nextObserverId_ = 1;
  std::vector<std::pair<int32_t, ControlObserver>> observers_;
};

}  // namespace qb
