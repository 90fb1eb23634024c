#include "dialogs/QtLineAdditionalDlg.h"

#include "platform/RecordingPrompts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class QtLineAdditionalDlgTest : public QObject {
    Q_OBJECT

private slots:
    void randomAspectAndNewOffset() {
        lw::RecordingPrompts prompts;
        lw::LineAdditionalDlg form("9", "100", "5");
        QtLineAdditionalDlg dialog(form, prompts);
        dialog.show();
        QCOMPARE(dialog.findChild<QLineEdit*>("aspectValue")->text(), QString("9"));
        dialog.findChild<QComboBox*>("aspectCombo")->setCurrentIndex(2);
        dialog.findChild<QLineEdit*>("offset")->setText("250");
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(form.param1, std::string("-1"));
        QCOMPARE(form.param2, std::string("250"));
        QCOMPARE(form.param3, std::string("5"));
    }
};

QTEST_MAIN(QtLineAdditionalDlgTest)
#include "QtLineAdditionalDlgTest.moc"
