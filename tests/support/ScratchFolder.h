#pragma once

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace lw::test {

// A folder of its own on the real disk for one test, removed afterwards even
// when the test took permissions away.
class ScratchFolder {
public:
    ScratchFolder() {
        const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
        root =
            std::filesystem::temp_directory_path() / ("loomwright-test-" + std::to_string(stamp));
        std::filesystem::create_directories(root);
    }
    ~ScratchFolder() {
        namespace fs = std::filesystem;
        std::error_code error;
        for (auto it = fs::recursive_directory_iterator(root, error);
             !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
            if (!it->is_symlink())
                fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, error);
        }
        fs::remove_all(root, error);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string At(const std::string& relative) const {
        return (root / relative).generic_u8string();
    }

    std::filesystem::path root;
};

// The bytes of a file on disk, or "<missing>".
inline std::string DiskBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return "<missing>";
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

inline void WriteDiskFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

// Every entry of a folder, hidden ones included, sorted.
inline std::vector<std::string> FolderEntries(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().u8string());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace lw::test
