#pragma once
// Colours of the control models as Qt colours. A model colour is 0x00BBGGRR,
// or a system colour when the high bit is set (0x8000000F the button face),
// which takes the matching colour of the widget's palette.

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace qb::gui {

QColor toQColor(uint32_t color, const QPalette& palette);

}  // namespace qb::gui
