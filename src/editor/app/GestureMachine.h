#pragma once

#include "canvas/InteractionState.h"

namespace lw {

class Weaver;

// The state of the pointer's gesture on the canvas, and every way it
// changes. Anyone may ask it; only Weaver, which runs the gestures, moves
// it, and only through the transitions below.
class GestureMachine {
public:
    InteractionState State() const { return state_; }
    bool IsIdle() const { return state_ == InteractionState::StateIdle; }
    // Placing an object or a template, or drawing a geometry link: the
    // gestures that a click or Esc ends.
    bool WaitsForAClick() const;
    bool IsLinking() const;
    // The state as a number, as the replay dump prints it.
    int Number() const { return static_cast<int>(state_); }

private:
    friend class Weaver;

    void StartBand();
    void StartDrag();
    // One of the four place states.
    void StartPlacing(InteractionState placing);
    void StartLink(bool primary);
    void Finish();

    InteractionState state_ = InteractionState::StateIdle;
};

} // namespace lw
