#pragma once
// ForwardingView<View>: a Qt item view (tree widget, list view, tree view)
// whose mouse, key and focus input also reach a control model, after the view
// has acted on it: a press first selects, then the model's MouseDown sees the
// selection, as the platform's list and tree raise their events. A view that
// must not select on a right press (the platform's tree) leaves that press to
// the model alone.

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "gui/input_forwarder.h"

namespace qb::gui {

template <class View>
class ForwardingView : public View {
 public:
  explicit ForwardingView(QWidget* parent = nullptr) : View(parent) {
    // Moves without a button reach the model too.
    this->viewport()->setMouseTracking(true);
  }

  // input: where the events go (nullptr: nowhere). rightPressSelects: False
  // keeps a right press from changing the view's selection.
  void forwardTo(InputForwarder* input, bool rightPressSelects) {
    input_ = input;
    rightPressSelects_ = rightPressSelects;
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

 private:
  InputForwarder* input_ = nullptr;
  bool rightPressSelects_ = true;
  bool pressing_ = false;
};

}  // namespace qb::gui
