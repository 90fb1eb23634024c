#pragma once

#include "objects/EditorObject.h"
#include "platform/OptionsStore.h"

#include <string>

namespace lw {

// The seven options that outlive a run. Each field bears the name of its key
// in the section "LoomwrightOptions" of the options store. They are read once
// at start, changed in memory, and written once when the main window closes.
struct EditorOptions {
    static constexpr const char* kSection = "LoomwrightOptions";

    bool OpenLastUsedTemplateOnStart = true;
    std::string LastUsedTemplateName;
    bool DrawInputOutputs = false;
    bool DrawSwitchAndCases = false;
    bool DrawChecks = false;
    bool DrawActions = false;
    bool DrawGeometry = false;

    // A missing key keeps the present value, so the defaults hold on a first
    // run. False when the store held no options at all: the program's first start.
    bool Load(OptionsStore& store);
    void Save(OptionsStore& store) const;
    void SetLastUsedTemplateName(const std::string& name) { LastUsedTemplateName = name; }

    // Whether the layer of this kind is drawn. Phases always are; what a
    // layer hides can be neither hit nor banded.
    bool IsKindShown(ObjectKind kind) const;
};

} // namespace lw
