#pragma once

#include "catalog/BlocksContainer.h"
#include "diagnostics/Diagnostic.h"
#include "document/TemplateDesc.h"
#include "document/TemplateReadReport.h"
#include "objects/Link.h"
#include "operations/NameIndex.h"
#include "operations/NameTriple.h"
#include "operations/ObjectStore.h"
#include "platform/UserPrompts.h"

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace lw {

class BlockSetPool;
class GuiHelperPool;

// What a build tells, when asked, about the records it could not use, with
// the lines they were read from.
struct BuildReport {
    std::string file;
    const RecordSourceLines* lines = nullptr;
    Diagnostics diagnostics;
};

// Turns a TemplateDesc, in which everything is named, into objects of the
// store, which refer to each other by id. A damaged template is built as far
// as it goes: each record stands for itself, the user is told about the worst
// of what had to be left out, and the operation as a whole never fails.
//
// The same steps read a template into an empty document and import one into
// the open document. For an import the caller passes a list: every lookup by
// name is then made in that list only, so that the imported names refer to
// the imported objects, and everything built is appended to it.
//
// The builders consume `desc`: they erase the block sets and gui helper
// records that they use, so that a second object of the same look takes the
// next record.
class TemplateBuilder {
public:
    TemplateBuilder(ObjectStore& store, BlocksContainer& blockPool, UserPrompts& prompts);

    // Every record or name the build drops is reported there as well.
    void SetReport(BuildReport* report) { report_ = report; }

    // Runs the six builders in their fixed order: each finds the objects of
    // the ones before, and the ids follow that order. `madeLinks`, when
    // given, collects a copy of each link made.
    void Build(TemplateDesc& desc, ObjectList* list = nullptr,
               std::vector<Link>* madeLinks = nullptr);

    // The steps that take gui helper records take them from one pool, which
    // erases the records taken when it ends.
    void BuildPhases(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers);
    void BuildLinks(TemplateDesc& desc, ObjectList* list, std::vector<Link>* madeLinks);
    void BuildCasesAndSwitches(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers);
    void BuildChecks(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers);
    void BuildActions(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers);
    void BuildUnlinkers(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers);

private:
    // The objects a search walks: the list if given, else the whole store.
    ObjectList SearchScope(const ObjectList* list) const;
    void ShowStop(const std::string& text);
    void Report(std::vector<int> RecordSourceLines::*list, std::size_t index, const char* code,
                const std::string& message, const std::string& object);

    // Phases.
    static void PlacePhase(GuiHelperPool& helpers, Phase& phase, std::int32_t& colorIndex);
    void TakeBlocks(BlockSetPool& blockSets, Phase& phase, const std::string& blockSetName,
                    std::size_t index);
    bool EnsureBlockInPool(const std::string& reference);
    void TakeGatesFromFirstBlock(Phase& phase);
    static void ResolveGeometryLinks(Phase& phase, const NameIndex<Phase>& phases);
    // Erases the first geometry word and returns the phase it names, if any.
    static const Phase* TakeGeometryLink(Phase& phase, const NameIndex<Phase>& phases);
    void ReportUnknownGeometryLinks(const TemplateDesc& desc, const NameIndex<Phase>& phases);

    // Links.
    bool AddLink(const LinkDesc& linkDesc, const NameIndex<Phase>& phases,
                 std::vector<Link>* madeLinks, std::size_t index);

    // Actions are found by their phase's name, their object name and name.
    using ActionIndex = std::unordered_map<NameTriple, Action*, NameTripleHash>;
    void IndexAction(ActionIndex& actions, Action& action) const;

    ObjectStore& store_;
    BlocksContainer& blockPool_;
    UserPrompts& prompts_;
    BuildReport* report_ = nullptr;
};

} // namespace lw
