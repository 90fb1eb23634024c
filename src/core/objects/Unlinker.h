#pragma once

#include "objects/EditorObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lw {

// The gates of one phase that are unlinked for non-players, by name.
class Unlinker : public EditorObject {
public:
    explicit Unlinker(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override {
        return CentredScreenRect(viewX, viewY, scale, 20, 20);
    }
    ObjectKind GetKind() const override { return ObjectKind::Unlinker; }

    bool HasInputGate(const std::string& gateName) const;
    bool HasOutputGate(const std::string& gateName) const;

    std::int32_t phaseId = 0;
    std::vector<std::string> inputGates;
    std::vector<std::string> outputGates;
};

struct UnlinkerSnapshot {
    UnlinkerSnapshot() = default;
    explicit UnlinkerSnapshot(const Unlinker& object);
    std::unique_ptr<Unlinker> Rebuild() const;

    std::int32_t id = 0;
    std::int32_t phaseId = 0;
    std::vector<std::string> inputGates;
    std::vector<std::string> outputGates;
    std::int32_t posX = 0;
    std::int32_t posY = 0;
};

// Gets from a "blocks_" or "unlink_" name back to the phase's name: drops the
// first seven characters of a text of eight or more, whatever they are.
std::string StripSetPrefix(const std::string& text);

} // namespace lw
