#include "QtAddBlocksDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QVBoxLayout>

QtAddBlocksDlg::QtAddBlocksDlg(lw::CAddBlocksDlg& form, lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::CAddBlocksDlg::kTitle, form, prompts, parent) {
    blockList_ = new QListWidget(this);
    blockList_->setObjectName("blockList");

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(blockList_);
    layout->addWidget(OkCancelButtons());
    ShowModel();
}

void QtAddBlocksDlg::TakeWidgets() {
    TakeSelection(blockList_, form_.blockList);
}

void QtAddBlocksDlg::ShowModel() {
    ShowList(blockList_, form_.blockList);
}
