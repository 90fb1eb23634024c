#include "dialogs/QtCheckRangePropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using Texts = std::vector<std::string>;

class QtCheckRangePropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    // A refused range is written all the same and the dialog stays open.
    void refusedRangeThenTheParameter() {
        lw::test::SampleEditor editor;
        editor.StartUp();
        lw::Check& check = *editor.weaver.NewCheck();
        check.params = {lw::kPrimaryLinkPhase, "closest_outof", "1000"};
        lw::CheckRangePropertiesDlg form(editor.weaver, check);
        QtCheckRangePropertiesDlg dlg(form, editor.prompts);
        dlg.show();
        auto* closest = dlg.findChild<QCheckBox*>("closest");
        auto* range = dlg.findChild<QLineEdit*>("range");
        auto* ok = dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QVERIFY(closest->isChecked());
        closest->click();
        range->setText("1000001");
        ok->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor.prompts.MessageTexts(),
                 Texts{"Please enter a whole number from -1 to 1000000."});
        QCOMPARE(check.params, (Texts{lw::kPrimaryLinkPhase, "at", "1000001"}));

        range->setText("500");
        dlg.findChild<QCheckBox*>("useParameter")->click();
        QVERIFY(!range->isEnabled());
        ok->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(check.params, (Texts{lw::kPrimaryLinkPhase, "at", "-1"}));
    }
};

QTEST_MAIN(QtCheckRangePropertiesDlgTest)
#include "QtCheckRangePropertiesDlgTest.moc"
