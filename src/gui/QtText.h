#pragma once

#include <QFile>
#include <QString>
#include <string>

// Core keeps texts as byte strings; the widgets want QString. Texts shown to
// the user are taken as UTF-8, paths in the platform's own file name encoding.
inline QString ToQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string ToStdString(const QString& text) {
    return text.toUtf8().toStdString();
}

inline QString PathToQString(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}

inline std::string PathToStdString(const QString& path) {
    return QFile::encodeName(path).toStdString();
}
