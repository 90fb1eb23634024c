#include "dialogs/QtActionSkinPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>

class QtActionSkinPropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void theChosenSkinBecomesTheOneRule() {
        lw::test::SampleEditor editor;
        editor.StartUp();
        lw::Action& action = *editor.weaver.NewAction();
        action.rules = {{"set_skin", {"$enemy_skin_1"}, "cond"}, {"second", {}, ""}};
        lw::ActionSkinPropertiesDlg form(editor.weaver, action);
        QtActionSkinPropertiesDlg dlg(form, editor.prompts);
        dlg.show();
        auto* skins = dlg.findChild<QComboBox*>("skinCombo");
        QCOMPARE(skins->currentText(), QString("$enemy_skin_1"));
        skins->setCurrentIndex(skins->findText("$plane_2_skin"));

        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(action.rules,
                 (std::vector<lw::ActionRule>{{"set_skin", {"$plane_2_skin"}, "cond"}}));
    }
};

QTEST_MAIN(QtActionSkinPropertiesDlgTest)
#include "QtActionSkinPropertiesDlgTest.moc"
