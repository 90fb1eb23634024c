#include "DisplayCheck.h"
#include "QtFileDialogs.h"
#include "QtFileSystem.h"
#include "QtOptionsStore.h"
#include "platform/FileAccess.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

void MakeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
}

// Every entry, hidden ones included, so that a stray temporary file shows.
QStringList Listing(const QString& folder) {
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

// The Qt implementations of core's seams against the real platform.
class QtSeamsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(temp.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, temp.path());
    }

    void optionsLiveInTheirSectionOfTheSettings() {
        QtOptionsStore store;
        QCOMPARE(store.GetInt("LoomwrightOptions", "DrawActions", 7), 7);
        QCOMPARE(store.GetString("LoomwrightOptions", "LastUsedTemplateName", "x"),
                 std::string("x"));
        store.SetInt("LoomwrightOptions", "DrawActions", 1);
        store.SetString("LoomwrightOptions", "LastUsedTemplateName", "scg\\a.mt");
        store.Flush();

        QSettings settings("Tarnwick", "Loomwright");
        QCOMPARE(settings.value("LoomwrightOptions/DrawActions").toInt(), 1);
        QCOMPARE(settings.value("LoomwrightOptions/LastUsedTemplateName").toString(),
                 QString("scg\\a.mt"));
        QCOMPARE(store.GetString("LoomwrightOptions", "LastUsedTemplateName", ""),
                 std::string("scg\\a.mt"));
    }

    void filesResolveCaseInsensitivelyThroughQt() {
        QVERIFY(QDir(temp.path()).mkpath("Data/Scg/0/Blocks"));
        QFile file(temp.path() + "/Data/Scg/0/Blocks/Patrol.Group");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("line one\r\nline two\r\n");
        file.close();

        QtFileSystem disk;
        lw::FileAccess files(disk);
        files.SetBaseFolder(temp.path().toStdString() + "/Data");
        QCOMPARE(files.KindOf("scg\\0\\blocks"), lw::PathKind::Directory);
        auto stream = files.OpenForReading("scg\\0\\blocks\\patrol.group");
        QVERIFY(stream != nullptr);
        std::string line;
        std::getline(*stream, line);
        QCOMPARE(line, std::string("line one\r"));
        QVERIFY(files.OpenForReading("scg\\0\\blocks") == nullptr);
        QVERIFY(files.OpenForReading("scg\\0\\blocks\\missing.group") == nullptr);

        const auto entries = files.ListDirectory("scg\\0");
        QCOMPARE(entries.size(), std::size_t(1));
        QCOMPARE(entries[0].name, std::string("Blocks"));
        QVERIFY(entries[0].isDirectory);
    }

    void newAndExistingFilesAreWrittenWholeKeepingPermissions() {
        QTemporaryDir folder;
        QVERIFY(folder.isValid());
        const QString existing = folder.filePath("a.mt");
        MakeFile(existing, "old and longer content");
        MakeFile(folder.filePath("plain.txt"), "x");
        const auto kept = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(existing, kept));
        const auto before = QFile::permissions(existing);

        QtFileSystem disk;
        const std::string bytes("one\r\ntwo\0three", 14);
        QVERIFY(disk.ReplaceFile(folder.filePath("new.mt").toStdString(), bytes));
        QVERIFY(disk.ReplaceFile(existing.toStdString(), "new"));

        QCOMPARE(Bytes(folder.filePath("new.mt")), QByteArray::fromStdString(bytes));
        QCOMPARE(Bytes(existing), QByteArray("new"));
        QCOMPARE(QFile::permissions(existing), before);
        QCOMPARE(QFile::permissions(folder.filePath("new.mt")),
                 QFile::permissions(folder.filePath("plain.txt")));
        QCOMPARE(Listing(folder.path()), QStringList({"a.mt", "new.mt", "plain.txt"}));
    }

    void foldersAndMissingFoldersAreRefused() {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("sub"));
        QtFileSystem disk;
        QVERIFY(!disk.ReplaceFile(folder.filePath("nowhere/a.mt").toStdString(), "x"));
        QVERIFY(!disk.ReplaceFile(folder.filePath("sub").toStdString(), "x"));
        QVERIFY(!disk.IsReadOnly(folder.filePath("sub").toStdString()));
        QVERIFY(!disk.IsReadOnly(folder.filePath("missing.mt").toStdString()));
        QCOMPARE(Listing(folder.path()), QStringList({"sub"}));
        QVERIFY(Listing(folder.filePath("sub")).isEmpty());
    }

    void missingDisplayIsOneClearLine() {
        const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
        const QByteArray display = qgetenv("DISPLAY");
        const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
        qunsetenv("QT_QPA_PLATFORM");
        qunsetenv("DISPLAY");
        qunsetenv("WAYLAND_DISPLAY");
        const QString message = MissingDisplayMessage();
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const QString withPlatform = MissingDisplayMessage();
        qputenv("QT_QPA_PLATFORM", platform);
        qputenv("DISPLAY", display);
        qputenv("WAYLAND_DISPLAY", wayland);

        QVERIFY(message.contains("display"));
        QVERIFY(!message.contains('\n'));
        QVERIFY(withPlatform.isEmpty());
    }

private:
    QTemporaryDir temp;
};

QTEST_MAIN(QtSeamsTest)
#include "QtSeamsTest.moc"
