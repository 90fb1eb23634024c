#include "dialogs/QtActionGeneralPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

class QtActionGeneralPropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor_ = std::make_unique<lw::test::SampleEditor>();
        editor_->StartUp();
        action_ = editor_->weaver.NewAction();
        action_->name = "Fuel";
        action_->objectName = "fuel_load";
    }

    void aTypedRuleIsPreviewedAddedAndWritten() {
        lw::ActionGeneralPropertiesDlg form(editor_->weaver.ruleCatalogue, *action_);
        QtActionGeneralPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        auto* rules = dlg.findChild<QComboBox*>("ruleCombo");
        rules->setCurrentIndex(rules->findText("set_fuel"));
        QCOMPARE(dlg.findChild<QLineEdit*>("comment")->text(),
                 QString("Fuel load of the object in percent"));
        QTest::keyClicks(dlg.findChild<QLineEdit*>("parameter"), "50");
        QTest::keyClicks(dlg.findChild<QLineEdit*>("condition"), "a > 1; b==2");
        QCOMPARE(dlg.findChild<QLineEdit*>("format")->text(),
                 QString("set_fuel(Fuel, 50); if(a>1); if(b==2); "));

        dlg.findChild<QPushButton*>("addRuleButton")->click();
        auto* list = dlg.findChild<QTableWidget*>("ruleList");
        QCOMPARE(list->rowCount(), 1);
        QCOMPARE(list->item(0, 0)->text(), QString("set_fuel(Fuel,50);"));
        QCOMPARE(list->item(0, 1)->text(), QString("if(a>1); if(b==2); "));

        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(action_->rules.size(), std::size_t{1});
        QCOMPARE(action_->rules[0].params, (std::vector<std::string>{"Fuel", "50"}));
    }

    void addingWithNoRuleChosenAsksForOne() {
        lw::ActionGeneralPropertiesDlg form(editor_->weaver.ruleCatalogue, *action_);
        QtActionGeneralPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        dlg.findChild<QPushButton*>("addRuleButton")->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor_->prompts.MessageTexts(),
                 std::vector<std::string>{"Select one of the rules!"});
        QCOMPARE(dlg.findChild<QTableWidget*>("ruleList")->rowCount(), 0);
    }

private:
    std::unique_ptr<lw::test::SampleEditor> editor_;
    lw::Action* action_ = nullptr;
};

QTEST_MAIN(QtActionGeneralPropertiesDlgTest)
#include "QtActionGeneralPropertiesDlgTest.moc"
