#include "gui/user_control_host.h"

#include <QResizeEvent>

#include "gui/twips.h"

namespace qb::gui {

namespace {
constexpr double kControlPointSize = 8;
}  // namespace

UserControlHost::UserControlHost(ContainerControl& userControl, QWidget* parent)
    : QWidget(parent), control_(userControl) {
  QFont controls = font();
  controls.setPointSizeF(kControlPointSize);
  setFont(controls);
  root_ = createControlWidgets(control_, this, &widgets_);
}

UserControlHost::~UserControlHost() {
  // The widgets stop observing their models before anything else goes.
  delete root_;
  widgets_.clear();
}

void UserControlHost::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  takeSize();
  if (onResized) onResized();
}

void UserControlHost::takeSize() {
  if (root_) root_->setGeometry(rect());
  control_.Move(0, 0, toTwips(width()), toTwips(height()));
}

}  // namespace qb::gui
