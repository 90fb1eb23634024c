#pragma once

#include "operations/TemplateExporter.h"

#include <unordered_map>
#include <unordered_set>

namespace lw {

// Cuts the selection out of the document as a template of its own, for the
// clipboard and for saved selections. Records follow the selection's order,
// and what belongs to a phase (its block set, actions, unlinker, checks and
// the links it starts) follows the phase. Every reference that leaves the
// selection is cut: links and case or switch members outside it are left
// out, and a geometry link to an unselected phase is written "<DELETED>",
// which reads back as no link.
class SelectionExporter : public TemplateExporter {
public:
    SelectionExporter(const ObjectStore& store, TemplateDesc& desc);

    // Exports every selected phase, case and switch. Checks, actions and
    // unlinkers are not exported by themselves: they go with their phase.
    void ExportMembers();

protected:
    const Phase* ResolvePhase(std::int32_t id) const override;
    const Case* ResolveCase(std::int32_t id) const override;
    std::string LinkedPhaseName(std::int32_t id) const override;

private:
    void ExportPhaseWithItsParts(const Phase& phase);
    bool IsSelected(const EditorObject* object) const { return selected_.count(object) != 0; }

    std::unordered_set<const EditorObject*> selected_;
    // The first unlinker in the store of each phase id; a phase has one.
    std::unordered_map<std::int32_t, const Unlinker*> firstUnlinkers_;
};

} // namespace lw
