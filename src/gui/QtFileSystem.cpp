#include "QtFileSystem.h"

#include "QtText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <sstream>

lw::PathKind QtFileSystem::KindOf(const std::string& path) const {
    const QFileInfo info(PathToQString(path));
    if (!info.exists())
        return lw::PathKind::Missing;
    return info.isDir() ? lw::PathKind::Directory : lw::PathKind::File;
}

std::unique_ptr<std::istream> QtFileSystem::OpenForReading(const std::string& path) const {
    QFile file(PathToQString(path));
    if (QFileInfo(file).isDir() || !file.open(QIODevice::ReadOnly))
        return nullptr;
    // The readers work line by line on a standard stream; the files are small
    // enough to be taken in whole.
    const QByteArray bytes = file.readAll();
    return std::make_unique<std::istringstream>(bytes.toStdString());
}

std::vector<lw::DirectoryEntry> QtFileSystem::ListDirectory(const std::string& path) const {
    std::vector<lw::DirectoryEntry> entries;
    const QDir folder(PathToQString(path));
    const auto infos =
        folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo& info : infos)
        entries.push_back({PathToStdString(info.fileName()), info.isDir()});
    return entries;
}

std::string QtFileSystem::CanonicalPath(const std::string& path) const {
    const QString canonical = QFileInfo(PathToQString(path)).canonicalFilePath();
    return canonical.isEmpty() ? path : PathToStdString(canonical);
}

bool QtFileSystem::IsReadOnly(const std::string& path) const {
    const QFileInfo info(PathToQString(path));
    if (!info.exists() || info.isDir())
        return false;
    // A file that no one may write is protected by its owner, even where the
    // system would let this user write it, as it lets the superuser.
    const QFile::Permissions anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return (info.permissions() & anyWrite) == 0 || !info.isWritable();
}

bool QtFileSystem::ReplaceFile(const std::string& path, const std::string& bytes) {
    const QFileInfo target(PathToQString(path));
    if (target.isDir() || IsReadOnly(path) || !target.dir().exists())
        return false;
    // QSaveFile writes beside the target and renames only on commit; an
    // object destroyed uncommitted removes its temporary file. It is never
    // allowed to fall back to writing the target in place.
    QSaveFile file(target.filePath());
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const auto size = static_cast<qint64>(bytes.size());
    if (file.write(bytes.data(), size) != size) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

bool QtFileSystem::RemoveFile(const std::string& path) {
    const QString name = PathToQString(path);
    return !QFileInfo::exists(name) || QFile::remove(name);
}

bool QtFileSystem::MakeFolder(const std::string& path) {
    return QDir().mkpath(PathToQString(path));
}
