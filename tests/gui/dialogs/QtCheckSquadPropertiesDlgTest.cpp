#include "dialogs/QtCheckSquadPropertiesDlg.h"

#include "dialogs/QtDateReader.h"
#include "support/SampleEditor.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QtTest>

using Texts = std::vector<std::string>;

class QtCheckSquadPropertiesDlgTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        editor_ = std::make_unique<lw::test::SampleEditor>();
        editor_->StartUp();
        check_ = editor_->weaver.NewCheck();
    }

    void squadAndCalendarDateAreWritten() {
        check_->params = {"12", "03.04.1918"};
        lw::CheckSquadPropertiesDlg form(editor_->weaver, *check_, QtDateReader());
        QtCheckSquadPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        auto* calendar = dlg.findChild<QCalendarWidget*>("date");
        QVERIFY(calendar->isVisible());
        QCOMPARE(calendar->selectedDate(), QDate(1918, 4, 3));
        dlg.findChild<QLineEdit*>("squadId")->setText("8");
        calendar->setSelectedDate(QDate(1918, 4, 10));
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(check_->params, (Texts{"8", "10.04.1918"}));
    }

    void serverDateHidesTheCalendarAndSquadZeroIsRefused() {
        lw::CheckSquadPropertiesDlg form(editor_->weaver, *check_);
        QtCheckSquadPropertiesDlg dlg(form, editor_->prompts);
        dlg.show();
        auto* squadId = dlg.findChild<QLineEdit*>("squadId");
        QVERIFY(!squadId->isEnabled());
        QVERIFY(!dlg.findChild<QCalendarWidget*>("date")->isVisible());
        dlg.findChild<QCheckBox*>("usePlayerSquad")->click();
        QVERIFY(squadId->isEnabled());
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QVERIFY(dlg.isVisible());
        QCOMPARE(editor_->prompts.MessageTexts(), Texts{"Squad ID must be set (can't be zero)!"});
        QVERIFY(check_->params.empty());
    }

    void dateReaderTakesOurFormThenTheUsersShortForm() {
        const lw::DateReader read = QtDateReader();
        lw::CalendarDate date;
        QVERIFY(read("20.07.1917", date));
        QCOMPARE(lw::FormatDate(date), std::string("20.07.1917"));
        const QString shortForm =
            QLocale::system().toString(QDate(1918, 4, 3), QLocale::ShortFormat);
        QVERIFY(read(ToStdString(shortForm), date));
        QCOMPARE(date.day * 100 + date.month, 304);
        QVERIFY(!read("soon", date));
    }

private:
    std::unique_ptr<lw::test::SampleEditor> editor_;
    lw::Check* check_ = nullptr;
};

QTEST_MAIN(QtCheckSquadPropertiesDlgTest)
#include "QtCheckSquadPropertiesDlgTest.moc"
