#include "dialogs/QtAddNewLinkDlg.h"

#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class QtAddNewLinkDlgTest : public QObject {
    Q_OBJECT

private:
    static void PressOk(QDialog& dialog) {
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    }

private slots:
    void pickingBothGatesMakesTheLink() {
        lw::test::SampleEditor e;
        e.StartUp();
        lw::Phase& from = *e.weaver.NewPhase();
        from.name = "Source";
        from.outputs = {{"out_b"}, {"out_a"}};
        lw::Phase& to = *e.weaver.NewPhase();
        to.name = "Target";
        to.inputs = {{"in"}};
        lw::AddNewLinkDlg form(e.weaver, from, to, false);
        QtAddNewLinkDlg dialog(form, e.prompts);
        dialog.show();
        QCOMPARE(dialog.windowTitle(), QString("Add new Target Link"));
        auto* fromName = dialog.findChild<QLineEdit*>("fromName");
        QCOMPARE(fromName->text(), QString("Source"));
        QVERIFY(fromName->isReadOnly());

        PressOk(dialog);
        QVERIFY(dialog.isVisible());
        QCOMPARE(e.prompts.MessageTexts(), std::vector<std::string>{"Select both connections!"});

        auto* fromCombo = dialog.findChild<QComboBox*>("fromCombo");
        QCOMPARE(fromCombo->itemText(0), QString("out_a"));
        fromCombo->setCurrentIndex(0);
        dialog.findChild<QComboBox*>("toCombo")->setCurrentIndex(0);
        PressOk(dialog);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        const lw::Link expected{false, from.id, "out_a", to.id, "in"};
        QVERIFY(form.link == expected);
    }
};

QTEST_MAIN(QtAddNewLinkDlgTest)
#include "QtAddNewLinkDlgTest.moc"
