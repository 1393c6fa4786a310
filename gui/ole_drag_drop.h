#pragma once
// OleDragDrop: Qt's drag and drop as the OLE drag events of a control model.
//
// Over a widget that renders the control (when its OLEDropMode is manual):
// a drag entering, moving and leaving raises OLEDragOver with the state 0, 2
// and 1, a data object made from the drag's data (text/uri-list: the local
// files, as the file list format), the buttons and keys held and the point
// in twips. The effect proposed is copy for files and none for anything
// else; the effect the handler leaves is what the drop indicator shows:
// copy, move, or the "no" cursor. Files are only ever taken as a copy (or a
// link), never as a move, so a file manager never removes what it dragged.
// A drop raises OLEDragDrop once the event has returned, so the source is
// not kept waiting while the files are linked.
//
// From a widget whose control's OLEDragMode is automatic, a drag gesture
// raises OLEStartDrag; when the handler allows effects the drag runs (its
// data carries the component's own empty format, nothing another program
// takes), and OLECompleteDrag tells how it ended.

#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "services/controls/data_object.h"

class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QIcon;
class QMimeData;
class QWidget;

namespace qb {
class Control;
}

namespace qb::gui {

class InputForwarder;

class OleDragDrop {
 public:
  // The format of the component's own drags.
  static constexpr const char* kOwnFormat = "application/x-quillbox-component-drag";

  OleDragDrop(Control& control, QWidget& reference, InputForwarder& input);
  ~OleDragDrop();

  // Drag events that reach source (the widget or a part of it). Each returns
  // true when it took the event (accepted it or refused it for good).
  bool dragEnter(QWidget& source, QDragEnterEvent& event);
  bool dragMove(QWidget& source, QDragMoveEvent& event);
  void dragLeave();
  bool drop(QWidget& source, QDropEvent& event);

  // A drag gesture on source: OLEStartDrag, then the drag when it is
  // allowed. picture: what the mouse carries.
  void startDrag(QWidget& source, const QPixmap& picture);
  // The first half of startDrag: OLEStartDrag, and the drag's data with the
  // effects it allows; no data when the control refuses the drag (or does
  // not start drags by itself). Tests carry the data over the widgets with
  // synthetic drag events, since a real drag can't run without a user.
  std::unique_ptr<QMimeData> beginDrag(int32_t& allowedEffects);

  // The point (in the reference widget's pixels) a drag is over now and the
  // effect shown there; nothing when no drag is over the control.
  std::optional<QPoint> dragPoint() const { return point_; }
  int32_t dragEffect() const { return effect_; }
  // Called whenever the drag moves over, leaves or drops on the control, so
  // that the widget can show where a drop would go.
  std::function<void()> onDragChanged;

  // The data object of a drag's data.
  static DataObject dataObjectOf(const QMimeData& mime);
  // A picture for the mouse to carry: the icon and a line of text.
  static QPixmap dragPicture(const QIcon& icon, const QString& text);

 private:
  // Raises OLEDragOver and applies the effect to the event.
  bool over(QWidget& source, QDragMoveEvent& event, int16_t state);
  void changed(std::optional<QPoint> point, int32_t effect);

  Control& control_;
  QWidget& reference_;
  InputForwarder& input_;
  DataObject data_;  // of the drag over the control now
  std::optional<QPoint> point_;
  int32_t effect_ = DROPEFFECT_NONE;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace qb::gui
