#include "app/EditorOptions.h"

namespace lw {

namespace {

void LoadFlag(OptionsStore& store, const char* key, bool& flag) {
    flag = store.GetInt(EditorOptions::kSection, key, flag ? 1 : 0) != 0;
}

void SaveFlag(OptionsStore& store, const char* key, bool flag) {
    store.SetInt(EditorOptions::kSection, key, flag ? 1 : 0);
}

} // namespace

bool EditorOptions::IsKindShown(ObjectKind kind) const {
    switch (kind) {
    case ObjectKind::Phase:
        return true;
    case ObjectKind::Switch:
    case ObjectKind::Case:
        return DrawSwitchAndCases;
    case ObjectKind::Check:
        return DrawChecks;
    case ObjectKind::Action:
    case ObjectKind::Unlinker:
        return DrawActions;
    default:
        return false;
    }
}

bool EditorOptions::Load(OptionsStore& store) {
    const bool stored = store.GetInt(kSection, "OpenLastUsedTemplateOnStart", -1) != -1;
    LoadFlag(store, "OpenLastUsedTemplateOnStart", OpenLastUsedTemplateOnStart);
    LastUsedTemplateName = store.GetString(kSection, "LastUsedTemplateName", LastUsedTemplateName);
    LoadFlag(store, "DrawInputOutputs", DrawInputOutputs);
    LoadFlag(store, "DrawSwitchAndCases", DrawSwitchAndCases);
    LoadFlag(store, "DrawChecks", DrawChecks);
    LoadFlag(store, "DrawActions", DrawActions);
    LoadFlag(store, "DrawGeometry", DrawGeometry);
    return stored;
}

void EditorOptions::Save(OptionsStore& store) const {
    SaveFlag(store, "OpenLastUsedTemplateOnStart", OpenLastUsedTemplateOnStart);
    store.SetString(kSection, "LastUsedTemplateName", LastUsedTemplateName);
    SaveFlag(store, "DrawInputOutputs", DrawInputOutputs);
    SaveFlag(store, "DrawSwitchAndCases", DrawSwitchAndCases);
    SaveFlag(store, "DrawChecks", DrawChecks);
    SaveFlag(store, "DrawActions", DrawActions);
    SaveFlag(store, "DrawGeometry", DrawGeometry);
}

} // namespace lw
