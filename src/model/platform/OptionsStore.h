#pragma once

#include <string>

namespace lw {

// A persistent store of options by section and key, such as the user's
// profile. A missing key answers the default it is given.
class OptionsStore {
public:
    virtual ~OptionsStore() = default;
    virtual int GetInt(const std::string& section, const std::string& key, int fallback) = 0;
    virtual void SetInt(const std::string& section, const std::string& key, int value) = 0;
    virtual std::string GetString(const std::string& section, const std::string& key,
                                  const std::string& fallback) = 0;
    virtual void SetString(const std::string& section, const std::string& key,
                           const std::string& value) = 0;
};

} // namespace lw
