#include "dialogs/QtAddBlocksDlg.h"

#include "support/SampleEditor.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

class QtAddBlocksDlgTest : public QObject {
    Q_OBJECT

private slots:
    void theSelectedBlocksAreChosenOnOk() {
        lw::test::SampleEditor e;
        e.StartUp();
        lw::CAddBlocksDlg form(e.weaver.blockPool, "scg\\0\\blocks\\air\\patrol.group");
        QtAddBlocksDlg dlg(form, e.prompts);
        dlg.show();
        QCOMPARE(dlg.windowTitle(), QString("Add Blocks"));
        auto* list = dlg.findChild<QListWidget*>("blockList");
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->selectionMode(), QAbstractItemView::ExtendedSelection);
        list->item(1)->setSelected(true);
        list->item(2)->setSelected(true);
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(form.chosen, (std::vector<std::string>{"scg\\0\\blocks\\air\\patrol_high.group",
                                                        "scg\\0\\blocks\\air\\patrol_low.group"}));
    }

    void cancelChoosesNothing() {
        lw::test::SampleEditor e;
        e.StartUp();
        lw::CAddBlocksDlg form(e.weaver.blockPool, "scg\\0\\blocks\\air\\patrol.group");
        QtAddBlocksDlg dlg(form, e.prompts);
        dlg.show();
        dlg.findChild<QListWidget*>("blockList")->item(0)->setSelected(true);
        dlg.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
        QCOMPARE(dlg.result(), int(QDialog::Rejected));
        QVERIFY(form.chosen.empty());
    }
};

QTEST_MAIN(QtAddBlocksDlgTest)
#include "QtAddBlocksDlgTest.moc"
