#include "platform/FileAccess.h"

#include "platform/MemoryFileSystem.h"
#include "platform/NativeFileSystem.h"
#include "support/ScratchFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

using namespace lw;

namespace {

std::string Content(const FileAccess& files, const std::string& path) {
    auto stream = files.OpenForReading(path);
    if (!stream)
        return "<none>";
    std::string text;
    std::getline(*stream, text);
    return text;
}

class FileAccessTest : public ::testing::Test {
protected:
    void SetUp() override {
        disk.AddFile("/home/Me/data/scg/0/Blocks/Air/Patrol.Group", "patrol");
        disk.AddFile("/home/Me/data/scg/Loomwright.ini", "ini");
        disk.AddFile("/elsewhere/a.mt", "absolute");
        files.SetBaseFolder("/home/Me/data");
    }
    MemoryFileSystem disk;
    FileAccess files{disk};
};

} // namespace

TEST_F(FileAccessTest, LowerCasedNamesFindMixedCaseEntries) {
    EXPECT_EQ(files.Resolve("scg\\0\\blocks\\air\\patrol.group"),
              "/home/Me/data/scg/0/Blocks/Air/Patrol.Group");
    EXPECT_EQ(Content(files, "SCG\\0\\BLOCKS\\AIR\\PATROL.GROUP"), "patrol");
    EXPECT_EQ(files.KindOf("scg\\0\\blocks"), PathKind::Directory);
}

TEST_F(FileAccessTest, AnExactNameWinsOverACaseInsensitiveOne) {
    disk.AddFile("/home/Me/data/scg/loomwright.ini", "lower");
    EXPECT_EQ(Content(files, "scg\\loomwright.ini"), "lower");
    EXPECT_EQ(Content(files, "scg\\Loomwright.ini"), "ini");
}

TEST_F(FileAccessTest, FoldersAreNotOpenedAsFilesAndUnreadableFilesFail) {
    EXPECT_EQ(Content(files, "scg"), "<none>");
    disk.MakeUnreadable("/home/Me/data/scg/Loomwright.ini");
    EXPECT_EQ(Content(files, "scg\\Loomwright.ini"), "<none>");
}

// The data folder as the platform spells it (on Windows with its drive
// letter and "\"), and names as the files give them, with "\" and in another
// case: on Linux the names are looked up without regard to case, on Windows
// the file system does that itself.
TEST(NativeFileAccess, TheDataFolderInThePlatformsOwnSpellingFindsEveryName) {
    namespace fs = std::filesystem;
    const test::ScratchFolder scratch;
    const fs::path& root = scratch.root;
    fs::create_directories(root / "Data" / "scg" / "Blocks");
    std::ofstream(root / "Data" / "scg" / "Blocks" / "Patrol.Group") << "patrol";
    NativeFileSystem disk;
    FileAccess files{disk};
    files.SetBaseFolder((root / "Data").make_preferred().u8string());

    EXPECT_EQ(Content(files, "scg\\blocks\\patrol.group"), "patrol");
    EXPECT_EQ(Content(files, "SCG\\Blocks\\Patrol.Group"), "patrol");
    EXPECT_EQ(Content(files, (root / "data" / "SCG" / "blocks" / "patrol.group").u8string()),
              "patrol");
    EXPECT_EQ(files.KindOf("scg\\blocks"), PathKind::Directory);
    EXPECT_EQ(files.KindOf("scg\\blocks\\missing.group"), PathKind::Missing);
    const std::vector<DirectoryEntry> listed = files.ListDirectory("Scg\\BLOCKS");
    ASSERT_EQ(listed.size(), 1u);
    EXPECT_EQ(listed[0].name, "Patrol.Group");
}

// Drive letters and shares are absolute whichever separator they are
// written with; the data folder is not put in front of them.
TEST(NativeFileAccess, DriveLettersAndSharesAreAbsolute) {
    EXPECT_TRUE(IsAbsolutePath(ToForwardSlashes("C:\\Sim\\data\\scg\\a.mt")));
    EXPECT_TRUE(IsAbsolutePath(ToForwardSlashes("\\\\server\\sim\\a.mt")));
    EXPECT_FALSE(IsAbsolutePath(ToForwardSlashes("scg\\a.mt")));
}
