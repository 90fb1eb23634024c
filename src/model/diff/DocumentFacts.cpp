#include "diff/DocumentFacts.h"

#include "document/Keywords.h"
#include "objects/Action.h"
#include "objects/Case.h"
#include "objects/Check.h"
#include "objects/Phase.h"
#include "objects/Switch.h"
#include "objects/Unlinker.h"
#include "text/Text.h"

#include <algorithm>
#include <optional>

namespace lw {

const std::string& ObjectFacts::Field(const std::string& fieldName) const {
    static const std::string none;
    for (const auto& [nameOfField, value] : fields) {
        if (nameOfField == fieldName)
            return value;
    }
    return none;
}

namespace {

class Describer {
public:
    Describer(const ObjectStore& store, const NameMap& rename) : store_(store), rename_(rename) {}

    DocumentFacts Describe() {
        DocumentFacts facts;
        for (const auto& object : store_.objects) {
            if (auto described = DescribeObject(*object))
                Enter(facts, std::move(*described));
        }
        for (const Link& link : store_.links)
            facts.links.push_back(LinkText(link));
        std::sort(facts.links.begin(), facts.links.end());
        return facts;
    }

private:
    std::string PhaseName(std::int32_t id) const {
        const Phase* phase = store_.FindPhase(id);
        return phase != nullptr ? rename_("phase", phase->name) : std::string();
    }
    std::string CaseName(std::int32_t id) const {
        const Case* found = store_.FindCase(id);
        return found != nullptr ? rename_("case", found->name) : std::string();
    }
    std::string SwitchName(std::int32_t id) const {
        const Switch* found = store_.FindSwitch(id);
        return found != nullptr ? rename_("switch", found->name) : std::string();
    }
    std::string LinkText(const Link& link) const {
        return std::string(link.isObjectLink ? "olink " : "tlink ") + PhaseName(link.fromPhaseId) +
               "(" + link.fromGate + ") -> " + PhaseName(link.toPhaseId) + "(" + link.toGate + ")";
    }

    std::optional<ObjectFacts> DescribeObject(const EditorObject& object) const {
        if (const auto* phase = As<Phase>(&object))
            return DescribePhase(*phase);
        if (const auto* found = As<Case>(&object))
            return DescribeCase(*found);
        if (const auto* found = As<Switch>(&object))
            return DescribeSwitch(*found);
        if (const auto* check = As<Check>(&object))
            return Attached(object, check->phaseId, "check",
                            checkTypeToKeyword(static_cast<CheckType>(check->type)),
                            {{"params", Joined(check->params)}});
        if (const auto* action = As<Action>(&object))
            return Attached(object, action->phaseId, "action",
                            action->objectName.empty() ? action->name
                                                       : action->objectName + " " + action->name,
                            {{"rules", RulesText(*action)}});
        if (const auto* unlinker = As<Unlinker>(&object))
            return Attached(object, unlinker->phaseId, "unlinker", "",
                            {{"inputs", Joined(unlinker->inputGates)},
                             {"outputs", Joined(unlinker->outputGates)}});
        return std::nullopt;
    }

    ObjectFacts Named(const EditorObject& object, const char* kind, const std::string& name) const {
        ObjectFacts facts;
        facts.kind = kind;
        facts.name = rename_(kind, name);
        facts.x = object.posX;
        facts.y = object.posY;
        facts.id = object.id;
        return facts;
    }

    ObjectFacts DescribePhase(const Phase& phase) const {
        ObjectFacts facts = Named(phase, "phase", phase.name);
        std::string blocks;
        for (const auto& [key, reference] : phase.blocks)
            blocks += (blocks.empty() ? "" : " ") + key + "=" + reference;
        std::vector<std::string> generation;
        if (HasPrimaryLink(phase.generationType))
            generation.push_back(PhaseName(phase.primaryLinkId));
        if (HasSecondaryLink(phase.generationType))
            generation.push_back(PhaseName(phase.secondaryLinkId));
        generation.insert(generation.end(), phase.geoParams.begin(), phase.geoParams.end());
        facts.fields = {
            {"blocks", blocks},
            {"generation",
             generationTypeToKeyword(static_cast<GenerationType>(phase.generationType)) + "(" +
                 Joined(generation) + ")"},
            {"allocation", phase.allocationType},
            {"colour", std::to_string(phase.colorIndex)},
            {"links", PhaseLinks(phase)},
            {"case", CaseName(phase.caseId)},
        };
        return facts;
    }

    // The links that start or end at the phase, named from its side, so that
    // they read the same whatever the phase itself is called.
    std::string PhaseLinks(const Phase& phase) const {
        std::vector<std::string> texts;
        for (const Link& link : store_.links) {
            const char* kind = link.isObjectLink ? "olink " : "tlink ";
            if (link.fromPhaseId == phase.id)
                texts.push_back(kind + link.fromGate + " -> " + PhaseName(link.toPhaseId) + "(" +
                                link.toGate + ")");
            if (link.toPhaseId == phase.id)
                texts.push_back(kind + link.toGate + " <- " + PhaseName(link.fromPhaseId) + "(" +
                                link.fromGate + ")");
        }
        std::sort(texts.begin(), texts.end());
        return Joined(texts, "; ");
    }

    ObjectFacts DescribeCase(const Case& described) const {
        ObjectFacts facts = Named(described, "case", described.name);
        std::vector<std::string> phases;
        for (std::int32_t id : described.phaseIds)
            phases.push_back(PhaseName(id));
        facts.fields = {{"phases", Joined(phases)}, {"switch", SwitchName(described.switchId)}};
        return facts;
    }

    ObjectFacts DescribeSwitch(const Switch& described) const {
        ObjectFacts facts = Named(described, "switch", described.name);
        std::vector<std::string> cases;
        for (std::int32_t id : described.caseIds)
            cases.push_back(CaseName(id));
        facts.fields = {{"number", std::to_string(described.number)},
                        {"preliminary check", std::to_string(described.preliminaryCheck)},
                        {"plane type", std::to_string(described.planeType)},
                        {"cases", Joined(cases)}};
        return facts;
    }

    static std::string RulesText(const Action& action) {
        std::vector<std::string> rules;
        for (const ActionRule& rule : action.rules)
            rules.push_back(rule.ruleName + "(" + Joined(rule.params) + ")" +
                            (rule.condition.empty() ? "" : " " + rule.condition));
        return Joined(rules, "; ");
    }

    ObjectFacts Attached(const EditorObject& object, std::int32_t phaseId, const char* kind,
                         const std::string& name,
                         std::vector<std::pair<std::string, std::string>> fields) const {
        ObjectFacts facts;
        facts.kind = kind;
        facts.name = name;
        facts.id = object.id;
        facts.fields = std::move(fields);
        facts.x = object.posX;
        facts.y = object.posY;
        if (const Phase* phase = store_.FindPhase(phaseId)) {
            facts.owner = rename_("phase", phase->name);
            facts.x -= phase->posX;
            facts.y -= phase->posY;
        }
        return facts;
    }

    // The second and later objects of the same key get " #2", " #3" in the
    // order of the document, so that each still has a key of its own.
    static void Enter(DocumentFacts& facts, ObjectFacts object) {
        const std::string name = object.name;
        for (int occurrence = 2; facts.objects.count(object.Key()) != 0; ++occurrence)
            object.name = name + " #" + std::to_string(occurrence);
        std::string key = object.Key();
        facts.objects.emplace(std::move(key), std::move(object));
    }

    const ObjectStore& store_;
    const NameMap& rename_;
};

} // namespace

DocumentFacts DescribeDocument(const ObjectStore& store, const NameMap& rename) {
    return Describer(store, rename).Describe();
}

} // namespace lw
