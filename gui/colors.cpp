#include "gui/colors.h"

namespace qb::gui {

QColor toQColor(uint32_t color, const QPalette& palette) {
  if ((color & 0x80000000u) == 0) {
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
                  static_cast<int>((color >> 16) & 0xFF));
  }
  switch (color & 0xFF) {
    case 0x05:
      return palette.color(QPalette::Base);  // window background
    case 0x08:
      return palette.color(QPalette::Text);  // window text
    case 0x0D:
      return palette.color(QPalette::Highlight);  // highlight
    case 0x0E:
      return palette.color(QPalette::HighlightedText);  // highlighted text
    case 0x10:
      return palette.color(QPalette::Mid);  // button shadow
    case 0x12:
      return palette.color(QPalette::ButtonText);  // button text
    case 0x14:
      return palette.color(QPalette::Light);  // 3-D highlight
    case 0x0F:                                // button face
    default:
      return palette.color(QPalette::Window);
  }
}

}  // namespace qb::gui
