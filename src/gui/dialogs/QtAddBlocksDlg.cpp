#include "QtAddBlocksDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QVBoxLayout>

QtAddBlocksDlg::QtAddBlocksDlg(lw::CAddBlocksDlg& form, lw::UserPrompts& prompts, QWidget* parent)
    : FormDialog(ToQString(lw::CAddBlocksDlg::kTitle), parent), form_(form), prompts_(prompts) {
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

bool QtAddBlocksDlg::AcceptModel() {
    return form_.Ok(prompts_);
}
