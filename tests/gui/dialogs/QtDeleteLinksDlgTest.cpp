#include "dialogs/QtDeleteLinksDlg.h"

#include "support/SampleEditor.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

class QtDeleteLinksDlgTest : public QObject {
    Q_OBJECT

private slots:
    void deletingASelectedRowMarksItsLink() {
        lw::test::SampleEditor e;
        e.StartUp();
        lw::Phase& phase = *e.weaver.NewPhase();
        phase.name = "Hub";
        lw::Phase& other = *e.weaver.NewPhase();
        other.name = "Spoke";
        const lw::Link inward{true, other.id, "out", phase.id, "in"};
        const lw::Link outward{false, phase.id, "out", other.id, "in"};
        e.weaver.links = {inward, outward};

        lw::DeleteLinksDlg form(e.weaver, phase);
        QtDeleteLinksDlg dialog(form, e.prompts);
        dialog.show();
        auto* table = dialog.findChild<QTableWidget*>("linkView");
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(table->horizontalHeaderItem(4)->text(), QString("Object Link"));
        QCOMPARE(table->columnWidth(0), 230);
        QVERIFY(table->showGrid());
        QCOMPARE(table->item(1, 4)->text(), QString("False"));

        table->selectRow(1);
        dialog.findChild<QPushButton*>("deleteSelectedButton")->click();
        QCOMPARE(table->rowCount(), 1);
        QCOMPARE(table->item(0, 0)->text(), QString("Spoke"));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(form.toDelete == std::vector<lw::Link>{outward});
        QCOMPARE(e.weaver.links.size(), size_t(2));
    }
};

QTEST_MAIN(QtDeleteLinksDlgTest)
#include "QtDeleteLinksDlgTest.moc"
