#include "dialogs/QtUnlinkPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

class QtUnlinkPropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor_ = std::make_unique<lw::test::SampleEditor>();
        editor_->Open("scg\\sample_rich.mt");
    }

    void aNewUnlinkerTakesTheMovedGatesOnOk() {
        lw::Unlinker& fresh = *editor_->weaver.NewUnlinker();
        lw::UnlinkPropertiesDlg form(editor_->weaver, fresh, 0);
        QtUnlinkPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        auto* gates = dlg.findChild<QListWidget*>("gateList");
        QVERIFY(!gates->isEnabled());
        auto* phases = dlg.findChild<QComboBox*>("phaseCombo");
        phases->setCurrentIndex(phases->findText("HomeLanding"));
        QVERIFY(gates->isEnabled());
        QCOMPARE(gates->item(0)->text(), QString("input:done"));
        gates->item(0)->setSelected(true);
        dlg.findChild<QPushButton*>("moveToUnlinkButton")->click();

        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(fresh.phaseId, editor_->weaver.FindPhaseByName("HomeLanding")->id);
        QCOMPARE(fresh.inputGates, std::vector<std::string>{"done"});
    }

    void aPhaseWithAnUnlinkerKeepsTheDialogOpen() {
        lw::Unlinker& fresh = *editor_->weaver.NewUnlinker();
        lw::UnlinkPropertiesDlg form(editor_->weaver, fresh,
                                     editor_->weaver.FindPhaseByName("BomberRaid")->id);
        QtUnlinkPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        auto* gates = dlg.findChild<QListWidget*>("gateList");
        gates->item(0)->setSelected(true);
        emit gates->itemDoubleClicked(gates->item(0));
        QCOMPARE(dlg.findChild<QListWidget*>("unlinkList")->count(), 1);
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor_->prompts.MessageTexts(),
                 std::vector<std::string>{"This phase already has an Unlinker connected!"});
        QCOMPARE(fresh.phaseId, 0);
    }

private:
    std::unique_ptr<lw::test::SampleEditor> editor_;
};

QTEST_MAIN(QtUnlinkPropertiesDlgTest)
#include "QtUnlinkPropertiesDlgTest.moc"
