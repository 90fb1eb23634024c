#include "document/RecordLines.h"

#include "document/Keywords.h"
#include "text/Text.h"

#include <vector>

namespace lw {

namespace {

// A check's helper is told apart by its object name and names its phase and
// check keyword; an action's names its phase and object; a phase's carries
// its colour behind an empty owner and an empty bracket.
std::string GuiHelperTail(const GuiHelperDesc& helper) {
    if (helper.objectName == "check")
        return helper.ownerName + "(" + helper.detail + ")";
    if (!helper.ownerName.empty())
        return helper.ownerName + "; (" + helper.detail + ");";
    if (helper.colorIndex != 0)
        return "\"\"; ( ); " + std::to_string(helper.colorIndex) + ";";
    return std::string();
}

} // namespace

std::string BlockSetLine(const BlockSetDesc& blockSet) {
    std::string line = "blocks_set; " + blockSet.name + ";";
    for (const auto& [key, reference] : blockSet.blocks)
        line += " " + key + "(" + reference + ");";
    return line;
}

// Every phase writes every field, whatever its type: a server type gives "()",
// and an empty allocation still has its blank in front.
std::string PhaseLine(const PhaseDesc& phase) {
    return "phase; " + phase.name + "; " + generationTypeToKeyword(phase.generationType) + "(" +
           Joined(phase.geoParams) + "); " + phase.blockSetName + "; " + phase.allocationType +
           ";" + phase.blocksFolder + ";";
}

std::string CaseLine(const CaseDesc& caseDesc) {
    return "case; " + caseDesc.name + "(" + Joined(caseDesc.phaseNames) + ");";
}

std::string SwitchLine(const SwitchDesc& switchDesc) {
    return "switch; " + std::to_string(switchDesc.number) + "; " +
           std::to_string(switchDesc.preliminaryCheck) + "; " +
           std::to_string(switchDesc.planeType) + "; " + switchDesc.name + "(" +
           Joined(switchDesc.caseNames) + ");";
}

std::string LinkLine(const LinkDesc& link) {
    return std::string(link.isObjectLink ? "olink; " : "tlink; ") + link.fromPhase + "(" +
           link.fromGate + "); " + link.toPhase + "(" + link.toGate + ");";
}

// A lone in_radius parameter keeps an empty slot behind it, "in_radius(a,)";
// files have always been written that way, and the reader ignores the slot.
std::string CheckLine(const CheckDesc& check) {
    std::string line = "check; " + check.phaseName + "; " + checkTypeToKeyword(check.type) + "(" +
                       Joined(check.params);
    if (check.type == CheckInRadius && check.params.size() == 1)
        line += ",";
    return line + ");";
}

std::string ActionLine(const ActionDesc& action) {
    return "action; " + action.phaseName + "(" + action.objectName + "," + action.actionName +
           "); " + action.ruleName + "(" + Joined(action.ruleParams) + ");" + action.ruleCondition;
}

// The only record line without a closing ";".
std::string UnlinkLine(const UnlinkDesc& unlink) {
    return std::string(unlink.isInput ? "unlink_nonplayer_input" : "unlink_nonplayer_output") +
           "; " + unlink.blockSetName + "(" + Joined(unlink.gates) + ")";
}

std::string GuiHelperLine(const GuiHelperDesc& helper) {
    return "gui_helper; " + helper.objectName + "; " + std::to_string(helper.x) + "; " +
           std::to_string(helper.y) + ";" + GuiHelperTail(helper);
}

} // namespace lw
