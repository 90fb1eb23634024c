#pragma once

#include "FormDialog.h"
#include "dialogs/CAddBlocksDlg.h"

class QListWidget;

// The view of "Add Blocks": the blocks that fit the main block, any number
// of them to choose.
class QtAddBlocksDlg : public FormView<lw::CAddBlocksDlg> {
    Q_OBJECT

public:
    QtAddBlocksDlg(lw::CAddBlocksDlg& form, lw::UserPrompts& prompts, QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QListWidget* blockList_ = nullptr;
};
