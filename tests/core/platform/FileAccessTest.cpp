#include "platform/FileAccess.h"

#include "platform/MemoryFileSystem.h"

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

TEST_F(FileAccessTest, BackslashPathsResolveAgainstTheBaseFolder) {
    EXPECT_EQ(files.Resolve("scg\\Loomwright.ini"), "/home/Me/data/scg/Loomwright.ini");
    EXPECT_EQ(Content(files, "scg\\Loomwright.ini"), "ini");
}

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

TEST_F(FileAccessTest, MissingNamesStayAsMappedAndDoNotOpen) {
    EXPECT_EQ(files.Resolve("scg\\nothing\\x.mt"), "/home/Me/data/scg/nothing/x.mt");
    EXPECT_EQ(Content(files, "scg\\nothing\\x.mt"), "<none>");
    EXPECT_EQ(files.KindOf("scg\\nothing"), PathKind::Missing);
}

TEST_F(FileAccessTest, AbsolutePathsIgnoreTheBaseFolder) {
    EXPECT_EQ(Content(files, "/elsewhere/a.mt"), "absolute");
    EXPECT_EQ(Content(files, "/ELSEWHERE/A.MT"), "absolute");
}

TEST_F(FileAccessTest, FoldersAreNotOpenedAsFilesAndUnreadableFilesFail) {
    EXPECT_EQ(Content(files, "scg"), "<none>");
    disk.MakeUnreadable("/home/Me/data/scg/Loomwright.ini");
    EXPECT_EQ(Content(files, "scg\\Loomwright.ini"), "<none>");
}

TEST_F(FileAccessTest, ListingsAreSortedByName) {
    disk.AddFile("/home/Me/data/scg/0/Blocks/Air/Escort.Group", "");
    disk.AddDirectory("/home/Me/data/scg/0/Blocks/Air/zeppelins");
    const auto entries = files.ListDirectory("scg\\0\\blocks\\air");
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].name, "Escort.Group");
    EXPECT_EQ(entries[1].name, "Patrol.Group");
    EXPECT_EQ(entries[2].name, "zeppelins");
    EXPECT_TRUE(entries[2].isDirectory);
}
