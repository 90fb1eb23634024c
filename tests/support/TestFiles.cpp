#include "support/TestFiles.h"

#include "platform/MemoryFileSystem.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace fs = std::filesystem;

namespace lw::test {

std::string SampleDataDir() {
    return LOOMWRIGHT_SAMPLE_DATA_DIR;
}

std::string CasesDir() {
    return LOOMWRIGHT_CASES_DIR;
}

std::string ReadFileBytes(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << "cannot read " << path;
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return bytes.str();
}

void CopyFolderIntoMemory(const std::string& folder, MemoryFileSystem& memory,
                          const std::string& target) {
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            const std::string relative = fs::relative(entry.path(), folder).generic_string();
            memory.AddFile(target + "/" + relative, ReadFileBytes(entry.path().string()));
        }
    }
}

std::vector<std::string> CaseFolders(const std::string& folder) {
    std::vector<std::string> folders;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.is_directory())
            folders.push_back(entry.path().string());
    }
    std::sort(folders.begin(), folders.end());
    return folders;
}

} // namespace lw::test
