#include "dialogs/QtCheckLocationTypePropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QtTest>

using Texts = std::vector<std::string>;

class QtCheckLocationTypePropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void typeChangesShowItsBoxesAndKeepStoredKinds() {
        lw::test::SampleEditor editor;
        editor.StartUp();
        lw::Check& check = *editor.weaver.NewCheck();
        check.params = {"AirObjective", "Balloon"};
        lw::CheckLocationTypePropertiesDlg form(editor.weaver, check);
        QtCheckLocationTypePropertiesDlg dlg(form, editor.prompts);
        dlg.show();
        auto box = [&](int index) {
            return dlg.findChild<QCheckBox*>(QString("box%1").arg(index));
        };
        auto* types = dlg.findChild<QComboBox*>("typeCombo");
        auto* ok = dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QVERIFY(box(5)->isVisible() && box(5)->isChecked());
        QVERIFY(!box(7)->isVisible());

        types->setCurrentIndex(3);
        ok->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor.prompts.MessageTexts(), Texts{"Select at least one check box!"});
        QCOMPARE(check.params, (Texts{"AirObjective", "Balloon"}));

        types->setCurrentIndex(2);
        // All 23 boxes of "Decoration" fit on the test's 800 by 600 screen
        // without scrolling, so OK can always be reached.
        QVERIFY(dlg.sizeHint().height() < dlg.screen()->availableGeometry().height() - 48);
        QVERIFY(dlg.findChild<QScrollArea*>() == nullptr);
        QCOMPARE(box(7)->text(), QString("Balloon"));
        QVERIFY(box(7)->isVisible() && box(7)->isChecked() && !box(5)->isChecked());
        box(1)->click();
        ok->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(check.params, (Texts{"Decoration", "Transport", "Balloon"}));
    }
};

QTEST_MAIN(QtCheckLocationTypePropertiesDlgTest)
#include "QtCheckLocationTypePropertiesDlgTest.moc"
