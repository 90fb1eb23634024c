#pragma once

#include "platform/OptionsStore.h"

#include <map>
#include <string>
#include <utility>

namespace lw {

// Options that live as long as the object: for tests and the tool, which must
// never touch the user's own profile.
class MemoryOptionsStore : public OptionsStore {
public:
    int GetInt(const std::string& section, const std::string& key, int fallback) override;
    void SetInt(const std::string& section, const std::string& key, int value) override;
    std::string GetString(const std::string& section, const std::string& key,
                          const std::string& fallback) override;
    void SetString(const std::string& section, const std::string& key,
                   const std::string& value) override;

private:
    using Key = std::pair<std::string, std::string>;
    std::map<Key, int> ints_;
    std::map<Key, std::string> strings_;
};

} // namespace lw
