#include "app/RecentFiles.h"

#include <algorithm>

namespace lw {

namespace {

std::string KeyOf(std::size_t index) {
    return "File" + std::to_string(index + 1);
}

} // namespace

void RecentFiles::Load(OptionsStore& store) {
    paths_.clear();
    for (std::size_t i = 0; i < kLimit; ++i) {
        const std::string path = store.GetString(kSection, KeyOf(i), std::string());
        if (!path.empty() && std::find(paths_.begin(), paths_.end(), path) == paths_.end())
            paths_.push_back(path);
    }
}

// Places beyond the list are emptied, so a shorter list leaves nothing old.
void RecentFiles::Save(OptionsStore& store) const {
    for (std::size_t i = 0; i < kLimit; ++i)
        store.SetString(kSection, KeyOf(i), i < paths_.size() ? paths_[i] : std::string());
}

void RecentFiles::Add(const std::string& path) {
    Remove(path);
    paths_.insert(paths_.begin(), path);
    if (paths_.size() > kLimit)
        paths_.resize(kLimit);
}

void RecentFiles::Remove(const std::string& path) {
    paths_.erase(std::remove(paths_.begin(), paths_.end(), path), paths_.end());
}

} // namespace lw
