#include "dialogs/QtAzimuthAdditionalDlg.h"

#include "platform/RecordingPrompts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class QtAzimuthAdditionalDlgTest : public QObject {
    Q_OBJECT

private:
    static void PressOk(QDialog& dialog) {
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    }

private slots:
    void clearingTheServerBoxOffersTheDefault() {
        lw::RecordingPrompts prompts;
        lw::AzimuthAdditionalDlg form("-3", "0", "0");
        QtAzimuthAdditionalDlg dialog(form, prompts);
        dialog.show();
        auto* fromServer = dialog.findChild<QCheckBox*>("fromServer");
        auto* aspect = dialog.findChild<QComboBox*>("aspectCombo");
        QVERIFY(fromServer->isChecked());
        QCOMPARE(aspect->currentIndex(), -1);
        QVERIFY(!aspect->isEnabled());

        fromServer->click();
        QCOMPARE(aspect->currentText(), QString("Default"));
        QVERIFY(aspect->isEnabled());
        dialog.findChild<QLineEdit*>("range")->setText("1500");
        dialog.findChild<QLineEdit*>("azimuth")->setText("45");
        PressOk(dialog);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(form.param1, std::string("-1"));
        QCOMPARE(form.param2, std::string("1500.000000"));
        QCOMPARE(form.param3, std::string("45"));
    }

    void textThatIsNoNumberKeepsItOpen() {
        lw::RecordingPrompts prompts;
        lw::AzimuthAdditionalDlg form("7", "10", "20");
        QtAzimuthAdditionalDlg dialog(form, prompts);
        dialog.show();
        dialog.findChild<QLineEdit*>("range")->setText("far");
        PressOk(dialog);
        QVERIFY(dialog.isVisible());
        QCOMPARE(prompts.MessageTexts().size(), size_t(1));
        QCOMPARE(form.param2, std::string("10"));
    }
};

QTEST_MAIN(QtAzimuthAdditionalDlgTest)
#include "QtAzimuthAdditionalDlgTest.moc"
