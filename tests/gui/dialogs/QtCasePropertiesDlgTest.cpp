#include "dialogs/QtCasePropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

class QtCasePropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor_ = std::make_unique<lw::test::SampleEditor>();
        editor_->Open("scg\\sample_rich.mt");
    }

    void removeAddAndOkRewireTheCase() {
        lw::Case& opening = *editor_->weaver.FindCaseByName("CaseOpening");
        lw::CasePropertiesDlg form(editor_->weaver, opening, {});
        QtCasePropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        auto* members = dlg.findChild<QListWidget*>("memberList");
        members->item(0)->setSelected(true);
        dlg.findChild<QPushButton*>("removeButton")->click();
        auto* candidates = dlg.findChild<QComboBox*>("candidateCombo");
        candidates->setCurrentIndex(candidates->findText("PlayerStart"));
        dlg.findChild<QPushButton*>("addButton")->click();
        QCOMPARE(members->item(1)->text(), QString("PlayerStart"));

        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(editor_->weaver.FindPhaseByName("PlayerStart")->caseId, opening.id);
        QCOMPARE(editor_->weaver.FindPhaseByName("EscortLeg")->caseId, 0);
    }

    void aTypedPhaseOfAnotherCaseKeepsTheDialogOpen() {
        lw::Case& opening = *editor_->weaver.FindCaseByName("CaseOpening");
        lw::CasePropertiesDlg form(editor_->weaver, opening, {});
        QtCasePropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        dlg.findChild<QComboBox*>("candidateCombo")->setEditText("Interceptors");
        dlg.findChild<QPushButton*>("addButton")->click();
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor_->prompts.MessageTexts(),
                 std::vector<std::string>{"Phase \"Interceptors\" already has connected case!"});
        QCOMPARE(opening.phaseIds.size(), std::size_t{2});
    }

private:
    std::unique_ptr<lw::test::SampleEditor> editor_;
};

QTEST_MAIN(QtCasePropertiesDlgTest)
#include "QtCasePropertiesDlgTest.moc"
