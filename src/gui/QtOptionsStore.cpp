#include "QtOptionsStore.h"

#include "QtText.h"
#include "app/AppInfo.h"

namespace {

QString KeyOf(const std::string& section, const std::string& key) {
    return ToQString(section) + QLatin1Char('/') + ToQString(key);
}

} // namespace

QtOptionsStore::QtOptionsStore() : settings_(lw::kOrganizationName, lw::kApplicationName) {}

int QtOptionsStore::GetInt(const std::string& section, const std::string& key, int fallback) {
    bool isNumber = false;
    const int value = settings_.value(KeyOf(section, key), fallback).toInt(&isNumber);
    return isNumber ? value : fallback;
}

void QtOptionsStore::SetInt(const std::string& section, const std::string& key, int value) {
    settings_.setValue(KeyOf(section, key), value);
}

std::string QtOptionsStore::GetString(const std::string& section, const std::string& key,
                                      const std::string& fallback) {
    const QVariant value = settings_.value(KeyOf(section, key));
    return value.isValid() ? ToStdString(value.toString()) : fallback;
}

QByteArray QtOptionsStore::WindowGeometry() const {
    return settings_.value(QStringLiteral("Window/Geometry")).toByteArray();
}

void QtOptionsStore::SetWindowGeometry(const QByteArray& geometry) {
    settings_.setValue(QStringLiteral("Window/Geometry"), geometry);
}

void QtOptionsStore::SetString(const std::string& section, const std::string& key,
                               const std::string& value) {
    settings_.setValue(KeyOf(section, key), ToQString(value));
}
