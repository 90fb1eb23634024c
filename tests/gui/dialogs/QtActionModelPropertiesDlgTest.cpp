#include "dialogs/QtActionModelPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>

class QtActionModelPropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void choosingATypeRefillsMakeItWhichOkThenNeeds() {
        lw::test::SampleEditor editor;
        editor.StartUp();
        lw::Action& action = *editor.weaver.NewAction();
        action.rules = {{"set_model", {"fighter", "server decides"}, ""}};
        lw::ActionModelPropertiesDlg form(editor.weaver.modelList, action);
        QtActionModelPropertiesDlg dlg(form, editor.prompts);
        dlg.show();
        auto* types = dlg.findChild<QComboBox*>("typeCombo");
        auto* makeIt = dlg.findChild<QComboBox*>("makeItCombo");
        QCOMPARE(makeIt->currentText(), QString("server decides"));

        types->setCurrentIndex(types->findText("unique random bomber"));
        QCOMPARE(makeIt->count(), 2);
        auto* ok = dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        ok->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor.prompts.MessageTexts(),
                 std::vector<std::string>{"Make it must be selected!"});

        makeIt->setCurrentIndex(makeIt->findText("random friendly"));
        ok->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(action.rules.front().params,
                 (std::vector<std::string>{"unique random bomber", "random friendly"}));
    }
};

QTEST_MAIN(QtActionModelPropertiesDlgTest)
#include "QtActionModelPropertiesDlgTest.moc"
