#include "dialogs/QtPhasePropertiesDlg.h"

#include "dialogs/AzimuthAdditionalDlg.h"
#include "dialogs/CAddBlocksDlg.h"
#include "dialogs/GeometryAspectDlg.h"
#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace {

const std::string kPatrol = "scg\\0\\blocks\\air\\patrol.group";
const std::string kPatrolHigh = "scg\\0\\blocks\\air\\patrol_high.group";

// Accepts every nested dialog: "Add Blocks" with patrol_high chosen, a
// geometry dialog with three fixed texts.
struct AcceptingSubDialogs : lw::PhaseSubDialogs {
    bool Run(lw::CAddBlocksDlg& dialog) override {
        dialog.blockList.Select(dialog.blockList.FindExact(kPatrolHigh));
        return dialog.Ok(prompts);
    }
    bool Run(lw::AzimuthAdditionalDlg& dialog) override { return Geometry(dialog); }
    bool Run(lw::CFractalAdditionalDlg& dialog) override { return Geometry(dialog); }
    bool Run(lw::LineAdditionalDlg& dialog) override { return Geometry(dialog); }

    template <typename Dialog> bool Geometry(Dialog& dialog) {
        dialog.param1 = "-1";
        dialog.param2 = "900.000000";
        dialog.param3 = "90";
        return true;
    }

    lw::RecordingPrompts prompts;
};

void Choose(QComboBox* combo, const std::string& text) {
    combo->setCurrentIndex(combo->findText(QString::fromStdString(text)));
}

void PressOk(QDialog& dlg) {
    dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

} // namespace

class QtPhasePropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void aNewPhaseGetsItsBlocksTypeLinkAndColour() {
        lw::test::SampleEditor e;
        e.Open("scg\\sample_rich.mt");
        lw::Phase& phase = *e.weaver.NewPhase();
        lw::CPhasePropertiesDlg form(e.weaver, phase);
        AcceptingSubDialogs sub;
        QtPhasePropertiesDlg dlg(form, sub, e.prompts);
        dlg.show();
        QCOMPARE(dlg.windowTitle(), QString("Phase Properties"));
        auto* addButton = dlg.findChild<QPushButton*>("addButton");
        QVERIFY(!addButton->isEnabled());

        dlg.findChild<QLineEdit*>("name")->setText("NorthPatrol");
        Choose(dlg.findChild<QComboBox*>("mainBlockCombo"), kPatrol);
        QCOMPARE(dlg.findChild<QListWidget*>("inputList")->count(), 3);
        QVERIFY(addButton->isEnabled());
        addButton->click();
        QCOMPARE(dlg.findChild<QListWidget*>("additionalList")->count(), 1);
        Choose(dlg.findChild<QComboBox*>("generationCombo"), "At");
        Choose(dlg.findChild<QComboBox*>("allocationCombo"), "random_pos");
        Choose(dlg.findChild<QComboBox*>("primaryCombo"), "ReconSweep");
        Choose(dlg.findChild<QComboBox*>("colorCombo"), "Green");
        PressOk(dlg);

        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(phase.name, std::string("NorthPatrol"));
        QCOMPARE(phase.blocks, (std::map<std::string, std::string>{
                                   {"main", kPatrol}, {"patrol_high_a", kPatrolHigh}}));
        QCOMPARE(phase.generationType, 0);
        QCOMPARE(phase.allocationType, std::string("random_pos"));
        QCOMPARE(phase.primaryLinkId, e.weaver.FindPhaseByName("ReconSweep")->id);
        QCOMPARE(phase.colorIndex, 2);
    }

    void theFolderRadioSwapsTheCombosAndWritesTheFolder() {
        lw::test::SampleEditor e;
        e.Open("scg\\sample_rich.mt");
        lw::Phase& phase = *e.weaver.NewPhase();
        lw::CPhasePropertiesDlg form(e.weaver, phase);
        AcceptingSubDialogs sub;
        QtPhasePropertiesDlg dlg(form, sub, e.prompts);
        dlg.show();
        auto* folders = dlg.findChild<QComboBox*>("folderCombo");
        QVERIFY(!folders->isVisible());
        dlg.findChild<QRadioButton*>("folderRadio")->click();
        QVERIFY(folders->isVisible());
        QVERIFY(!dlg.findChild<QComboBox*>("mainBlockCombo")->isVisible());
        QVERIFY(!dlg.findChild<QPushButton*>("deleteAllButton")->isEnabled());
        Choose(folders, "scg\\0\\blocks\\naval");
        QCOMPARE(phase.blocksFolder, std::string("scg\\0\\blocks\\naval"));
        QCOMPARE(dlg.findChild<QListWidget*>("outputList")->count(), 3);
    }

    void moreParametersFeedsTheGeometryAndARefusedOkStaysOpen() {
        lw::test::SampleEditor e;
        e.Open("scg\\sample_rich.mt");
        lw::Phase& recon = *e.weaver.FindPhaseByName("ReconSweep");
        lw::CPhasePropertiesDlg form(e.weaver, recon);
        AcceptingSubDialogs sub;
        QtPhasePropertiesDlg dlg(form, sub, e.prompts);
        dlg.show();
        dlg.findChild<QPushButton*>("moreParametersButton")->click();
        dlg.findChild<QLineEdit*>("name")->setText("");
        PressOk(dlg);
        QVERIFY(dlg.isVisible());
        QCOMPARE(e.prompts.MessageTexts(), std::vector<std::string>{"Empty phase name!"});
        QCOMPARE(recon.name, std::string("ReconSweep"));

        dlg.findChild<QLineEdit*>("name")->setText("ReconWide");
        PressOk(dlg);
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(recon.geoParams, (std::vector<std::string>{"-1", "900.000000", "90"}));
    }
};

QTEST_MAIN(QtPhasePropertiesDlgTest)
#include "QtPhasePropertiesDlgTest.moc"
