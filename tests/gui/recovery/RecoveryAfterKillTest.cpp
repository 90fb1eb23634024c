#include "CMainFrame.h"
#include "objects/Phase.h"

#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

bool HasPhase(const lw::Weaver& weaver, const std::string& name) {
    for (const auto& object : weaver.objects) {
        const auto* phase = lw::As<lw::Phase>(object.get());
        if (phase != nullptr && phase->name == name)
            return true;
    }
    return false;
}

} // namespace

// A session killed after an edit, as a crash or a power cut ends one: the
// next start offers the change back.
class RecoveryAfterKillTest : public QObject {
    Q_OBJECT

private slots:
    void aKilledSessionsEditComesBackAtTheNextStart() {
        QTemporaryDir home;
        QVERIFY(home.isValid());
        const QString recoveryFolder = home.filePath("recovery");
        const QString settingsFolder = home.filePath("settings");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder);

        QProcess victim;
        victim.start(LOOMWRIGHT_RECOVERY_VICTIM,
                     {LOOMWRIGHT_SAMPLE_DATA_DIR, recoveryFolder, settingsFolder,
                      "scg\\sample_small.mt", "Contact"});
        QVERIFY(victim.waitForStarted());
        QVERIFY(victim.waitForReadyRead(30000));
        QCOMPARE(victim.readAllStandardOutput().trimmed(), QByteArray("edited"));
        victim.kill();
        QVERIFY(victim.waitForFinished());
        QCOMPARE(victim.exitStatus(), QProcess::CrashExit);

        QString question;
        QTimer::singleShot(0, [&question] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            question = box->text();
            box->button(QMessageBox::Yes)->click();
        });
        CMainFrame frame;
        frame.UseRecovery(recoveryFolder.toStdString());
        QVERIFY(frame.OnCreate(LOOMWRIGHT_SAMPLE_DATA_DIR));
        QVERIFY2(question.startsWith("Loomwright was not closed properly. Restore the unsaved "
                                     "changes to scg\\sample_small.mt?"),
                 qPrintable(question));
        const lw::Weaver& weaver = frame.weaver();
        QCOMPARE(weaver.fileName, std::string("scg\\sample_small.mt"));
        QVERIFY(weaver.undoManager.changed);
        QVERIFY(HasPhase(weaver, "PatrolStart"));
        QVERIFY(!HasPhase(weaver, "Contact"));

        // A normal exit that gives the changes up takes the copy with it.
        QTimer::singleShot(0, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            box->button(QMessageBox::No)->click();
        });
        QVERIFY(QFileInfo::exists(recoveryFolder + "/recovery.mt"));
        QVERIFY(frame.close());
        QVERIFY(!QFileInfo::exists(recoveryFolder + "/recovery.mt"));
    }
};

QTEST_MAIN(RecoveryAfterKillTest)
#include "RecoveryAfterKillTest.moc"
