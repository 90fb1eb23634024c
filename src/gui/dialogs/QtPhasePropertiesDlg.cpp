#include "QtPhasePropertiesDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

template <typename Widget> Widget* Named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

} // namespace

QtPhasePropertiesDlg::QtPhasePropertiesDlg(lw::CPhasePropertiesDlg& form,
                                           lw::PhaseSubDialogs& subDialogs,
                                           lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::CPhasePropertiesDlg::kTitle, form, prompts, parent), subDialogs_(subDialogs) {
    MakeWidgets();

    auto* nameRow = new QFormLayout;
    nameRow->addRow(tr("Name:"), name_);
    auto* choiceRow = new QHBoxLayout;
    choiceRow->addWidget(mainBlockRadio_);
    choiceRow->addWidget(folderRadio_);
    choiceRow->addStretch();
    choiceRow->addWidget(new QLabel(tr("Select phase color:"), this));
    choiceRow->addWidget(colorCombo_);
    // The block combo and the folder combo share one place; only one shows.
    auto* blockRow = new QHBoxLayout;
    blockRow->addWidget(mainBlockCombo_);
    blockRow->addWidget(folderCombo_);
    auto* additionalButtons = new QVBoxLayout;
    additionalButtons->addWidget(addButton_);
    additionalButtons->addWidget(deleteSelectedButton_);
    additionalButtons->addWidget(deleteAllButton_);
    additionalButtons->addStretch();
    auto* additionalRow = new QHBoxLayout;
    additionalRow->addWidget(additionalList_, 1);
    additionalRow->addLayout(additionalButtons);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(nameRow);
    layout->addLayout(choiceRow);
    layout->addLayout(blockRow);
    layout->addLayout(ConnectorLists());
    layout->addWidget(new QLabel(tr("Additional Blocks Sets:"), this));
    layout->addLayout(additionalRow);
    layout->addLayout(GenerationFields());
    layout->addWidget(moreParametersButton_, 0, Qt::AlignLeft);
    layout->addWidget(OkCancelButtons());

    ConnectEvents();
    ShowModel();
}

void QtPhasePropertiesDlg::MakeWidgets() {
    name_ = Named(new QLineEdit(this), "name");
    mainBlockRadio_ = Named(new QRadioButton(tr("Main Block"), this), "mainBlockRadio");
    folderRadio_ = Named(new QRadioButton(tr("Blocks Folder"), this), "folderRadio");
    colorCombo_ = Named(new QComboBox(this), "colorCombo");
    mainBlockCombo_ = Named(new QComboBox(this), "mainBlockCombo");
    folderCombo_ = Named(new QComboBox(this), "folderCombo");
    inputList_ = Named(new QListWidget(this), "inputList");
    outputList_ = Named(new QListWidget(this), "outputList");
    additionalList_ = Named(new QListWidget(this), "additionalList");
    addButton_ = Named(new QPushButton(tr("Add Blocks"), this), "addButton");
    deleteSelectedButton_ =
        Named(new QPushButton(tr("Delete Selected"), this), "deleteSelectedButton");
    deleteAllButton_ = Named(new QPushButton(tr("Delete All"), this), "deleteAllButton");
    generationCombo_ = Named(new QComboBox(this), "generationCombo");
    allocationCombo_ = Named(new QComboBox(this), "allocationCombo");
    primaryCombo_ = Named(new QComboBox(this), "primaryCombo");
    secondaryCombo_ = Named(new QComboBox(this), "secondaryCombo");
    moreParametersButton_ =
        Named(new QPushButton(tr("More Parameters..."), this), "moreParametersButton");
}

QGridLayout* QtPhasePropertiesDlg::ConnectorLists() {
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("Input Connectors:"), this), 0, 0);
    grid->addWidget(new QLabel(tr("Output Connectors:"), this), 0, 1);
    grid->addWidget(inputList_, 1, 0);
    grid->addWidget(outputList_, 1, 1);
    return grid;
}

QGridLayout* QtPhasePropertiesDlg::GenerationFields() {
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("Generation Type:"), this), 0, 0);
    grid->addWidget(generationCombo_, 0, 1);
    grid->addWidget(new QLabel(tr("Allocation Type:"), this), 0, 2);
    grid->addWidget(allocationCombo_, 0, 3);
    grid->addWidget(new QLabel(tr("Primary Link:"), this), 1, 0);
    grid->addWidget(primaryCombo_, 1, 1);
    grid->addWidget(new QLabel(tr("SecondaryLink:"), this), 1, 2);
    grid->addWidget(secondaryCombo_, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return grid;
}

void QtPhasePropertiesDlg::ConnectEvents() {
    connect(mainBlockCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnMainBlockChanged(); }); });
    connect(folderCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnFolderChanged(); }); });
    connect(mainBlockRadio_, &QRadioButton::clicked, this,
            [this] { Handle([&] { form_.OnMainBlockRadio(); }); });
    connect(folderRadio_, &QRadioButton::clicked, this,
            [this] { Handle([&] { form_.OnFolderRadio(); }); });
    connect(addButton_, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnAddBlocks(subDialogs_); }); });
    connect(deleteSelectedButton_, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnDeleteSelected(); }); });
    connect(deleteAllButton_, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnDeleteAll(); }); });
    connect(generationCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnGenerationChanged(); }); });
    connect(moreParametersButton_, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnMoreParameters(subDialogs_); }); });
}

void QtPhasePropertiesDlg::TakeWidgets() {
    form_.name = ToStdString(name_->text());
    form_.folderChecked = folderRadio_->isChecked();
    TakeCombo(colorCombo_, form_.colorCombo);
    TakeCombo(mainBlockCombo_, form_.mainBlockCombo);
    TakeCombo(folderCombo_, form_.folderCombo);
    TakeSelection(additionalList_, form_.additionalList);
    TakeCombo(generationCombo_, form_.generationCombo);
    TakeCombo(allocationCombo_, form_.allocationCombo);
    TakeCombo(primaryCombo_, form_.primaryCombo);
    TakeCombo(secondaryCombo_, form_.secondaryCombo);
}

void QtPhasePropertiesDlg::ShowModel() {
    name_->setText(ToQString(form_.name));
    (form_.folderChecked ? folderRadio_ : mainBlockRadio_)->setChecked(true);
    mainBlockRadio_->setEnabled(form_.radiosEnabled);
    folderRadio_->setEnabled(form_.radiosEnabled);
    ShowCombo(colorCombo_, form_.colorCombo);
    ShowCombo(mainBlockCombo_, form_.mainBlockCombo);
    ShowCombo(folderCombo_, form_.folderCombo);
    ShowList(inputList_, form_.inputList);
    ShowList(outputList_, form_.outputList);
    ShowList(additionalList_, form_.additionalList);
    addButton_->setEnabled(form_.addBlocksEnabled);
    deleteSelectedButton_->setEnabled(form_.deleteSelectedEnabled);
    deleteAllButton_->setEnabled(form_.deleteAllEnabled);
    ShowCombo(generationCombo_, form_.generationCombo);
    ShowCombo(allocationCombo_, form_.allocationCombo);
    ShowCombo(primaryCombo_, form_.primaryCombo);
    ShowCombo(secondaryCombo_, form_.secondaryCombo);
    moreParametersButton_->setEnabled(form_.moreParametersEnabled);
}
