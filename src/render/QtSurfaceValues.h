#pragma once

#include "canvas/DrawingSurface.h"

#include <QColor>
#include <QFont>
#include <QPen>
#include <QRect>
#include <QString>

namespace lw {

QColor ToQColor(Rgb colour);
QPen ToQPen(const Pen& pen);
// "Arial" falls back to its metric-compatible face where it is not installed.
QFont ToQFont(const CanvasFont& font);
// The Qt alignment and text flags that place a text as the surface's flags say.
int ToQtTextFlags(unsigned flags);
// The box a text is placed in: right and bottom lie outside it.
QRect ToTextBox(const ScreenRect& rect);
// The rectangle whose one-pixel outline covers the shape's pixels, right and
// bottom excluded.
QRect ToOutlineRect(const ScreenRect& rect);
// Texts are UTF-8 byte strings.
QString ToText(const std::string& text);

} // namespace lw
