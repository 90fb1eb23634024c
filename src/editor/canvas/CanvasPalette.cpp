#include "canvas/CanvasPalette.h"

#include <iterator>

namespace lw {

Brush PhaseFill(int colorIndex) {
    static constexpr Rgb kFills[] = {{255, 255, 255}, {255, 225, 135}, {150, 255, 150},
                                     {150, 200, 255}, {255, 150, 155}, {180, 180, 180},
                                     {200, 150, 255}};
    const bool known = colorIndex > 0 && colorIndex < static_cast<int>(std::size(kFills));
    return Brush{kFills[known ? colorIndex : 0]};
}

} // namespace lw
