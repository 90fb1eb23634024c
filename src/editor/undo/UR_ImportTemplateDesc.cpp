#include "undo/UR_ImportTemplateDesc.h"

#include "operations/ObjectStore.h"
#include "operations/TemplateBuilder.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>

namespace lw {

namespace {

// The bounding box of the objects' anchors, in world units.
struct AnchorBox {
    std::int32_t minX = 0;
    std::int32_t minY = 0;
    std::int32_t maxX = 0;
    std::int32_t maxY = 0;

    void Widen(const EditorObject& object, bool first) {
        minX = first ? object.posX : std::min(minX, object.posX);
        minY = first ? object.posY : std::min(minY, object.posY);
        maxX = first ? object.posX : std::max(maxX, object.posX);
        maxY = first ? object.posY : std::max(maxY, object.posY);
    }
};

// How many phases, cases and switches of the store bear each name, kept up
// to date while imported objects are renamed. An object is in the store
// under its own name, so its name is taken when more than one bears it: the
// same answer as a walk over the store, at no walk per object.
class NameCounts {
public:
    explicit NameCounts(const ObjectStore& store) {
        store.ForEach<Phase>([this](const Phase& phase) { ++phases_[phase.name]; });
        store.ForEach<Case>([this](const Case& object) { ++cases_[object.name]; });
        store.ForEach<Switch>([this](const Switch& object) { ++switches_[object.name]; });
    }

    // Appends "_<id>" to the object's name for as long as another object of
    // its kind bears it.
    void MakeUnique(EditorObject& object) {
        if (auto* phase = As<Phase>(&object))
            AppendSuffixWhileTaken(phase->name, phase->id, phases_);
        else if (auto* caseObject = As<Case>(&object))
            AppendSuffixWhileTaken(caseObject->name, caseObject->id, cases_);
        else if (auto* switchObject = As<Switch>(&object))
            AppendSuffixWhileTaken(switchObject->name, switchObject->id, switches_);
    }

private:
    using Counts = std::unordered_map<std::string, std::size_t>;

    static void AppendSuffixWhileTaken(std::string& name, std::int32_t id, Counts& counts) {
        const std::string suffix = "_" + std::to_string(id);
        while (counts[name] > 1) {
            --counts[name];
            name += suffix;
            ++counts[name];
        }
    }

    Counts phases_;
    Counts cases_;
    Counts switches_;
};

} // namespace

UR_ImportTemplateDesc::UR_ImportTemplateDesc(ObjectStore* editor, BlocksContainer& blockPool,
                                             UserPrompts& prompts, TemplateDesc desc,
                                             std::int32_t targetX, std::int32_t targetY)
    : UR_Command(editor), desc(std::move(desc)), targetX(targetX), targetY(targetY),
      blockPool_(blockPool), prompts_(prompts) {}

void UR_ImportTemplateDesc::Run(bool selectResult) {
    // Building uses up the records it reads, and the kept description must
    // serve every later redo.
    TemplateDesc working = desc;
    ObjectList made;
    TemplateBuilder(*editor, blockPool_, prompts_).Build(working, &made, &importedLinks);
    // Names are made unique only now: while building, the imported names had
    // to find the imported objects, and by now everything refers by id.
    AnchorBox box;
    NameCounts names(*editor);
    for (std::size_t i = 0; i < made.size(); ++i) {
        names.MakeUnique(*made[i]);
        importedIds.push_back(made[i]->id);
        box.Widen(*made[i], i == 0);
    }
    const std::int64_t dx =
        std::int64_t{targetX} - (std::int64_t{box.maxX} - box.minX) / 2 - box.minX;
    const std::int64_t dy =
        std::int64_t{targetY} - (std::int64_t{box.maxY} - box.minY) / 2 - box.minY;
    for (EditorObject* object : made) {
        object->posX = ClampedSum(object->posX, dx);
        object->posY = ClampedSum(object->posY, dy);
        if (selectResult)
            editor->selection.Add(object);
    }
    // One recalculation gives the bounds that one after each addition would.
    if (selectResult)
        editor->selection.Recalculate();
}

void UR_ImportTemplateDesc::Undo() {
    std::vector<EditorObject*> imported;
    for (std::int32_t id : importedIds)
        imported.push_back(editor->FindObject(id));
    editor->RemoveObjects(imported);
    editor->RemoveLinks(importedLinks);
}

void UR_ImportTemplateDesc::Redo() {
    Run(false);
}

} // namespace lw
