#pragma once

#include "document/TemplateDesc.h"
#include "operations/GeneratedNames.h"
#include "operations/ObjectStore.h"

#include <cstdint>
#include <string>

namespace lw {

// Appends the records of single objects to a description, turning ids into
// names. Each object is exported on its own, so that a caller may choose
// which objects to pass; the references an object holds are resolved by the
// lookups below, which a narrower export may override to cut references
// leaving the objects it writes. Nothing in the store is changed.
class TemplateExporter {
public:
    TemplateExporter(const ObjectStore& store, TemplateDesc& desc) : store(store), desc(desc) {}
    virtual ~TemplateExporter() = default;

    void ExportPhase(const Phase& phase);
    void ExportCase(const Case& object);
    void ExportSwitch(const Switch& object);
    // Leaves out a link whose either phase is absent.
    void ExportLink(const Link& link);
    // Checks, actions and unlinkers are left out with their gui helper when
    // their phase is absent.
    void ExportCheck(const Check& check);
    void ExportAction(const Action& action);
    void ExportUnlinker(const Unlinker& unlinker);

protected:
    // The phase or case an id names; null for an id that names nothing or
    // an object of another kind.
    virtual const Phase* ResolvePhase(std::int32_t id) const;
    virtual const Case* ResolveCase(std::int32_t id) const;
    // The word a phase's geometry parameters hold for its linked phase.
    virtual std::string LinkedPhaseName(std::int32_t id) const;

    const ObjectStore& store;
    TemplateDesc& desc;

private:
    GuiHelperDesc& AddGuiHelper(const EditorObject& object, const std::string& objectName);
};

// Appends the document to `desc`, which the caller has made empty: phases
// with their block sets, cases, switches, links, checks, actions and
// unlinkers, each kind in the order of the store.
void ExportToDesc(const ObjectStore& store, TemplateDesc& desc);

} // namespace lw
