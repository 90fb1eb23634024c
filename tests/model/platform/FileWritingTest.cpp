#include "platform/FileAccess.h"
#include "platform/MemoryFileSystem.h"
#include "platform/NativeFileSystem.h"
#include "support/ScratchFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

using namespace lw;
namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;
using test::DiskBytes;
using test::FolderEntries;

class NativeWriting : public ::testing::Test {
protected:
    std::string At(const std::string& name) const { return scratch.At(name); }

    test::ScratchFolder scratch;
    const fs::path& root = scratch.root;
    NativeFileSystem disk;
};

// Binary content with CR LF, a NUL and no final line end must arrive unchanged.
const std::string kContent("one\r\ntwo\0three", 14);

// Windows keeps a read-only attribute rather than permission bits: there,
// what a file keeps is whether it may be written.
fs::perms Comparable(fs::perms permissions) {
#ifdef _WIN32
    return permissions & fs::perms::owner_write;
#else
    return permissions;
#endif
}

} // namespace

TEST_F(NativeWriting, AnExistingFileIsReplacedAndKeepsItsPermissions) {
    std::ofstream(root / "a.mt") << "old and longer content";
    const fs::perms kept = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(root / "a.mt", kept);
    ASSERT_TRUE(disk.ReplaceFile(At("a.mt"), kContent));
    EXPECT_EQ(DiskBytes(root / "a.mt"), kContent);
    EXPECT_EQ(Comparable(fs::status(root / "a.mt").permissions()), Comparable(kept));
    EXPECT_EQ(FolderEntries(root), (Names{"a.mt"}));
}

TEST_F(NativeWriting, SavingThroughALinkWritesTheFileItNames) {
    std::ofstream(root / "real.mt") << "old";
    std::error_code error;
    fs::create_symlink(root / "real.mt", root / "link.mt", error);
    if (error)
        GTEST_SKIP() << "no symbolic links here: " << error.message();
    ASSERT_TRUE(disk.ReplaceFile(At("link.mt"), "new"));
    EXPECT_TRUE(fs::is_symlink(root / "link.mt"));
    EXPECT_EQ(DiskBytes(root / "real.mt"), "new");
    EXPECT_EQ(FolderEntries(root), (Names{"link.mt", "real.mt"}));
}

TEST_F(NativeWriting, FileAccessWritesABackslashPathIntoMixedCaseFolders) {
    fs::create_directories(root / "Data" / "Scg" / "Templates");
    std::ofstream(root / "Data" / "Scg" / "Templates" / "Old.mt") << "old";
    FileAccess files(disk);
    files.SetBaseFolder(At("Data"));

    ASSERT_TRUE(files.ReplaceFile("scg\\templates\\New.mt", "made"));
    ASSERT_TRUE(files.ReplaceFile("SCG\\TEMPLATES\\old.mt", "replaced"));
    const fs::path folder = root / "Data" / "Scg" / "Templates";
    EXPECT_EQ(FolderEntries(folder), (Names{"New.mt", "Old.mt"}));
    EXPECT_EQ(DiskBytes(folder / "New.mt"), "made");
    EXPECT_EQ(DiskBytes(folder / "Old.mt"), "replaced");
    EXPECT_EQ(FolderEntries(root / "Data"), (Names{"Scg"}));
}
