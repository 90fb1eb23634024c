#include "diagnostics/DocumentChecks.h"

#include <algorithm>
#include <map>
#include <unordered_set>

namespace lw {

namespace {

using LinesByName = std::unordered_map<std::string, std::vector<int>>;

class DocumentChecker {
public:
    DocumentChecker(const ObjectStore& store, const ObjectSourceLines& lines,
                    const std::string& file)
        : store_(store), lines_(lines), file_(file) {}

    Diagnostics Run() {
        NumberNamesakes<Phase>(lines_.phases);
        NumberNamesakes<Case>(lines_.cases);
        NumberNamesakes<Switch>(lines_.switches);
        CheckSharedNames<Phase>("phases");
        CheckSharedNames<Case>("cases");
        CheckSharedNames<Switch>("switches");
        CheckActions();
        CheckMembers();
        CheckOrphans();
        CheckStacks();
        return std::move(found_);
    }

private:
    struct Named {
        // Objects of the same name before this one, in list order.
        std::size_t rank = 0;
        std::size_t namesakes = 1;
        int line = 0;
    };

    // The n-th object of a name in list order came from the n-th record of
    // that name in the file.
    template <typename T> void NumberNamesakes(const LinesByName& lines) {
        std::unordered_map<std::string, std::vector<std::int32_t>> byName;
        store_.ForEach<T>([&](const T& object) { byName[object.name].push_back(object.id); });
        for (const auto& [name, ids] : byName) {
            const auto recordLines = lines.find(name);
            for (std::size_t rank = 0; rank < ids.size(); ++rank) {
                Named& named = named_[ids[rank]];
                named.rank = rank;
                named.namesakes = ids.size();
                if (recordLines != lines.end() && rank < recordLines->second.size())
                    named.line = recordLines->second[rank];
            }
        }
    }

    int LineOf(const EditorObject& object) const {
        const auto found = named_.find(object.id);
        return found != named_.end() ? found->second.line : 0;
    }

    void Add(Severity severity, const char* code, const std::string& message,
             const EditorObject& object, int line) {
        found_.push_back(Diagnostic{file_, line, severity, code, message,
                                    ObjectLabel(store_, object), object.id});
    }

    // Every lookup by name finds the first object of a name: the later ones
    // cannot be linked to, and a save writes them all under one name.
    template <typename T> void CheckSharedNames(const char* kinds) {
        std::unordered_map<std::string, const T*> first;
        store_.ForEach<T>([&](const T& object) {
            const Named& named = named_[object.id];
            if (named.rank == 0) {
                first[object.name] = &object;
                return;
            }
            const int firstLine = LineOf(*first[object.name]);
            Add(Severity::Error, "duplicate-name",
                std::to_string(named.namesakes) + " " + kinds + " are named " +
                    Quoted(object.name) + "; everything that names one finds the first" +
                    (firstLine > 0 ? " (line " + std::to_string(firstLine) + ")" : "") +
                    ", never this one.",
                object, named.line);
        });
    }

    int ActionLine(const Phase& phase, const Action& action) const {
        const auto found =
            lines_.actions.find(ActionLineKey(phase.name, action.objectName, action.name));
        return found != lines_.actions.end() && !found->second.empty() ? found->second.front() : 0;
    }

    void CheckActions() {
        store_.ForEach<Action>([&](const Action& action) {
            const Phase* phase = store_.FindPhase(action.phaseId);
            if (phase == nullptr || action.objectName.empty())
                return;
            const auto object = phase->blockProperties.find(action.objectName);
            const bool present = object != phase->blockProperties.end() &&
                                 std::find(object->second.begin(), object->second.end(),
                                           action.name) != object->second.end();
            if (!present)
                Add(Severity::Warning, "stale-action",
                    "The action " + Quoted(action.objectName + ":" + action.name) +
                        " of the phase " + Quoted(phase->name) +
                        " is for a property that the phase's block does not have.",
                    action, ActionLine(*phase, action));
        });
    }

    void CheckMembers() {
        store_.ForEach<Case>([&](const Case& item) {
            if (item.phaseIds.size() < 2)
                Add(Severity::Warning, "small-case",
                    "The case " + Quoted(item.name) + " has " +
                        std::to_string(item.phaseIds.size()) +
                        " phase(s); a case chooses among two or more.",
                    item, LineOf(item));
        });
        store_.ForEach<Switch>([&](const Switch& item) {
            if (item.caseIds.size() < 2)
                Add(Severity::Warning, "small-switch",
                    "The switch " + Quoted(item.name) + " has " +
                        std::to_string(item.caseIds.size()) +
                        " case(s); a switch chooses among two or more.",
                    item, LineOf(item));
        });
    }

    // A template's first phase has no link into it either, so this is a
    // warning only.
    void CheckOrphans() {
        std::unordered_set<std::int32_t> ledInto;
        for (const Link& link : store_.links)
            ledInto.insert(link.toPhaseId);
        store_.ForEach<Phase>([&](const Phase& phase) {
            if (ledInto.count(phase.id) == 0 && phase.caseId == 0)
                Add(Severity::Warning, "orphan-phase",
                    "No link leads into the phase " + Quoted(phase.name) +
                        " and it is in no case; it may never start.",
                    phase, LineOf(phase));
        });
    }

    // An object exactly where another is hides under it. A check, action or
    // unlinker without its phase is never saved, and stands nowhere.
    void CheckStacks() {
        std::map<std::pair<std::int32_t, std::int32_t>, const EditorObject*> first;
        for (const auto& item : store_.objects) {
            const EditorObject& object = *item;
            const std::int32_t owner = OwnerPhaseId(object);
            const bool attached = object.GetKind() == ObjectKind::Check ||
                                  object.GetKind() == ObjectKind::Action ||
                                  object.GetKind() == ObjectKind::Unlinker;
            if (attached && store_.FindPhase(owner) == nullptr)
                continue;
            const auto [place, isFirst] =
                first.emplace(std::pair(object.posX, object.posY), &object);
            if (isFirst)
                continue;
            Add(Severity::Warning, "stacked-objects",
                "The " + ObjectLabel(store_, object) + " stands exactly where the " +
                    ObjectLabel(store_, *place->second) + " does, at (" +
                    std::to_string(object.posX) + ", " + std::to_string(object.posY) +
                    "), hidden under it.",
                object, LineOf(object));
        }
    }

    const ObjectStore& store_;
    const ObjectSourceLines& lines_;
    const std::string& file_;
    std::unordered_map<std::int32_t, Named> named_;
    Diagnostics found_;
};

} // namespace

std::string ActionLineKey(const std::string& phaseName, const std::string& objectName,
                          const std::string& actionName) {
    // A byte no name can hold keeps the three apart.
    return phaseName + '\n' + objectName + '\n' + actionName;
}

std::string ObjectLabel(const ObjectStore& store, const EditorObject& object) {
    if (const auto* phase = As<Phase>(&object))
        return "phase " + Quoted(phase->name);
    if (const auto* item = As<Case>(&object))
        return "case " + Quoted(item->name);
    if (const auto* item = As<Switch>(&object))
        return "switch " + Quoted(item->name);
    const Phase* owner = store.FindPhase(OwnerPhaseId(object));
    const std::string of = owner != nullptr ? " of " + Quoted(owner->name) : std::string();
    if (object.GetKind() == ObjectKind::Check)
        return "check" + of;
    if (const auto* action = As<Action>(&object))
        return "action " + Quoted(action->name) + of;
    return "unlinker" + of;
}

Diagnostics CheckDocument(const ObjectStore& store, const ObjectSourceLines& lines,
                          const std::string& file) {
    return DocumentChecker(store, lines, file).Run();
}

} // namespace lw
