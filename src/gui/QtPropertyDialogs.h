#pragma once

#include "dialogs/DialogRunner.h"
#include "platform/UserPrompts.h"
#include "seams/PropertyDialogs.h"

class QWidget;

namespace lw {
class Weaver;
}

// The editor's property dialogs: each opens the Qt view of its form on the
// live object, over the main window.
class QtPropertyDialogs : public lw::PropertyDialogs {
public:
    QtPropertyDialogs(lw::Weaver& weaver, lw::UserPrompts& prompts, DialogRunner& runner)
        : weaver_(weaver), prompts_(prompts), runner_(runner) {}

    void SetParent(QWidget* parent) { parent_ = parent; }

    bool EditPhase(lw::Phase& phase) override;
    bool EditCase(lw::Case& item, const std::vector<std::int32_t>& firstMembers) override;
    bool EditSwitch(lw::Switch& item, const std::vector<std::int32_t>& firstMembers) override;
    bool EditUnlinker(lw::Unlinker& unlinker, std::int32_t preselectedPhaseId) override;
    // A check of the free type has no editor: it cancels.
    bool EditCheck(lw::Check& check) override;
    bool EditAction(lw::Action& action, lw::ActionDialog dialog) override;
    bool AddLink(const lw::Phase& source, const lw::Phase& destination, lw::Link& link) override;
    bool DeleteLinks(const lw::Phase& phase, std::vector<lw::Link>& chosen) override;
    bool InputString(const std::string& title, std::string& text) override;

private:
    // Opens the view on the form; true when it ended with OK.
    template <typename View, typename Form> bool Run(Form& form);
    // Run, and the form's own test of what OK wrote.
    template <typename View, typename Form> bool RunChecked(Form& form);
    // The form of the check's editor and its view, made on the check.
    template <typename View, typename Form> bool EditCheckWith(lw::Check& check);

    lw::Weaver& weaver_;
    lw::UserPrompts& prompts_;
    DialogRunner& runner_;
    QWidget* parent_ = nullptr;
};
