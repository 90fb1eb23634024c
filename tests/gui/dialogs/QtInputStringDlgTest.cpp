#include "dialogs/QtInputStringDlg.h"

#include "platform/RecordingPrompts.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class QtInputStringDlgTest : public QObject {
    Q_OBJECT

private slots:
    void theEditedTextComesBack() {
        lw::RecordingPrompts prompts;
        lw::InputStringDlg form("", "first");
        QtInputStringDlg dialog(form, prompts);
        dialog.show();
        QCOMPARE(dialog.windowTitle(), QString("Input String"));
        auto* edit = dialog.findChild<QLineEdit*>("text");
        QCOMPARE(dialog.focusWidget(), edit);
        QCOMPARE(edit->text(), QString("first"));
        edit->setText("Fire");
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(form.text, std::string("Fire"));
    }
};

QTEST_MAIN(QtInputStringDlgTest)
#include "QtInputStringDlgTest.moc"
