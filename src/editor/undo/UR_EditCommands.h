#pragma once

#include "objects/Action.h"
#include "objects/Case.h"
#include "objects/Check.h"
#include "objects/Switch.h"
#include "objects/Unlinker.h"
#include "undo/UR_Command.h"

#include <optional>

namespace lw {

// One accepted property dialog. The launcher builds the command from the
// object before the dialog opens and completes it once the dialog is
// accepted. Undo and redo write back only the fields that the dialog edits,
// into the object found by id:
//   action    name, rules
//   check     params
//   unlinker  inputGates, outputGates
//   case      name, phaseIds, and the caseId of its phases
//   switch    name, number, preliminaryCheck, planeType, caseIds, and the
//             switchId of its cases
// Everything else of the object is left as it stands then.
template <typename T> class UR_EditObjectCmd : public UR_Command {
public:
    UR_EditObjectCmd(ObjectStore* editor, const T& object) : UR_Command(editor), before(object) {}
    // Takes the object as the dialog left it. A command never completed has
    // nothing to redo.
    void Complete(const T& object) { after.emplace(object); }
    void Undo() override;
    void Redo() override;

private:
    Snapshot<T> before;
    std::optional<Snapshot<T>> after;
};

extern template class UR_EditObjectCmd<Action>;
extern template class UR_EditObjectCmd<Check>;
extern template class UR_EditObjectCmd<Unlinker>;
extern template class UR_EditObjectCmd<Case>;
extern template class UR_EditObjectCmd<Switch>;

class UR_EditActionCmd : public UR_EditObjectCmd<Action> {
public:
    using UR_EditObjectCmd::UR_EditObjectCmd;
};
class UR_EditCheckCmd : public UR_EditObjectCmd<Check> {
public:
    using UR_EditObjectCmd::UR_EditObjectCmd;
};
class UR_EditUnlinkerCmd : public UR_EditObjectCmd<Unlinker> {
public:
    using UR_EditObjectCmd::UR_EditObjectCmd;
};
class UR_EditCaseCmd : public UR_EditObjectCmd<Case> {
public:
    using UR_EditObjectCmd::UR_EditObjectCmd;
};
class UR_EditSwitchCmd : public UR_EditObjectCmd<Switch> {
public:
    using UR_EditObjectCmd::UR_EditObjectCmd;
};

} // namespace lw
