#include "platform/FileAccess.h"
#include "platform/MemoryFileSystem.h"
#include "platform/NativeFileSystem.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

using namespace lw;
namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

std::string Bytes(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return in ? text.str() : "<none>";
}

// Every entry of a folder, hidden ones included, so a stray temporary shows.
Names Listing(const fs::path& folder) {
    Names names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().u8string());
    std::sort(names.begin(), names.end());
    return names;
}

class NativeWriting : public ::testing::Test {
protected:
    void SetUp() override {
        const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
        root = fs::temp_directory_path() / ("loomwright-writing-" + std::to_string(stamp));
        fs::create_directories(root);
    }
    void TearDown() override {
        for (const auto& entry : fs::recursive_directory_iterator(root))
            fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add);
        fs::remove_all(root);
    }
    std::string At(const std::string& name) const { return (root / name).generic_u8string(); }

    fs::path root;
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

TEST_F(NativeWriting, ANewFileGetsItsBytesAndDefaultPermissions) {
    std::ofstream(root / "plain.txt") << "x";
    ASSERT_TRUE(disk.ReplaceFile(At("new.mt"), kContent));
    EXPECT_EQ(Bytes(root / "new.mt"), kContent);
    EXPECT_EQ(fs::status(root / "new.mt").permissions(),
              fs::status(root / "plain.txt").permissions());
    EXPECT_EQ(Listing(root), (Names{"new.mt", "plain.txt"}));
}

TEST_F(NativeWriting, AnExistingFileIsReplacedAndKeepsItsPermissions) {
    std::ofstream(root / "a.mt") << "old and longer content";
    const fs::perms kept = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(root / "a.mt", kept);
    ASSERT_TRUE(disk.ReplaceFile(At("a.mt"), "new"));
    EXPECT_EQ(Bytes(root / "a.mt"), "new");
    EXPECT_EQ(Comparable(fs::status(root / "a.mt").permissions()), Comparable(kept));
    EXPECT_EQ(Listing(root), (Names{"a.mt"}));
}

TEST_F(NativeWriting, MissingFoldersAndFolderTargetsAreRefused) {
    fs::create_directory(root / "sub");
    EXPECT_FALSE(disk.ReplaceFile(At("nowhere/a.mt"), "x"));
    EXPECT_FALSE(disk.ReplaceFile(At("sub"), "x"));
    EXPECT_FALSE(disk.IsReadOnly(At("sub")));
    EXPECT_FALSE(disk.IsReadOnly(At("missing.mt")));
    EXPECT_EQ(Listing(root), (Names{"sub"}));
    EXPECT_TRUE(Listing(root / "sub").empty());
}

#ifndef _WIN32
#endif

TEST_F(NativeWriting, SavingThroughALinkWritesTheFileItNames) {
    std::ofstream(root / "real.mt") << "old";
    std::error_code error;
    fs::create_symlink(root / "real.mt", root / "link.mt", error);
    if (error)
        GTEST_SKIP() << "no symbolic links here: " << error.message();
    ASSERT_TRUE(disk.ReplaceFile(At("link.mt"), "new"));
    EXPECT_TRUE(fs::is_symlink(root / "link.mt"));
    EXPECT_EQ(Bytes(root / "real.mt"), "new");
    EXPECT_EQ(Listing(root), (Names{"link.mt", "real.mt"}));
}

TEST_F(NativeWriting, FileAccessWritesABackslashPathIntoMixedCaseFolders) {
    fs::create_directories(root / "Data" / "Scg" / "Templates");
    std::ofstream(root / "Data" / "Scg" / "Templates" / "Old.mt") << "old";
    FileAccess files(disk);
    files.SetBaseFolder(At("Data"));

    ASSERT_TRUE(files.ReplaceFile("scg\\templates\\New.mt", "made"));
    ASSERT_TRUE(files.ReplaceFile("SCG\\TEMPLATES\\old.mt", "replaced"));
    const fs::path folder = root / "Data" / "Scg" / "Templates";
    EXPECT_EQ(Listing(folder), (Names{"New.mt", "Old.mt"}));
    EXPECT_EQ(Bytes(folder / "New.mt"), "made");
    EXPECT_EQ(Bytes(folder / "Old.mt"), "replaced");
    EXPECT_EQ(Listing(root / "Data"), (Names{"Scg"}));
}
