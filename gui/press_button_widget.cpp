#include "gui/press_button_widget.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <string_view>

#include "gui/theme_icons.h"

namespace qb::gui {

namespace {

struct ButtonIcon {
  std::string_view control;
  int index;
  const char* icon;
};

// Icons of the component's buttons, by control name and index. The narrow
// buttons of the list side keep their room for the caption.
constexpr ButtonIcon kButtonIcons[] = {
    {"cmdClientNav", 0, "go-first"},  {"cmdClientNav", 1, "go-previous"},
    {"cmdClientNav", 2, "go-next"},   {"cmdClientNav", 3, "go-last"},
    {"cmdClientNav", 4, "edit-find"}, {"cmdDocManager", 4, "folder-new"},
};

// Room between the label and the button's edge when the style's own margins
// leave too little for the caption.
constexpr int kTightMargin = 2;
// Room between an icon and the caption beside it.
constexpr int kIconSpacing = 4;

}  // namespace

PressButtonWidget::PressButtonWidget(CommandButton& control, QWidget* parent)
    : BoundWidget(control, parent) {
  for (const ButtonIcon& entry : kButtonIcons) {
    if (entry.control == control.Name() && entry.index == control.Index()) {
      // A button of an icon alone shows it in the button's text colour.
      const QIcon icon = themeIcon(entry.icon);
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

int PressButtonWidget::labelWidth(const QStyleOptionButton& option) const {
  int width = option.fontMetrics.horizontalAdvance(option.text);
  if (!option.icon.isNull())
    width += option.iconSize.width() + (option.text.isEmpty() ? 0 : kIconSpacing);
  return width;
}

void PressButtonWidget::paintEvent(QPaintEvent* event) {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
  if (labelWidth(option) <= contents.width()) {
    QPushButton::paintEvent(event);
    return;
  }
  // The layout gives the button its width; a caption that does not fit in
  // the style's margins gets the whole face, and is cut short with an
  // ellipsis only when even that is too narrow.
  QStylePainter painter(this);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  option.rect = rect().adjusted(kTightMargin, 0, -kTightMargin, 0);
  const int room = option.rect.width() -
                   (labelWidth(option) - option.fontMetrics.horizontalAdvance(option.text));
  option.text = option.fontMetrics.elidedText(option.text, Qt::ElideRight, room);
  painter.drawControl(QStyle::CE_PushButtonLabel, option);
}

}  // namespace qb::gui
