#include "app/Weaver.h"
#include "document/TemplateDesc.h"
#include "operations/Acceptance.h"
#include "undo/UR_EditCommands.h"
#include "undo/UR_EditPhaseCmd.h"

#include <cstdint>
#include <memory>

namespace lw {

namespace {

// The skin and country editors are accepted with one rule of the right name
// and a first parameter; the model editor with one rule of two parameters.
bool HasSingleRule(const Action& action, const char* ruleName, std::size_t minParams,
                   std::size_t maxParams) {
    if (action.objectName.empty() || action.rules.size() != 1)
        return false;
    const ActionRule& rule = action.rules.front();
    if (rule.ruleName != ruleName || rule.params.size() < minParams ||
        rule.params.size() > maxParams)
        return false;
    for (std::size_t i = 0; i < minParams; ++i) {
        if (rule.params[i].empty())
            return false;
    }
    return true;
}

} // namespace

// The command is built before the dialog opens, so that it holds the object
// as it was; a dialog that is not accepted drops it again.
template <typename T, typename Command, typename OpenDialog>
void Weaver::EditWithDialog(T& object, OpenDialog openDialog) {
    auto command = std::make_unique<Command>(this, object);
    if (!openDialog(object))
        return;
    command->Complete(object);
    undoManager.Push(std::move(command));
}

void Weaver::EditObjectProperties(EditorObject* object) {
    if (auto* phase = As<Phase>(object)) {
        EditPhase(*phase);
    } else if (auto* unlinker = As<Unlinker>(object)) {
        EditWithDialog<Unlinker, UR_EditUnlinkerCmd>(*unlinker, [&](Unlinker& edited) {
            return Dialogs().EditUnlinker(edited, 0) && IsAcceptable(*this, edited);
        });
        Repaint();
    } else if (auto* item = As<Case>(object)) {
        EditWithDialog<Case, UR_EditCaseCmd>(*item, [&](Case& edited) {
            return Dialogs().EditCase(edited, {}) && IsAcceptable(*this, edited);
        });
        Repaint();
    } else if (auto* found = As<Switch>(object)) {
        EditWithDialog<Switch, UR_EditSwitchCmd>(*found, [&](Switch& edited) {
            return Dialogs().EditSwitch(edited, {}) && IsAcceptable(*this, edited);
        });
        Repaint();
    } else if (auto* check = As<Check>(object)) {
        EditCheck(*check);
    } else if (auto* action = As<Action>(object)) {
        EditAction(*action);
    }
}

void Weaver::EditPhase(Phase& phase) {
    auto command = std::make_unique<UR_EditPhaseCmd>(this, phase);
    if (!Dialogs().EditPhase(phase) || !IsAcceptable(*this, phase))
        return;
    command->Complete(phase);
    undoManager.Push(std::move(command));
    // The dialog gave the phase its block's gates anew, all open.
    RefreshGateMarks();
    Repaint();
}

// A free check has nothing to edit.
void Weaver::EditCheck(Check& check) {
    if (check.type == CheckFree)
        return;
    EditWithDialog<Check, UR_EditCheckCmd>(
        check, [&](Check& edited) { return Dialogs().EditCheck(edited); });
}

// The editor is chosen by the action's name. The dialogs write into the live
// action, so a result refused here stays in it, without a command.
void Weaver::EditAction(Action& action) {
    EditWithDialog<Action, UR_EditActionCmd>(action, [&](Action& edited) {
        if (edited.name == "Skin")
            return Dialogs().EditAction(edited, ActionDialog::Skin) &&
                   HasSingleRule(edited, "set_skin", 1, SIZE_MAX);
        if (edited.name == "Country")
            return Dialogs().EditAction(edited, ActionDialog::Country) &&
                   HasSingleRule(edited, "set_country", 1, SIZE_MAX);
        if (edited.name == "Model")
            return Dialogs().EditAction(edited, ActionDialog::Model) &&
                   HasSingleRule(edited, "set_model", 2, 2);
        return Dialogs().EditAction(edited, ActionDialog::General);
    });
}

} // namespace lw
