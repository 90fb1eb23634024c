#include "QtLineAdditionalDlg.h"

#include "FieldBinding.h"

#include <QLineEdit>

QtLineAdditionalDlg::QtLineAdditionalDlg(lw::LineAdditionalDlg& form, lw::UserPrompts& prompts,
                                         QWidget* parent)
    : QtGeometryAspectDlg(lw::LineAdditionalDlg::kTitle, form, prompts, parent), line_(form) {
    // The label's spelling is the one the users know.
    offset_ = AddNumberRow(tr("Offest (m):"), "offset");
    deflection_ = AddNumberRow(tr("Deflection:"), "deflection");
    ShowModel();
}

void QtLineAdditionalDlg::TakeWidgets() {
    QtGeometryAspectDlg::TakeWidgets();
    TakeNumber(offset_, line_.offset);
    TakeNumber(deflection_, line_.deflection);
}

void QtLineAdditionalDlg::ShowModel() {
    QtGeometryAspectDlg::ShowModel();
    ShowNumber(offset_, line_.offset);
    ShowNumber(deflection_, line_.deflection);
}
