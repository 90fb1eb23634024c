#pragma once

#include "platform/FileSystem.h"

// The file system through Qt, which spells file names the platform's way on
// every system (wide names on Windows, local 8-bit elsewhere).
class QtFileSystem : public lw::FileSystem {
public:
    lw::PathKind KindOf(const std::string& path) const override;
    std::unique_ptr<std::istream> OpenForReading(const std::string& path) const override;
    std::vector<lw::DirectoryEntry> ListDirectory(const std::string& path) const override;
    std::string CanonicalPath(const std::string& path) const override;
    bool IsReadOnly(const std::string& path) const override;
    bool ReplaceFile(const std::string& path, const std::string& bytes) override;
    bool RemoveFile(const std::string& path) override;
    bool MakeFolder(const std::string& path) override;
};
