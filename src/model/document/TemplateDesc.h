#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace lw {

// How the mission generator places a phase. Unscoped with a fixed underlying
// type, so that any integer read from elsewhere is representable.
enum GenerationType : std::int32_t {
    GenerationAt = 0,
    GenerationAzimuth = 1,
    GenerationFractal = 2,
    GenerationLine = 3,
    GenerationRandom = 4,
    GenerationServerSetPos = 5,
    GenerationServerWaypoint = 6,
    GenerationServerTargetPos = 7
};

inline constexpr std::int32_t kGenerationTypeCount = 8;

// What a check restricts about the place of its phase.
enum CheckType : std::int32_t {
    CheckSquad = 0,
    CheckLocationType = 1,
    CheckCoalition = 2,
    CheckRange = 3,
    CheckInRadius = 4,
    CheckFree = 5,
    CheckInSector = 6
};

inline constexpr std::int32_t kCheckTypeCount = 7;

// The blocks of one phase: block key ("main" or an additional key) to the
// block reference, iterated in ascending byte order of the key.
struct BlockSetDesc {
    std::string name;
    std::map<std::string, std::string> blocks;
};

struct PhaseDesc {
    std::string name;
    GenerationType generationType = GenerationAt;
    std::vector<std::string> geoParams;
    std::string blockSetName;
    std::string allocationType;
    std::string blocksFolder;
};

struct CaseDesc {
    std::string name;
    std::vector<std::string> phaseNames;
};

struct SwitchDesc {
    std::string name;
    std::int32_t number = 0;
    std::int32_t preliminaryCheck = 0;
    std::int32_t planeType = 0;
    std::vector<std::string> caseNames;
};

struct LinkDesc {
    bool isObjectLink = false;
    std::string fromPhase;
    std::string fromGate;
    std::string toPhase;
    std::string toGate;
};

struct CheckDesc {
    std::string phaseName;
    CheckType type = CheckSquad;
    std::vector<std::string> params;
};

// One rule of one action of a phase; an action with several rules is several
// records that repeat the first three fields.
struct ActionDesc {
    std::string phaseName;
    std::string objectName;
    std::string actionName;
    std::string ruleName;
    std::vector<std::string> ruleParams;
    std::string ruleCondition;
};

struct UnlinkDesc {
    bool isInput = false;
    std::string blockSetName;
    std::vector<std::string> gates;
};

// Position and colour of one object on the canvas.
struct GuiHelperDesc {
    std::string objectName;
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::string ownerName;
    std::string detail;
    std::int32_t colorIndex = 0;
};

// The plain form of one template, in which objects refer to each other by name.
struct TemplateDesc {
    std::vector<BlockSetDesc> blockSets;
    std::vector<PhaseDesc> phases;
    std::vector<CaseDesc> cases;
    std::vector<SwitchDesc> switches;
    std::vector<LinkDesc> links;
    std::vector<CheckDesc> checks;
    std::vector<ActionDesc> actions;
    std::vector<UnlinkDesc> unlinks;
    std::vector<GuiHelperDesc> guiHelpers;

    // No record at all in any of the nine lists.
    bool IsEmpty() const {
        return blockSets.empty() && phases.empty() && cases.empty() && switches.empty() &&
               links.empty() && checks.empty() && actions.empty() && unlinks.empty() &&
               guiHelpers.empty();
    }
};

inline bool operator==(const BlockSetDesc& a, const BlockSetDesc& b) {
    return std::tie(a.name, a.blocks) == std::tie(b.name, b.blocks);
}

inline bool operator==(const PhaseDesc& a, const PhaseDesc& b) {
    return std::tie(a.name, a.generationType, a.geoParams, a.blockSetName, a.allocationType,
                    a.blocksFolder) == std::tie(b.name, b.generationType, b.geoParams,
                                                b.blockSetName, b.allocationType, b.blocksFolder);
}

inline bool operator==(const CaseDesc& a, const CaseDesc& b) {
    return std::tie(a.name, a.phaseNames) == std::tie(b.name, b.phaseNames);
}

inline bool operator==(const SwitchDesc& a, const SwitchDesc& b) {
    return std::tie(a.name, a.number, a.preliminaryCheck, a.planeType, a.caseNames) ==
           std::tie(b.name, b.number, b.preliminaryCheck, b.planeType, b.caseNames);
}

inline bool operator==(const LinkDesc& a, const LinkDesc& b) {
    return std::tie(a.isObjectLink, a.fromPhase, a.fromGate, a.toPhase, a.toGate) ==
           std::tie(b.isObjectLink, b.fromPhase, b.fromGate, b.toPhase, b.toGate);
}

inline bool operator==(const CheckDesc& a, const CheckDesc& b) {
    return std::tie(a.phaseName, a.type, a.params) == std::tie(b.phaseName, b.type, b.params);
}

inline bool operator==(const ActionDesc& a, const ActionDesc& b) {
    return std::tie(a.phaseName, a.objectName, a.actionName, a.ruleName, a.ruleParams,
                    a.ruleCondition) == std::tie(b.phaseName, b.objectName, b.actionName,
                                                 b.ruleName, b.ruleParams, b.ruleCondition);
}

inline bool operator==(const UnlinkDesc& a, const UnlinkDesc& b) {
    return std::tie(a.isInput, a.blockSetName, a.gates) ==
           std::tie(b.isInput, b.blockSetName, b.gates);
}

inline bool operator==(const GuiHelperDesc& a, const GuiHelperDesc& b) {
    return std::tie(a.objectName, a.x, a.y, a.ownerName, a.detail, a.colorIndex) ==
           std::tie(b.objectName, b.x, b.y, b.ownerName, b.detail, b.colorIndex);
}

inline bool operator==(const TemplateDesc& a, const TemplateDesc& b) {
    return std::tie(a.blockSets, a.phases, a.cases, a.switches, a.links, a.checks, a.actions,
                    a.unlinks, a.guiHelpers) == std::tie(b.blockSets, b.phases, b.cases, b.switches,
                                                         b.links, b.checks, b.actions, b.unlinks,
                                                         b.guiHelpers);
}

} // namespace lw
