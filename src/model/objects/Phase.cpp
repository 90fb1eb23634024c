#include "objects/Phase.h"

#include "document/TemplateDesc.h"
#include "objects/IdList.h"

#include <algorithm>

namespace lw {

bool HasPrimaryLink(std::int32_t generationType) {
    return generationType != GenerationServerSetPos && generationType != GenerationServerWaypoint &&
           generationType != GenerationServerTargetPos;
}

bool HasSecondaryLink(std::int32_t generationType) {
    return generationType == GenerationFractal || generationType == GenerationLine;
}

ScreenRect Phase::GetScreenRect(int viewX, int viewY, float scale) const {
    // The size comes from the scale alone and is added to the truncated
    // corner, so that every phase has the same size in pixels at any zoom.
    ScreenRect rect;
    rect.left = TruncateToInt(static_cast<float>(std::int64_t{posX} + viewX) * scale);
    rect.top = TruncateToInt(static_cast<float>(std::int64_t{posY} + viewY) * scale);
    rect.right = ClampedSum(rect.left, -TruncateToInt(scale * -200.0));
    rect.bottom = ClampedSum(rect.top, -TruncateToInt(scale * -150.0));
    return rect;
}

void Phase::TakeGatesFrom(const BlockInfo& block) {
    inputs.clear();
    outputs.clear();
    for (const std::string& gate : block.inputs)
        inputs.push_back(GateSlot{gate, true});
    for (const std::string& gate : block.outputs)
        outputs.push_back(GateSlot{gate, true});
    blockProperties = block.dynamics;
}

bool HasGate(const std::vector<GateSlot>& gates, const std::string& name) {
    return std::any_of(gates.begin(), gates.end(),
                       [&](const GateSlot& gate) { return gate.name == name; });
}

void Phase::MarkGateUsed(const std::string& gateName, bool isInput) {
    std::vector<GateSlot>& gates = isInput ? inputs : outputs;
    const auto found = std::find_if(gates.begin(), gates.end(),
                                    [&](const GateSlot& gate) { return gate.name == gateName; });
    if (found != gates.end())
        found->openMark = false;
}

ScreenPoint Phase::GateScreenPoint(const std::string& gateName, bool isInput, float scale,
                                   int viewX, int viewY) const {
    const std::vector<GateSlot>& gates = isInput ? inputs : outputs;
    const auto found = std::find_if(gates.begin(), gates.end(),
                                    [&](const GateSlot& gate) { return gate.name == gateName; });
    if (found == gates.end())
        return ScreenPoint{};
    const std::int64_t index = found - gates.begin();
    // The step is an integer division made first: with 150 gates or more it
    // is 0 and every gate stands level with the top edge.
    const std::int64_t step = 150 / (static_cast<std::int64_t>(gates.size()) + 1);
    const std::int64_t x = std::int64_t{posX} + (isInput ? -150 : 350) + viewX;
    const std::int64_t y = step * (index + 1) + posY + viewY;
    return ScreenPoint{TruncateToInt(static_cast<float>(x) * scale),
                       TruncateToInt(static_cast<float>(y) * scale)};
}

void Phase::NextCheckPoint(std::int32_t& outX, std::int32_t& outY) const {
    const float offset = static_cast<float>(checkIds.size() * 150) * 0.22f;
    outX = TruncateToInt(static_cast<double>(static_cast<float>(posX)) + kConnectionX);
    outY = TruncateToInt(static_cast<double>(offset) + static_cast<double>(posY) + 172.5);
}

void Phase::AddCheckId(std::int32_t checkId) {
    AppendIdIfAbsent(checkIds, checkId);
}
void Phase::AddActionId(std::int32_t actionId) {
    AppendIdIfAbsent(actionIds, actionId);
}
void Phase::RemoveCheckId(std::int32_t checkId) {
    RemoveFirstId(checkIds, checkId);
}
void Phase::RemoveActionId(std::int32_t actionId) {
    RemoveFirstId(actionIds, actionId);
}

} // namespace lw
