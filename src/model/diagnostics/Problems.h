#pragma once

#include "diagnostics/Diagnostic.h"
#include "diagnostics/DocumentChecks.h"
#include "operations/ObjectStore.h"

#include <string>

namespace lw {

// What is wrong with the open document: the problems its file showed when
// it was read, and those of the document as it stands, which are checked
// again only when asked after a change.
class Problems {
public:
    // What reading and building the file just opened found, and where its
    // objects came from.
    void SetFile(Diagnostics fileProblems, ObjectSourceLines lines);
    // The file no longer holds what was read from it, as after a save: its
    // lines and their problems go.
    void ForgetFile();
    // The document has changed: its own checks are made again when asked.
    void DocumentChanged() { stale_ = true; }

    // Every problem, those of the file first, each list in its own order;
    // the document's own are told as of `file`.
    const Diagnostics& All(const ObjectStore& store, const std::string& file);
    // Goes up each time the problems are worked out anew, so that a view of
    // them fills itself again only then.
    std::size_t Generation() const { return generation_; }
    // The object a problem concerns: by its id, or else the phase, case or
    // switch of its name; null for none.
    static EditorObject* ObjectOf(const ObjectStore& store, const Diagnostic& problem);

private:
    Diagnostics fileProblems_;
    ObjectSourceLines lines_;
    Diagnostics all_;
    bool stale_ = true;
    std::size_t generation_ = 0;
};

} // namespace lw
