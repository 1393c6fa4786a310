#include "gui/press_button_widget.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>
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

// The narrowest a caption is set to fit its button, in percent of its width.
constexpr int kNarrowestStretch = 85;
// Room kept between a caption and the button's frame.
constexpr int kLabelPadding = 3;
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
  const QRect contents = style()
                             ->subElementRect(QStyle::SE_PushButtonContents, &option, this)
                             .adjusted(kLabelPadding, 0, -kLabelPadding, 0);
  if (option.text.isEmpty() || labelWidth(option) <= contents.width()) {
    QPushButton::paintEvent(event);
    return;
  }
  // The layout gives the button its width. A caption that does not fit is
  // set a little narrower, as far as it still reads well, and cut short
  // with an ellipsis only beyond that.
  const QStyleOptionButton bevel = option;
  QFont narrower = font();
  for (int stretch = 99; stretch >= kNarrowestStretch; --stretch) {
    narrower.setStretch(stretch);
    option.fontMetrics = QFontMetrics(narrower);
    if (labelWidth(option) <= contents.width()) break;
  }
  if (labelWidth(option) > contents.width()) {
    const int iconPart = labelWidth(option) - option.fontMetrics.horizontalAdvance(option.text);
    option.text =
        option.fontMetrics.elidedText(option.text, Qt::ElideRight, contents.width() - iconPart);
  }
  option.rect = contents;
  QStylePainter painter(this);
  painter.drawControl(QStyle::CE_PushButtonBevel, bevel);
  painter.setFont(narrower);
  painter.drawControl(QStyle::CE_PushButtonLabel, option);
}

}  // namespace qb::gui
