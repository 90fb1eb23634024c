#include "dialogs/QtFractalAdditionalDlg.h"

#include "platform/RecordingPrompts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class QtFractalAdditionalDlgTest : public QObject {
    Q_OBJECT

private slots:
    void defaultAspectAndLeftType() {
        lw::RecordingPrompts prompts;
        lw::CFractalAdditionalDlg form("-2", "1500.000000", "45");
        QtFractalAdditionalDlg dialog(form, prompts);
        dialog.show();
        auto* aspectValue = dialog.findChild<QLineEdit*>("aspectValue");
        auto* type = dialog.findChild<QComboBox*>("typeCombo");
        QCOMPARE(aspectValue->text(), QString("-2"));
        QVERIFY(aspectValue->validator() != nullptr);
        QCOMPARE(type->currentIndex(), -1);

        dialog.findChild<QComboBox*>("aspectCombo")->setCurrentIndex(1);
        QCOMPARE(aspectValue->text(), QString("0"));
        QVERIFY(!aspectValue->isEnabled());
        dialog.findChild<QLineEdit*>("deviation")->setText("30");
        type->setCurrentIndex(1);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(form.param1, std::string("0"));
        QCOMPARE(form.param2, std::string("30"));
        QCOMPARE(form.param3, std::string("left"));
    }
};

QTEST_MAIN(QtFractalAdditionalDlgTest)
#include "QtFractalAdditionalDlgTest.moc"
