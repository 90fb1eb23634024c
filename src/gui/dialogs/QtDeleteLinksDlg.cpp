#include "QtDeleteLinksDlg.h"

#include "QtText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

QtDeleteLinksDlg::QtDeleteLinksDlg(lw::DeleteLinksDlg& form, lw::UserPrompts& prompts,
                                   QWidget* parent)
    : FormView(lw::DeleteLinksDlg::kTitle, form, prompts, parent) {
    linkView_ = new QTableWidget(this);
    linkView_->setObjectName("linkView");
    linkView_->setShowGrid(true);
    linkView_->setSelectionBehavior(QAbstractItemView::SelectRows);
    linkView_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    linkView_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    linkView_->verticalHeader()->hide();
    MakeColumns();
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

void QtDeleteLinksDlg::MakeColumns() {
    const auto& columns = lw::DeleteLinksDlg::kColumns;
    linkView_->setColumnCount(static_cast<int>(columns.size()));
    for (int i = 0; i < linkView_->columnCount(); ++i) {
        linkView_->setHorizontalHeaderItem(i, new QTableWidgetItem(ToQString(columns[i].title)));
        linkView_->setColumnWidth(i, columns[i].width);
    }
}

void QtDeleteLinksDlg::TakeWidgets() {
    for (int i = 0; i < linkView_->rowCount() && i < static_cast<int>(form_.linkView.size()); ++i)
        form_.linkView[i].selected = linkView_->item(i, 0)->isSelected();
}

void QtDeleteLinksDlg::ShowModel() {
    const QSignalBlocker blocker(linkView_);
    linkView_->clearContents();
    linkView_->setRowCount(static_cast<int>(form_.linkView.size()));
    for (int row = 0; row < linkView_->rowCount(); ++row) {
        const lw::DeleteLinksDlg::Row& shown = form_.linkView[row];
        for (int column = 0; column < linkView_->columnCount(); ++column)
            linkView_->setItem(row, column, new QTableWidgetItem(ToQString(shown.texts[column])));
        for (int column = 0; column < linkView_->columnCount(); ++column)
            linkView_->item(row, column)->setSelected(shown.selected);
    }
}
