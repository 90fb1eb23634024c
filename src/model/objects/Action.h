#pragma once

#include "objects/EditorObject.h"
#include "objects/Snapshot.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// One rule of an action: a keyword of the rule catalogue, or "set_skin",
// "set_country", "set_model", with its parameters and condition.
struct ActionRule {
    std::string ruleName;
    std::vector<std::string> params;
    std::string condition;
};

inline bool operator==(const ActionRule& a, const ActionRule& b) {
    return a.ruleName == b.ruleName && a.params == b.params && a.condition == b.condition;
}

// A named list of rules that set a property of what the phase creates.
class Action final : public EditorObject {
public:
    static constexpr ObjectKind kKind = ObjectKind::Action;

    explicit Action(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override {
        return CentredScreenRect(viewX, viewY, scale, 80, 15);
    }
    ObjectKind GetKind() const override { return kKind; }

    std::int32_t phaseId = 0;
    // The block property the action was made from; empty for one added by hand.
    std::string objectName;
    std::string name;
    std::vector<ActionRule> rules;
};

using ActionSnapshot = Snapshot<Action>;

} // namespace lw
