#include "PlaceCursor.h"

#include <QBitmap>
#include <array>
#include <cstring>

namespace {

constexpr int kSize = 32;

// The box round the hot spot: 5 by 5 cells with the hot spot in the middle.
constexpr int kBoxLeft = kPlaceCursorHotX - 2;
constexpr int kBoxTop = kPlaceCursorHotY - 2;
constexpr int kBoxSize = 5;

// Block capitals three cells wide and five high, just enough for the word.
struct Glyph {
    char letter;
    std::array<const char*, 5> rows;
};

constexpr std::array<Glyph, 5> kGlyphs{{
    {'P', {"###", "#.#", "###", "#..", "#.."}},
    {'L', {"#..", "#..", "#..", "#..", "###"}},
    {'A', {".#.", "#.#", "###", "#.#", "#.#"}},
    {'C', {".##", "#..", "#..", "#..", ".##"}},
    {'E', {"###", "#..", "##.", "#..", "###"}},
}};

constexpr int kGlyphWidth = 3;
constexpr int kGlyphGap = 1;
constexpr int kTextTop = 18;

using Grid = std::array<std::array<bool, kSize>, kSize>;

void Set(Grid& grid, int x, int y) {
    if (x >= 0 && x < kSize && y >= 0 && y < kSize)
        grid[y][x] = true;
}

void HorizontalRun(Grid& grid, int x0, int x1, int y) {
    for (int x = x0; x <= x1; ++x)
        Set(grid, x, y);
}

void VerticalRun(Grid& grid, int x, int y0, int y1) {
    for (int y = y0; y <= y1; ++y)
        Set(grid, x, y);
}

const Glyph* GlyphOf(char letter) {
    for (const Glyph& glyph : kGlyphs) {
        if (glyph.letter == letter)
            return &glyph;
    }
    return nullptr;
}

// The word centred under the hot spot.
void Word(Grid& grid, const char* word) {
    const int letters = static_cast<int>(std::strlen(word));
    const int width = letters * (kGlyphWidth + kGlyphGap) - kGlyphGap;
    int left = kPlaceCursorHotX - width / 2;
    for (int i = 0; i < letters; ++i, left += kGlyphWidth + kGlyphGap) {
        const Glyph* glyph = GlyphOf(word[i]);
        if (glyph == nullptr)
            continue;
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < kGlyphWidth; ++column) {
                if (glyph->rows[row][column] == '#')
                    Set(grid, left + column, kTextTop + row);
            }
        }
    }
}

// The arms of the cross hair stop at the box, so the box stays open and the
// spot that is aimed at shows through it.
Grid BlackCells() {
    Grid grid{};
    const int boxRight = kBoxLeft + kBoxSize - 1;
    const int boxBottom = kBoxTop + kBoxSize - 1;
    HorizontalRun(grid, kBoxLeft, boxRight, kBoxTop);
    HorizontalRun(grid, kBoxLeft, boxRight, boxBottom);
    VerticalRun(grid, kBoxLeft, kBoxTop, boxBottom);
    VerticalRun(grid, boxRight, kBoxTop, boxBottom);
    HorizontalRun(grid, kBoxLeft - 5, kBoxLeft - 1, kPlaceCursorHotY);
    HorizontalRun(grid, boxRight + 1, boxRight + 5, kPlaceCursorHotY);
    VerticalRun(grid, kPlaceCursorHotX, kBoxTop - 5, kBoxTop - 1);
    VerticalRun(grid, kPlaceCursorHotX, boxBottom + 1, boxBottom + 5);
    Word(grid, "PLACE");
    return grid;
}

bool InsideBox(int x, int y) {
    return x > kBoxLeft && x < kBoxLeft + kBoxSize - 1 && y > kBoxTop && y < kBoxTop + kBoxSize - 1;
}

// The black cells and every cell next to one, the inside of the box excepted:
// what the cursor covers.
Grid CoveredCells(const Grid& black) {
    Grid covered{};
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            if (!black[y][x])
                continue;
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    if (!InsideBox(x + dx, y + dy))
                        Set(covered, x + dx, y + dy);
                }
            }
        }
    }
    return covered;
}

// A one-bit image whose set bits are the cells the grid marks.
QBitmap BitmapOf(const Grid& grid) {
    QImage image(kSize, kSize, QImage::Format_Mono);
    image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    image.fill(0);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            if (grid[y][x])
                image.setPixel(x, y, 1);
        }
    }
    return QBitmap::fromImage(image);
}

} // namespace

QImage PlaceCursorImage() {
    const Grid black = BlackCells();
    const Grid covered = CoveredCells(black);
    QImage image(kSize, kSize, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            if (black[y][x])
                image.setPixel(x, y, qRgb(0, 0, 0));
            else if (covered[y][x])
                image.setPixel(x, y, qRgb(255, 255, 255));
        }
    }
    return image;
}

// Where the bitmap is set the cursor is black, where only the mask is set it
// is white, and it is transparent outside the mask.
QCursor PlaceCursor() {
    const Grid black = BlackCells();
    return QCursor(BitmapOf(black), BitmapOf(CoveredCells(black)), kPlaceCursorHotX,
                   kPlaceCursorHotY);
}
