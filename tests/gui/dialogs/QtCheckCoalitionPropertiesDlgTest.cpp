#include "dialogs/QtCheckCoalitionPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>

using Texts = std::vector<std::string>;

class QtCheckCoalitionPropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void boxesMakeTheWord() {
        lw::test::SampleEditor editor;
        editor.StartUp();
        lw::Check& check = *editor.weaver.NewCheck();
        check.params = {"e"};
        lw::CheckCoalitionPropertiesDlg form(editor.weaver, check);
        QtCheckCoalitionPropertiesDlg dlg(form, editor.prompts);
        dlg.show();
        QVERIFY(dlg.findChild<QCheckBox*>("enemy")->isChecked());
        dlg.findChild<QCheckBox*>("friendly")->click();
        dlg.findChild<QCheckBox*>("neutral")->click();
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(check.params, Texts{"fen"});
    }
};

QTEST_MAIN(QtCheckCoalitionPropertiesDlgTest)
#include "QtCheckCoalitionPropertiesDlgTest.moc"
