#include "dialogs/QtActionCountryPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>

class QtActionCountryPropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void okWaitsForACountryThenWritesIt() {
        lw::test::SampleEditor editor;
        editor.StartUp();
        lw::Action& action = *editor.weaver.NewAction();
        action.rules = {{"set_country", {"somewhere"}, ""}};
        lw::ActionCountryPropertiesDlg form(editor.weaver, action);
        QtActionCountryPropertiesDlg dlg(form, editor.prompts);
        dlg.show();
        auto* ok = dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        ok->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor.prompts.MessageTexts(),
                 std::vector<std::string>{"Country Type must be selected!"});

        auto* countries = dlg.findChild<QComboBox*>("countryCombo");
        countries->setCurrentIndex(countries->findText("enemy"));
        ok->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(action.rules, (std::vector<lw::ActionRule>{{"set_country", {"enemy"}, ""}}));
    }
};

QTEST_MAIN(QtActionCountryPropertiesDlgTest)
#include "QtActionCountryPropertiesDlgTest.moc"
