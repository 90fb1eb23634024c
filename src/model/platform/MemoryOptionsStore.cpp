#include "platform/MemoryOptionsStore.h"

namespace lw {

int MemoryOptionsStore::GetInt(const std::string& section, const std::string& key, int fallback) {
    const auto found = ints_.find({section, key});
    return found == ints_.end() ? fallback : found->second;
}

void MemoryOptionsStore::SetInt(const std::string& section, const std::string& key, int value) {
    ints_[{section, key}] = value;
}

std::string MemoryOptionsStore::GetString(const std::string& section, const std::string& key,
                                          const std::string& fallback) {
    const auto found = strings_.find({section, key});
    return found == strings_.end() ? fallback : found->second;
}

void MemoryOptionsStore::SetString(const std::string& section, const std::string& key,
                                   const std::string& value) {
    strings_[{section, key}] = value;
}

} // namespace lw
