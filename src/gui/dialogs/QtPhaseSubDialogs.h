#pragma once

#include "DialogRunner.h"
#include "dialogs/PhaseSubDialogs.h"
#include "platform/UserPrompts.h"

class QWidget;

// The dialogs that the phase dialog opens over itself, as Qt dialogs.
class QtPhaseSubDialogs : public lw::PhaseSubDialogs {
public:
    QtPhaseSubDialogs(DialogRunner& runner, lw::UserPrompts& prompts, QWidget* parent)
        : runner_(runner), prompts_(prompts), parent_(parent) {}

    bool Run(lw::CAddBlocksDlg& dialog) override;
    bool Run(lw::AzimuthAdditionalDlg& dialog) override;
    bool Run(lw::CFractalAdditionalDlg& dialog) override;
    bool Run(lw::LineAdditionalDlg& dialog) override;

private:
    template <typename View, typename Form> bool RunView(Form& form);

    DialogRunner& runner_;
    lw::UserPrompts& prompts_;
    QWidget* parent_;
};
