#pragma once

#include <QCursor>
#include <QImage>

// The pointer shown while an object waits to be placed: a thin cross hair
// round a small open box whose centre is the hot spot (15, 8), and the word
// PLACE under it. Black lines in a white outline, so it shows on the white
// canvas and on dark backgrounds alike.
QCursor PlaceCursor();

// The same picture as an image of 32 by 32: black for the lines, white for
// their outline, transparent elsewhere.
QImage PlaceCursorImage();

// The cursor's hot spot, the centre of the box.
constexpr int kPlaceCursorHotX = 15;
constexpr int kPlaceCursorHotY = 8;
