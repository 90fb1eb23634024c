#pragma once

#include "platform/OptionsStore.h"

#include <string>
#include <vector>

namespace lw {

// The templates last opened or saved, most recent first, at most eight, kept
// with the options in a section of their own.
class RecentFiles {
public:
    static constexpr std::size_t kLimit = 8;
    static constexpr const char* kSection = "RecentFiles";

    void Load(OptionsStore& store);
    void Save(OptionsStore& store) const;

    // Puts the path first, taking it out of where it stood.
    void Add(const std::string& path);
    void Remove(const std::string& path);

    const std::vector<std::string>& Paths() const { return paths_; }

private:
    std::vector<std::string> paths_;
};

} // namespace lw
