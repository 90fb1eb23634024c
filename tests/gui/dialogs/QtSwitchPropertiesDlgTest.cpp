#include "dialogs/QtSwitchPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

class QtSwitchPropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor_ = std::make_unique<lw::test::SampleEditor>();
        editor_->Open("scg\\sample_rich.mt");
    }

    void writesTheFieldsAndCasesOnOk() {
        lw::Switch& air = Named("SwitchAir");
        lw::SwitchPropertiesDlg form(editor_->weaver, air, {});
        QtSwitchPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        auto* bomber = dlg.findChild<QRadioButton*>("bomberRadio");
        QVERIFY(!bomber->isEnabled());
        auto* candidates = dlg.findChild<QComboBox*>("candidateCombo");
        candidates->setCurrentIndex(candidates->findText("CaseFront"));
        dlg.findChild<QPushButton*>("addButton")->click();
        dlg.findChild<QComboBox*>("preliminaryCombo")->setCurrentIndex(3);
        QVERIFY(bomber->isEnabled());
        bomber->click();
        dlg.findChild<QLineEdit*>("number")->setText("3");
        dlg.findChild<QLineEdit*>("name")->setText("SwitchSky");

        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(air.name, std::string("SwitchSky"));
        QCOMPARE(air.number, 3);
        QCOMPARE(air.planeType, 2);
        QCOMPARE(editor_->weaver.FindCaseByName("CaseFront")->switchId, air.id);
    }

    void aNumberAboveTheCasesKeepsTheDialogOpen() {
        lw::Switch& water = Named("SwitchWater");
        lw::SwitchPropertiesDlg form(editor_->weaver, water, {});
        QtSwitchPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        QVERIFY(dlg.findChild<QRadioButton*>("bomberRadio")->isChecked());
        dlg.findChild<QLineEdit*>("number")->setText("2");
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor_->prompts.MessageTexts(),
                 std::vector<std::string>{
                     "Switch number can't be large than total case number in the list"});
        QCOMPARE(water.number, 1);
    }

private:
    lw::Switch& Named(const std::string& name) {
        lw::Switch* found = nullptr;
        editor_->weaver.ForEach<lw::Switch>(
            [&](lw::Switch& s) { found = s.name == name ? &s : found; });
        return *found;
    }

    std::unique_ptr<lw::test::SampleEditor> editor_;
};

QTEST_MAIN(QtSwitchPropertiesDlgTest)
#include "QtSwitchPropertiesDlgTest.moc"
