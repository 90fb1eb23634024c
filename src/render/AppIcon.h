#pragma once

#include <QImage>

namespace lw {

// The application's picture, square and of the given size in pixels, on a
// transparent ground: phase boxes joined by link lines across the warp of a
// loom. It draws no text, so it needs no application object and can be
// called by a program that only writes the picture files.
QImage PaintAppIcon(int size);

} // namespace lw
