#include "undo/UR_ImportTemplateDesc.h"

#include "app/Weaver.h"
#include "operations/TemplateBuilder.h"

#include <algorithm>
#include <cstdint>
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

// A file may place objects anywhere; a move must not wrap around.
std::int32_t ClampToInt(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

template <typename T>
void AppendSuffixWhileTaken(T& object,
                            bool (ObjectStore::*taken)(std::int32_t, const std::string&) const,
                            const ObjectStore& store) {
    const std::string suffix = "_" + std::to_string(object.id);
    while ((store.*taken)(object.id, object.name))
        object.name += suffix;
}

} // namespace

UR_ImportTemplateDesc::UR_ImportTemplateDesc(Weaver* editor, TemplateDesc desc,
                                             std::int32_t targetX, std::int32_t targetY)
    : UR_Command(editor), desc(std::move(desc)), targetX(targetX), targetY(targetY) {}

void UR_ImportTemplateDesc::Run(bool selectResult) {
    // Building uses up the records it reads, and the kept description must
    // serve every later redo.
    TemplateDesc working = desc;
    ObjectList made;
    TemplateBuilder(*editor, editor->blockPool, editor->prompts)
        .Build(working, &made, &importedLinks);
    // Names are made unique only now: while building, the imported names had
    // to find the imported objects, and by now everything refers by id.
    AnchorBox box;
    for (std::size_t i = 0; i < made.size(); ++i) {
        MakeNameUnique(*made[i]);
        importedIds.push_back(made[i]->id);
        box.Widen(*made[i], i == 0);
    }
    const std::int64_t dx =
        std::int64_t{targetX} - (std::int64_t{box.maxX} - box.minX) / 2 - box.minX;
    const std::int64_t dy =
        std::int64_t{targetY} - (std::int64_t{box.maxY} - box.minY) / 2 - box.minY;
    for (EditorObject* object : made) {
        object->posX = ClampToInt(object->posX + dx);
        object->posY = ClampToInt(object->posY + dy);
        if (selectResult)
            editor->selection.Add(object);
    }
    // One recalculation gives the bounds that one after each addition would.
    if (selectResult)
        editor->selection.Recalculate();
}

void UR_ImportTemplateDesc::MakeNameUnique(EditorObject& object) const {
    if (auto* phase = As<Phase>(&object))
        AppendSuffixWhileTaken(*phase, &ObjectStore::PhaseNameTaken, *editor);
    else if (auto* caseObject = As<Case>(&object))
        AppendSuffixWhileTaken(*caseObject, &ObjectStore::CaseNameTaken, *editor);
    else if (auto* switchObject = As<Switch>(&object))
        AppendSuffixWhileTaken(*switchObject, &ObjectStore::SwitchNameTaken, *editor);
}

void UR_ImportTemplateDesc::Undo() {
    for (std::int32_t id : importedIds)
        editor->RemoveObject(editor->FindObject(id));
    for (const Link& link : importedLinks)
        editor->RemoveLink(link);
}

void UR_ImportTemplateDesc::Redo() {
    Run(false);
}

} // namespace lw
