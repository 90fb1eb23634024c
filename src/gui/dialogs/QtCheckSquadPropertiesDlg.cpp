#include "QtCheckSquadPropertiesDlg.h"

#include "FieldBinding.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

QtCheckSquadPropertiesDlg::QtCheckSquadPropertiesDlg(lw::CheckSquadPropertiesDlg& form,
                                                     lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::CheckSquadPropertiesDlg::kTitle, form, prompts, parent) {
    usePlayerSquad_ = new QCheckBox(tr("Use '$playersquad'"), this);
    usePlayerSquad_->setObjectName("usePlayerSquad");
    useServerDate_ = new QCheckBox(tr("Get Date from Server"), this);
    useServerDate_->setObjectName("useServerDate");
    squadId_ = new QLineEdit(this);
    squadId_->setObjectName("squadId");
    date_ = new QCalendarWidget(this);
    date_->setObjectName("date");

    auto* squadRow = new QFormLayout;
    squadRow->addRow(tr("Squad ID:"), squadId_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(usePlayerSquad_);
    layout->addWidget(useServerDate_);
    layout->addLayout(squadRow);
    layout->addWidget(date_);
    layout->addWidget(OkCancelButtons());

    connect(usePlayerSquad_, &QCheckBox::clicked, this,
            [this] { Handle([&] { form_.OnUsePlayerSquadClicked(); }); });
    connect(useServerDate_, &QCheckBox::clicked, this,
            [this] { Handle([&] { form_.OnUseServerDateClicked(); }); });
    ShowModel();
}

// The calendar always holds a real day, so what it shows is a valid date.
void QtCheckSquadPropertiesDlg::TakeWidgets() {
    form_.usePlayerSquad = usePlayerSquad_->isChecked();
    form_.useServerDate = useServerDate_->isChecked();
    TakeNumber(squadId_, form_.squadId);
    const QDate shown = date_->selectedDate();
    form_.date =
        lw::CalendarDate{shown.day(), shown.month(), shown.year(), lw::CalendarDate::Status::Valid};
}

void QtCheckSquadPropertiesDlg::ShowModel() {
    usePlayerSquad_->setChecked(form_.usePlayerSquad);
    useServerDate_->setChecked(form_.useServerDate);
    ShowNumber(squadId_, form_.squadId);
    if (form_.date.status == lw::CalendarDate::Status::Valid)
        date_->setSelectedDate(QDate(form_.date.year, form_.date.month, form_.date.day));
    date_->setVisible(form_.dateShown);
}
