#include "dialogs/QtCheckValuePropertiesDlg.h"

#include "support/SampleEditor.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using Texts = std::vector<std::string>;

class QtCheckValuePropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor_ = std::make_unique<lw::test::SampleEditor>();
        editor_->StartUp();
        check_ = editor_->weaver.NewCheck();
    }

    void radiusIsWritten() {
        check_->params = {lw::kPrimaryLinkPhase, "1000"};
        lw::CheckInRadiusPropertiesDlg form(editor_->weaver, *check_);
        QtCheckInRadiusPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        QCOMPARE(dlg.windowTitle(), QString("In Radius Check"));
        auto* radius = dlg.findChild<QLineEdit*>("radius");
        QCOMPARE(radius->text(), QString("1000"));
        radius->setText("250");
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(check_->params, (Texts{lw::kPrimaryLinkPhase, "250"}));
    }

    void anArcOf360IsRefusedButWritten() {
        check_->params = {lw::kPrimaryLinkPhase, "45"};
        lw::CheckInSectorPropertiesDlg form(editor_->weaver, *check_);
        QtCheckInSectorPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        dlg.findChild<QLineEdit*>("arc")->setText("360");
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor_->prompts.MessageTexts(),
                 Texts{"Please enter a whole number from 0 to 359."});
        QCOMPARE(check_->params, (Texts{lw::kPrimaryLinkPhase, "360"}));
    }

private:
    std::unique_ptr<lw::test::SampleEditor> editor_;
    lw::Check* check_ = nullptr;
};

QTEST_MAIN(QtCheckValuePropertiesDlgTest)
#include "QtCheckValuePropertiesDlgTest.moc"
