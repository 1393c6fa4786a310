#pragma once
// ForwardingView<View>: a Qt item view (tree widget, list view, tree view)
// whose mouse, key and focus input also reach a control model, after the view
// has acted on it: a press first selects, then the model's MouseDown sees the
// selection, as the platform's list and tree raise their events. A view that
// must not select on a right press (the platform's tree) leaves that press to
// the model alone. Drags over the view and drags started from it go to the
// model's OLE drag events (ole_drag_drop.h), never to the view's own drag
// and drop.

#include <QDropEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "gui/input_forwarder.h"
#include "gui/ole_drag_drop.h"

namespace qb::gui {

template <class View>
class ForwardingView : public View {
 public:
  explicit ForwardingView(QWidget* parent = nullptr) : View(parent) {
    // Moves without a button reach the model too.
    this->viewport()->setMouseTracking(true);
  }

  // input: where the events go (nullptr: nowhere). rightPressSelects: False
  // keeps a right press from changing the view's selection. drag: where
  // drags go (nullptr: the view takes none and starts none).
  void forwardTo(InputForwarder* input, bool rightPressSelects, OleDragDrop* drag = nullptr) {
    input_ = input;
    rightPressSelects_ = rightPressSelects;
    drag_ = drag;
    this->setDragEnabled(drag != nullptr);
    this->setAcceptDrops(drag != nullptr);
    this->viewport()->setAcceptDrops(drag != nullptr);
  }

  // True while a mouse press is being handled by the view.
  bool pressing() const { return pressing_; }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::RightButton || rightPressSelects_) {
      pressing_ = true;
      View::mousePressEvent(event);
      pressing_ = false;
    }
    if (input_) input_->mouseDown(*this->viewport(), *event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    View::mouseReleaseEvent(event);
    if (input_) input_->mouseUp(*this->viewport(), *event);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    View::mouseMoveEvent(event);
    if (input_) input_->mouseMove(*this->viewport(), *event);
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    pressing_ = true;
    View::mouseDoubleClickEvent(event);
    pressing_ = false;
    if (input_) input_->doubleClick();
  }
  void keyPressEvent(QKeyEvent* event) override {
    View::keyPressEvent(event);
    if (input_) input_->keyDown(*event);
  }
  void keyReleaseEvent(QKeyEvent* event) override {
    View::keyReleaseEvent(event);
    if (input_) input_->keyUp(*event);
  }
  void focusInEvent(QFocusEvent* event) override {
    View::focusInEvent(event);
    if (input_) input_->focusIn();
  }
  void dragEnterEvent(QDragEnterEvent* event) override {
    if (!drag_ || !drag_->dragEnter(*this->viewport(), *event)) event->ignore();
  }
  void dragMoveEvent(QDragMoveEvent* event) override {
    if (!drag_ || !drag_->dragMove(*this->viewport(), *event)) event->ignore();
  }
  void dragLeaveEvent(QDragLeaveEvent*) override {
    if (drag_) drag_->dragLeave();
  }
  void dropEvent(QDropEvent* event) override {
    if (!drag_ || !drag_->drop(*this->viewport(), *event)) event->ignore();
  }
  // The view's drag gesture starts the model's drag; the mouse carries the
  // first selected item's icon and text.
  void startDrag(Qt::DropActions) override {
    if (!drag_) return;
    const QModelIndexList chosen = this->selectionModel()->selectedRows();
    QPixmap picture;
    if (!chosen.isEmpty()) {
      const QModelIndex first = chosen.front();
      QString text = first.data(Qt::DisplayRole).toString();
      if (chosen.size() > 1) text += QString(" (+%1)").arg(chosen.size() - 1);
      picture = OleDragDrop::dragPicture(first.data(Qt::DecorationRole).value<QIcon>(), text);
    }
    drag_->startDrag(*this->viewport(), picture);
  }

 private:
  InputForwarder* input_ = nullptr;
  OleDragDrop* drag_ = nullptr;
  bool rightPressSelects_ = true;
  bool pressing_ = false;
};

}  // namespace qb::gui
