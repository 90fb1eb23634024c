#include "app/GestureMachine.h"

namespace lw {

// Every transition of the pointer's gesture. A gesture starts from idle and
// goes back to idle; Weaver starts one only when it is idle, and the
// commands that start one are enabled only then.

bool GestureMachine::WaitsForAClick() const {
    return state_ >= InteractionState::StatePlacePhase;
}

bool GestureMachine::IsLinking() const {
    return state_ == InteractionState::StatePrimaryLink ||
           state_ == InteractionState::StateSecondaryLink;
}

void GestureMachine::StartBand() {
    state_ = InteractionState::StateRubberBand;
}

void GestureMachine::StartDrag() {
    state_ = InteractionState::StateDrag;
}

void GestureMachine::StartPlacing(InteractionState placing) {
    state_ = placing;
}

void GestureMachine::StartLink(bool primary) {
    state_ = primary ? InteractionState::StatePrimaryLink : InteractionState::StateSecondaryLink;
}

void GestureMachine::Finish() {
    state_ = InteractionState::StateIdle;
}

} // namespace lw
