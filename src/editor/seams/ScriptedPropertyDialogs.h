#pragma once

#include "seams/PropertyDialogs.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace lw {

// One opening of a property dialog, with everything the dialog could change.
// Only the pointers that its kind uses are set.
struct DialogCall {
    std::string dialog;
    // The title a dialog is given, where the caller gives one.
    std::string title;
    EditorObject* object = nullptr;
    Link* link = nullptr;
    std::vector<Link>* chosenLinks = nullptr;
    std::string* text = nullptr;
    std::vector<std::int32_t> firstMembers;
    std::int32_t preselectedPhaseId = 0;
};

// Dialogs that answer from a queue of outcomes, each with an optional change
// made to what the dialog shows before it closes; with the queue empty every
// dialog is cancelled. Each call is kept with its outcome, for replays and
// tests to report.
class ScriptedPropertyDialogs : public PropertyDialogs {
public:
    using Edit = std::function<void(DialogCall&)>;
    struct Answered {
        std::string dialog;
        std::string title;
        bool accepted;
    };

    void QueueOutcome(bool accept, Edit edit = Edit()) {
        outcomes_.push_back(Outcome{accept, std::move(edit)});
    }
    const std::vector<Answered>& Log() const { return log_; }

    bool EditPhase(Phase& phase) override;
    bool EditCase(Case& item, const std::vector<std::int32_t>& firstMembers) override;
    bool EditSwitch(Switch& item, const std::vector<std::int32_t>& firstMembers) override;
    bool EditUnlinker(Unlinker& unlinker, std::int32_t preselectedPhaseId) override;
    bool EditCheck(Check& check) override;
    bool EditAction(Action& action, ActionDialog dialog) override;
    bool AddLink(const Phase& source, const Phase& destination, Link& link) override;
    bool DeleteLinks(const Phase& phase, std::vector<Link>& chosen) override;
    bool InputString(const std::string& title, std::string& text) override;

private:
    struct Outcome {
        bool accept;
        Edit edit;
    };
    bool Answer(DialogCall call);

    std::deque<Outcome> outcomes_;
    std::vector<Answered> log_;
};

} // namespace lw
