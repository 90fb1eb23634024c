#pragma once

namespace lw {

class CAddBlocksDlg;
class AzimuthAdditionalDlg;
class CFractalAdditionalDlg;
class LineAdditionalDlg;

// The dialogs that the phase dialog opens over itself. Each runs on its form
// and answers true when it ended with OK.
class PhaseSubDialogs {
public:
    virtual ~PhaseSubDialogs() = default;
    virtual bool Run(CAddBlocksDlg& dialog) = 0;
    virtual bool Run(AzimuthAdditionalDlg& dialog) = 0;
    virtual bool Run(CFractalAdditionalDlg& dialog) = 0;
    virtual bool Run(LineAdditionalDlg& dialog) = 0;
};

} // namespace lw
