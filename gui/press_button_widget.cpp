#include "gui/press_button_widget.h"

#include <string_view>

#include "gui/theme_icons.h"

namespace qb::gui {

namespace {

struct ButtonIcon {
  std::string_view control;
  int index;
  const char* icon;
};

// Theme icons of the component's buttons, by control name and index. The
// narrow buttons of the list side keep their room for the caption.
constexpr ButtonIcon kButtonIcons[] = {
    {"cmdClientNav", 0, "go-first"},  {"cmdClientNav", 1, "go-previous"},
    {"cmdClientNav", 2, "go-next"},   {"cmdClientNav", 3, "go-last"},
    {"cmdClientNav", 4, "edit-find"}, {"cmdDocManager", 4, "folder-new"},
};

}  // namespace

PressButtonWidget::PressButtonWidget(CommandButton& control, QWidget* parent)
    : BoundWidget(control, parent) {
  for (const ButtonIcon& entry : kButtonIcons) {
    if (entry.control == control.Name() && entry.index == control.Index()) {
      // A button of an icon alone shows it in the button's text colour.
      const QIcon icon = QIcon::fromTheme(entry.icon);
      setIcon(control.Caption().empty()
                  ? monochromeIcon(icon, palette().color(QPalette::ButtonText))
                  : icon);
      setIconSize(QSize(16, 16));
    }
  }
  connect(this, &QPushButton::clicked, this, [this] { this->control().click(); });
  binding().forwardInputFrom(*this, false);
  binding().applyAll();
}

void PressButtonWidget::applyChange(ControlChange change) {
  if (change == ControlChange::Text) setText(QString::fromStdString(control().Caption()));
}

}  // namespace qb::gui
