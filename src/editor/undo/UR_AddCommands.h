#pragma once

#include "objects/Action.h"
#include "objects/Case.h"
#include "objects/Check.h"
#include "objects/Link.h"
#include "objects/Phase.h"
#include "objects/Switch.h"
#include "objects/Unlinker.h"
#include "undo/UR_Command.h"

#include <vector>

namespace lw {

// The additions of single objects. Each is built once the new object is
// final and keeps a copy of it: undo takes the object away, redo brings a new
// one back under the same id at the end of `objects`, each time with the
// references by which other objects point back at it.
template <typename T> class UR_AddObjectCmd : public UR_Command {
public:
    UR_AddObjectCmd(ObjectStore* editor, const T& object) : UR_Command(editor), snapshot(object) {}
    void Undo() override;
    void Redo() override;

private:
    Snapshot<T> snapshot;
};

extern template class UR_AddObjectCmd<Action>;
extern template class UR_AddObjectCmd<Check>;
extern template class UR_AddObjectCmd<Case>;
extern template class UR_AddObjectCmd<Switch>;
extern template class UR_AddObjectCmd<Unlinker>;

class UR_AddNewActionCmd : public UR_AddObjectCmd<Action> {
public:
    using UR_AddObjectCmd::UR_AddObjectCmd;
};
class UR_AddNewCheckCmd : public UR_AddObjectCmd<Check> {
public:
    using UR_AddObjectCmd::UR_AddObjectCmd;
};
class UR_AddNewCaseCmd : public UR_AddObjectCmd<Case> {
public:
    using UR_AddObjectCmd::UR_AddObjectCmd;
};
class UR_AddNewSwitchCmd : public UR_AddObjectCmd<Switch> {
public:
    using UR_AddObjectCmd::UR_AddObjectCmd;
};
class UR_AddNewUnlinkerCmd : public UR_AddObjectCmd<Unlinker> {
public:
    using UR_AddObjectCmd::UR_AddObjectCmd;
};

// A placed phase together with the actions made for its block properties.
// The phase's own `actionIds` names them, so neither step needs to touch it.
class UR_AddNewPhaseCmd : public UR_Command {
public:
    UR_AddNewPhaseCmd(ObjectStore* editor, const Phase& phase) : UR_Command(editor), phase(phase) {}
    // The caller adds the phase's actions in the order they were made.
    void AddAction(const Action& action) { actions.emplace_back(action); }
    void Undo() override;
    void Redo() override;

private:
    PhaseSnapshot phase;
    std::vector<ActionSnapshot> actions;
};

class UR_AddNewLinkCmd : public UR_Command {
public:
    UR_AddNewLinkCmd(ObjectStore* editor, const Link& link) : UR_Command(editor), link(link) {}
    // Erases the first equal link only: the same link may stand twice.
    void Undo() override;
    void Redo() override;

private:
    Link link;
};

} // namespace lw
