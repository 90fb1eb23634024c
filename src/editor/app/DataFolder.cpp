#include "app/DataFolder.h"

#include <filesystem>

namespace lw {

std::string DataFolderForExecutable(const std::string& executablePath) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::u8path(executablePath).parent_path() / ".." / ".." / "data";
    std::string normal = folder.lexically_normal().generic_u8string();
    while (normal.size() > 1 && normal.back() == '/')
        normal.pop_back();
    return normal;
}

} // namespace lw
