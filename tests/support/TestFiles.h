#pragma once

#include <string>
#include <vector>

namespace lw {
class MemoryFileSystem;
}

namespace lw::test {

// The bundled sample data folder and the folder of file-based test cases.
std::string SampleDataDir();
std::string CasesDir();

// The whole content of a file; fails the running test when it cannot be read.
std::string ReadFileBytes(const std::string& path);

// Copies every file below `folder` on disk into `memory` under `target`.
void CopyFolderIntoMemory(const std::string& folder, MemoryFileSystem& memory,
                          const std::string& target);

// The sub-folders of a folder, sorted by name: one per file-based test case.
std::vector<std::string> CaseFolders(const std::string& folder);

} // namespace lw::test
