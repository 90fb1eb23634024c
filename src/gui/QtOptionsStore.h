#pragma once

#include "platform/OptionsStore.h"

#include <QSettings>

// The user's options in QSettings, under the maker's and the program's name
// ("Tarnwick", "Loomwright"), one group per section.
class QtOptionsStore : public lw::OptionsStore {
public:
    QtOptionsStore();

    int GetInt(const std::string& section, const std::string& key, int fallback) override;
    void SetInt(const std::string& section, const std::string& key, int value) override;
    std::string GetString(const std::string& section, const std::string& key,
                          const std::string& fallback) override;
    void SetString(const std::string& section, const std::string& key,
                   const std::string& value) override;

    // The main window's place and size, kept beside the options.
    QByteArray WindowGeometry() const;
    void SetWindowGeometry(const QByteArray& geometry);

    void Flush() { settings_.sync(); }

private:
    QSettings settings_;
};
