#include "CMainFrame.h"
#include "app/AppInfo.h"

#include <QImage>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

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

    void captionIsTheApplicationNameUntilTheFirstRefresh() {
        CMainFrame frame;
        QVERIFY(frame.OnCreate());
        QCOMPARE(frame.windowTitle(), QString(lw::kApplicationName));
        frame.weaver().fileName = "scg\\sample_small.mt";
        frame.weaver().RefreshTitle();
        QCOMPARE(frame.windowTitle(), QString("Loomwright - scg\\sample_small.mt"));
        frame.weaver().undoManager.Push(nullptr);
        QCOMPARE(frame.windowTitle(), QString("Loomwright - scg\\sample_small.mt*"));
    }

    void canvasIsWhiteInsideABlackFrame() {
        CMainFrame frame;
        QVERIFY(frame.OnCreate());
        frame.show();
        QVERIFY(QTest::qWaitForWindowExposed(&frame));
        const QImage canvas = frame.view().grab().toImage();
        QVERIFY(canvas.width() > 100 && canvas.height() > 100);
        QCOMPARE(QColor(canvas.pixel(0, 0)), QColor(Qt::black));
        QCOMPARE(QColor(canvas.pixel(canvas.width() - 1, canvas.height() / 2)), QColor(Qt::black));
        QCOMPARE(QColor(canvas.pixel(canvas.width() / 2, canvas.height() / 2)), QColor(Qt::white));
        QCOMPARE(QColor(canvas.pixel(1, 1)), QColor(Qt::white));
    }

    void closingSavesTheOptions() {
        {
            CMainFrame frame;
            QVERIFY(frame.OnCreate());
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
        QVERIFY(next.OnCreate());
        QVERIFY(next.weaver().options.DrawChecks);
    }

private:
    QTemporaryDir settingsFolder;
};

QTEST_MAIN(MainFrameStartTest)
#include "MainFrameStartTest.moc"
