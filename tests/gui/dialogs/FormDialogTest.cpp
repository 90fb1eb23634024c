#include "dialogs/FormDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// A form taller than any screen the tests run on.
class TallDialog : public FormDialog {
public:
    TallDialog() : FormDialog("Tall", nullptr) {
        auto* layout = new QVBoxLayout(this);
        for (int i = 0; i < 60; ++i)
            layout->addWidget(new QCheckBox(QString("box %1").arg(i), this));
        layout->addWidget(OkCancelButtons());
    }

protected:
    void TakeWidgets() override {}
    void ShowModel() override {}
    bool AcceptModel() override { return true; }
};

} // namespace

class FormDialogTest : public QObject {
    Q_OBJECT

private slots:
    // A dialog that grows past the screen keeps its OK button within reach.
    void aDialogTallerThanTheScreenScrollsInsideIt() {
        TallDialog dialog;
        const QRect available = dialog.screen()->availableGeometry();
        QVERIFY(dialog.sizeHint().height() > available.height());
        dialog.show();
        QVERIFY(dialog.findChild<QScrollArea*>() != nullptr);
        QVERIFY(available.contains(dialog.geometry()));
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        QVERIFY(buttons != nullptr && buttons->isVisible());
        buttons->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
};

QTEST_MAIN(FormDialogTest)
#include "FormDialogTest.moc"
