#include "QtDeleteLinksDlg.h"

#include "ReportTable.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

QtDeleteLinksDlg::QtDeleteLinksDlg(lw::DeleteLinksDlg& form, lw::UserPrompts& prompts,
                                   QWidget* parent)
    : FormView(lw::DeleteLinksDlg::kTitle, form, prompts, parent) {
    linkView_ = MakeReportTable(lw::DeleteLinksDlg::kColumns, this);
    linkView_->setObjectName("linkView");
    auto* deleteButton = new QPushButton(tr("Delete Selected Links"), this);
    deleteButton->setObjectName("deleteSelectedButton");

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(linkView_);
    layout->addWidget(deleteButton);
    layout->addWidget(OkCancelButtons());

    connect(deleteButton, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnDeleteSelected(); }); });
    ShowModel();
}

void QtDeleteLinksDlg::TakeWidgets() {
    TakeRowSelection(linkView_, form_.linkView);
}

void QtDeleteLinksDlg::ShowModel() {
    ShowRows(linkView_, form_.linkView);
}
