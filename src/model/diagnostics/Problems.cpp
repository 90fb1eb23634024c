#include "diagnostics/Problems.h"

#include <utility>

namespace lw {

void Problems::SetFile(Diagnostics fileProblems, ObjectSourceLines lines) {
    fileProblems_ = std::move(fileProblems);
    lines_ = std::move(lines);
    stale_ = true;
}

void Problems::ForgetFile() {
    fileProblems_.clear();
    lines_ = ObjectSourceLines();
    stale_ = true;
}

const Diagnostics& Problems::All(const ObjectStore& store, const std::string& file) {
    if (!stale_)
        return all_;
    all_ = fileProblems_;
    Diagnostics ofDocument = CheckDocument(store, lines_, file);
    all_.insert(all_.end(), std::make_move_iterator(ofDocument.begin()),
                std::make_move_iterator(ofDocument.end()));
    stale_ = false;
    ++generation_;
    return all_;
}

EditorObject* Problems::ObjectOf(const ObjectStore& store, const Diagnostic& problem) {
    if (problem.objectId != 0)
        return store.FindObject(problem.objectId);
    if (problem.object.empty())
        return nullptr;
    if (Phase* phase = store.FindPhaseByName(problem.object))
        return phase;
    if (Case* item = store.FindCaseByName(problem.object))
        return item;
    Switch* found = nullptr;
    store.ForEach<Switch>([&](Switch& item) {
        if (found == nullptr && item.name == problem.object)
            found = &item;
    });
    return found;
}

} // namespace lw
