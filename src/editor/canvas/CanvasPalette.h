#pragma once

#include "canvas/DrawingSurface.h"

namespace lw {

// The fixed pens and brushes of the canvas; every drawing uses one of these
// or the fill of a phase's colour.
inline constexpr Pen kThinBlackPen{PenStyle::Solid, 1, {0, 0, 0}};
inline constexpr Pen kThickRedPen{PenStyle::Solid, 2, {255, 0, 0}};
inline constexpr Pen kThinRedPen{PenStyle::Solid, 1, {255, 0, 0}};
inline constexpr Pen kDashedGreenPen{PenStyle::Dash, 1, {150, 200, 150}};
inline constexpr Pen kThinGreenPen{PenStyle::Solid, 1, {150, 200, 150}};
inline constexpr Pen kBrightGreenPen{PenStyle::Solid, 2, {10, 255, 10}};
inline constexpr Pen kThinBluePen{PenStyle::Solid, 1, {0, 0, 255}};
inline constexpr Pen kThickBluePen{PenStyle::Solid, 3, {0, 0, 255}};
// The link under a resting pointer.
inline constexpr Pen kHoverPen{PenStyle::Solid, 3, {255, 170, 60}};

inline constexpr Brush kWhiteBrush{{255, 255, 255}};
inline constexpr Brush kSelectedBrush{{248, 244, 178}};
inline constexpr Brush kBandBrush{{235, 240, 255}};

inline constexpr Rgb kGeometryTextColour{0, 0, 200};
inline constexpr Rgb kGeometryDetailColour{200, 0, 0};

// The fill of a phase by the colour index its dialog sets: 1 yellow, 2 green,
// 3 blue, 4 red, 5 light grey, 6 violet, anything else white.
Brush PhaseFill(int colorIndex);

} // namespace lw
