#pragma once

#include "QtGeometryAspectDlg.h"

class QLineEdit;

// The view of "Line Additional Parameters".
class QtLineAdditionalDlg : public QtGeometryAspectDlg {
    Q_OBJECT

public:
    QtLineAdditionalDlg(lw::LineAdditionalDlg& form, lw::UserPrompts& prompts,
                        QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    lw::LineAdditionalDlg& line_;
    QLineEdit* offset_ = nullptr;
    QLineEdit* deflection_ = nullptr;
};
