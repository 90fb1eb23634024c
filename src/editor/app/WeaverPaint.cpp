#include "app/Weaver.h"
#include "canvas/ScenePainter.h"

namespace lw {

void Weaver::PaintScene(DrawingSurface& dc, int viewX, int viewY, float scale) const {
    SceneGesture gesture;
    gesture.interactionState = gesture_.State();
    gesture.bandActive = bandActive;
    gesture.bandRect = bandRect;
    gesture.selectedLink = selectedLink;
    gesture.hoveredLink = hoveredLink;
    gesture.pickedGeometryPhase = pickedGeometryPhase;
    gesture.pickedIsPrimary = pickedIsPrimary;
    gesture.pendingPhase = pendingPhase;
    gesture.pointerX = pointerX;
    gesture.pointerY = pointerY;
    ScenePainter(*this, options, gesture, dc, ViewTransform{viewX, viewY, scale}).PaintScene();
}

} // namespace lw
