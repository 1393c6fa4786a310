#pragma once
// Geometry of the control models is in twips; the screen is in pixels, at 15
// twips to the pixel.

#include <cmath>

namespace qb::gui {

constexpr int kTwipsPerPixel = 15;

// Pixels for a position or a length in twips, to the nearest pixel.
inline int toPixels(double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }

// Twips for a position or a length in pixels.
inline float toTwips(double pixels) { return static_cast<float>(pixels * kTwipsPerPixel); }

}  // namespace qb::gui
