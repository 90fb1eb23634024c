#pragma once

#include "objects/EditorObject.h"
#include "objects/Snapshot.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// The gates of one phase that are unlinked for non-players, by name.
class Unlinker final : public EditorObject {
public:
    static constexpr ObjectKind kKind = ObjectKind::Unlinker;

    explicit Unlinker(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override {
        return CentredScreenRect(viewX, viewY, scale, 20, 20);
    }
    ObjectKind GetKind() const override { return kKind; }

    bool HasInputGate(const std::string& gateName) const;
    bool HasOutputGate(const std::string& gateName) const;

    std::int32_t phaseId = 0;
    std::vector<std::string> inputGates;
    std::vector<std::string> outputGates;
};

using UnlinkerSnapshot = Snapshot<Unlinker>;

// Gets from a "blocks_" or "unlink_" name back to the phase's name: drops the
// first seven characters of a text of eight or more, whatever they are.
std::string StripSetPrefix(const std::string& text);

} // namespace lw
