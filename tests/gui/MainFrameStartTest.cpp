#include "CMainFrame.h"
#include "app/AppInfo.h"

#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

// Answers the next modal message box with `button` once it shows, and keeps
// its text.
void AnswerNextMessageBox(QMessageBox::StandardButton button, QString* text) {
    QTimer::singleShot(0, [button, text] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            AnswerNextMessageBox(button, text);
            return;
        }
        *text = box->text();
        box->button(button)->click();
    });
}

void SetLastUsedTemplate(const QString& name) {
    QSettings settings(lw::kOrganizationName, lw::kApplicationName);
    settings.setValue("LoomwrightOptions/LastUsedTemplateName", name);
}

} // namespace

// The editor started on the bundled sample data, as the README's run command
// starts it: the window, its caption, its canvas and what it read at start.
class MainFrameStartTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(settingsFolder.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsFolder.path());
    }

    void startsOnTheSampleDataNextToTheBuild() {
        CMainFrame frame;
        QVERIFY(frame.OnCreate());
        const lw::Weaver& weaver = frame.weaver();
        QVERIFY(QString::fromStdString(weaver.dataFolder).endsWith("/data"));
        QCOMPARE(QString::fromStdString(weaver.dataFolder),
                 QString::fromStdString(weaver.dataFolder).toLower());
        QVERIFY(!weaver.blockPool.blocks.empty());
    }

    void closingSavesTheOptions() {
        {
            CMainFrame frame;
            QVERIFY(frame.OnCreate(LOOMWRIGHT_SAMPLE_DATA_DIR));
            frame.weaver().options.DrawChecks = true;
            frame.weaver().options.SetLastUsedTemplateName("scg\\sample_rich.mt");
            frame.show();
            QVERIFY(frame.close());
        }
        QSettings settings(lw::kOrganizationName, lw::kApplicationName);
        settings.beginGroup("LoomwrightOptions");
        QCOMPARE(settings.value("DrawChecks").toInt(), 1);
        QCOMPARE(settings.value("DrawGeometry").toInt(), 0);
        QCOMPARE(settings.value("LastUsedTemplateName").toString(), QString("scg\\sample_rich.mt"));

        CMainFrame next;
        QVERIFY(next.OnCreate(LOOMWRIGHT_SAMPLE_DATA_DIR));
        QVERIFY(next.weaver().options.DrawChecks);
    }

    void closingWithChangesAsksFirst() {
        SetLastUsedTemplate("");
        CMainFrame frame;
        QVERIFY(frame.OnCreate(LOOMWRIGHT_SAMPLE_DATA_DIR));
        frame.show();
        frame.weaver().undoManager.Push(nullptr);
        QString question;
        AnswerNextMessageBox(QMessageBox::Cancel, &question);
        QVERIFY(!frame.close());
        QCOMPARE(question,
                 QString("Template file has been changed, do you want to save your changes?"));
        QVERIFY(frame.isVisible());
        AnswerNextMessageBox(QMessageBox::No, &question);
        QVERIFY(frame.close());
    }

private:
    QTemporaryDir settingsFolder;
};

QTEST_MAIN(MainFrameStartTest)
#include "MainFrameStartTest.moc"
