#pragma once

#include <cstdint>

namespace lw {

// What the pointer is doing on the canvas. Every command that starts
// something runs only in StateIdle. Only the gesture machine changes it
// (app/GestureMachine.h); the numbers are those the replay dump prints.
enum class InteractionState : std::int32_t {
    StateIdle = 0,
    StateRubberBand = 1,
    StateDrag = 2,
    StatePlacePhase = 3,
    StatePlaceCase = 4,
    StatePlaceSwitch = 5,
    StatePlaceTemplate = 6,
    StatePrimaryLink = 7,
    StateSecondaryLink = 8,
};

// The cursor the canvas shows: the system arrow, the four-way move cursor, or
// the editor's own place cursor.
enum class CanvasCursor { Arrow, Move, Place };

} // namespace lw
