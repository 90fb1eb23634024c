#pragma once

#include "FormDialog.h"
#include "dialogs/CPhasePropertiesDlg.h"
#include "dialogs/PhaseSubDialogs.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

// The view of "Phase Properties": the name; how the blocks are chosen and the
// colour; the main block or the folder in one place; the gates of the main
// block; the additional block sets; the generation with its allocation and
// links; and the geometry parameters, which open a dialog of their own.
class QtPhasePropertiesDlg : public FormView<lw::CPhasePropertiesDlg> {
    Q_OBJECT

public:
    QtPhasePropertiesDlg(lw::CPhasePropertiesDlg& form, lw::PhaseSubDialogs& subDialogs,
                         lw::UserPrompts& prompts, QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    void MakeWidgets();
    QGridLayout* ConnectorLists();
    QGridLayout* GenerationFields();
    void ConnectEvents();

    lw::PhaseSubDialogs& subDialogs_;
    QLineEdit* name_ = nullptr;
    QRadioButton* mainBlockRadio_ = nullptr;
    QRadioButton* folderRadio_ = nullptr;
    QComboBox* colorCombo_ = nullptr;
    QComboBox* mainBlockCombo_ = nullptr;
    QComboBox* folderCombo_ = nullptr;
    QListWidget* inputList_ = nullptr;
    QListWidget* outputList_ = nullptr;
    QListWidget* additionalList_ = nullptr;
    QPushButton* addButton_ = nullptr;
    QPushButton* deleteSelectedButton_ = nullptr;
    QPushButton* deleteAllButton_ = nullptr;
    QComboBox* generationCombo_ = nullptr;
    QComboBox* allocationCombo_ = nullptr;
    QComboBox* primaryCombo_ = nullptr;
    QComboBox* secondaryCombo_ = nullptr;
    QPushButton* moreParametersButton_ = nullptr;
};
