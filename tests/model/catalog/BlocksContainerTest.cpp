#include "catalog/BlocksContainer.h"

#include "platform/MemoryFileSystem.h"
#include "platform/NativeFileSystem.h"
#include "platform/RecordingPrompts.h"
#include "support/ScratchFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

using namespace lw;

namespace {

using Strings = std::vector<std::string>;

const char* const kGate = "MCU_H_Input\n{\n  Name = go;\n}\n";

std::vector<std::string> Keys(const BlocksContainer& pool) {
    std::vector<std::string> keys;
    for (const auto& block : pool.blocks)
        keys.push_back(block.first);
    return keys;
}

class BlocksContainerTest : public ::testing::Test {
protected:
    void SetUp() override {
        files.SetBaseFolder("/data");
        disk.AddFile("/data/scg/0/Blocks/Zeta.Group", kGate);
        disk.AddFile("/data/scg/0/Blocks/notes.txt", "");
        disk.AddFile("/data/scg/0/Blocks/Air/Patrol.GROUP", kGate);
        disk.AddFile("/data/scg/0/Blocks/Air/Deep/x.group", "");
        disk.AddDirectory("/data/scg/0/Blocks/Air/Folder.group");
    }
    MemoryFileSystem disk;
    FileAccess files{disk};
    RecordingPrompts prompts;
    BlocksContainer pool{files, prompts};
};

} // namespace

TEST_F(BlocksContainerTest, EnumeratesOwnFilesFirstInLowerCaseWithBackslashes) {
    Strings list;
    pool.EnumerateFiles(list, "scg\\0\\blocks", "*.Group");
    EXPECT_EQ(list, (Strings{"scg\\0\\blocks\\zeta.group", "scg\\0\\blocks\\air\\patrol.group",
                             "scg\\0\\blocks\\air\\deep\\x.group"}));
    list.clear();
    pool.EnumerateFiles(list, "scg\\0\\blocks", "n?tes.*");
    EXPECT_EQ(list, Strings{"scg\\0\\blocks\\notes.txt"});
    list.clear();
    pool.EnumerateFiles(list, "scg\\missing", "*");
    EXPECT_TRUE(list.empty());
}

TEST_F(BlocksContainerTest, LoadKeysBlocksByExactLowerCaseReference) {
    pool.Load({"scg\\0\\blocks"});
    EXPECT_EQ(Keys(pool),
              (Strings{"scg\\0\\blocks\\air\\deep\\x.group", "scg\\0\\blocks\\air\\patrol.group",
                       "scg\\0\\blocks\\zeta.group"}));
    EXPECT_TRUE(pool.Contains("scg\\0\\blocks\\zeta.group"));
    EXPECT_FALSE(pool.Contains("scg\\0\\blocks\\Zeta.group"));
    const BlockInfo zeta = pool.GetBlock("scg\\0\\blocks\\zeta.group");
    EXPECT_EQ(zeta.inputs, Strings{"go"});
    EXPECT_EQ(zeta.folder, "scg\\0\\blocks");
    EXPECT_EQ(pool.GetBlock("scg\\0\\blocks\\ZETA.group"), BlockInfo());
    EXPECT_TRUE(prompts.Log().empty());
}

TEST_F(BlocksContainerTest, EachUnreadableFileCostsOneMessageAndTheScanGoesOn) {
    disk.MakeUnreadable("/data/scg/0/Blocks/Zeta.Group");
    disk.MakeUnreadable("/data/scg/0/Blocks/Air/Deep/x.group");
    pool.Load({"scg\\0\\blocks"});
    EXPECT_EQ(Keys(pool), Strings{"scg\\0\\blocks\\air\\patrol.group"});
    EXPECT_EQ(prompts.MessageTexts(),
              (Strings{"Error reading \"scg\\0\\blocks\\zeta.group\" file!",
                       "Error reading \"scg\\0\\blocks\\air\\deep\\x.group\" file!"}));
    EXPECT_EQ(prompts.Log()[0].icon, MessageIcon::Stop);

    BlockInfo info;
    EXPECT_FALSE(pool.ReadBlockFile(info, "scg\\0\\blocks\\zeta.group", true));
    EXPECT_EQ(prompts.Log().size(), 2u);
}

TEST_F(BlocksContainerTest, FirstBlockInFolderComparesTheKeysOwnFolderCaseBlind) {
    pool.Put("scg\\0\\blocks\\air\\a.group", BlockInfo());
    pool.Put("scg\\0\\blocks\\c.group", BlockInfo());
    pool.Put("scg\\0\\blocks\\b.group", BlockInfo());
    pool.Put("Scg\\1\\Mixed.Group", BlockInfo());
    EXPECT_EQ(pool.FirstBlockInFolder("scg\\0\\blocks\\"), "scg\\0\\blocks\\b.group");
    EXPECT_EQ(pool.FirstBlockInFolder("SCG/0/blocks"), "scg\\0\\blocks\\b.group");
    EXPECT_EQ(pool.FirstBlockInFolder("scg/0/blocks/air//"), "scg\\0\\blocks\\air\\a.group");
    EXPECT_EQ(pool.FirstBlockInFolder("scg\\1"), "Scg\\1\\Mixed.Group");
    EXPECT_EQ(pool.FirstBlockInFolder("scg\\0"), "");
}

namespace {

// A real folder tree on disk, removed again after the test.
class NativeBlockFolder : public ::testing::Test {
protected:
    void SetUp() override {
        std::filesystem::create_directories(root / "blocks" / "sub");
        std::ofstream(root / "blocks" / "a.group") << kGate;
        std::ofstream(root / "blocks" / "sub" / "b.group") << kGate;
        files.SetBaseFolder(root.generic_string());
    }

    test::ScratchFolder scratch;
    const std::filesystem::path& root = scratch.root;
    NativeFileSystem disk;
    FileAccess files{disk};
    RecordingPrompts prompts;
    BlocksContainer pool{files, prompts};
};

} // namespace

TEST_F(NativeBlockFolder, AFolderLinkingToItsParentIsWalkedOnce) {
    std::error_code error;
    std::filesystem::create_directory_symlink(root / "blocks", root / "blocks" / "sub" / "loop",
                                              error);
    if (error)
        GTEST_SKIP() << "no symbolic links here: " << error.message();
    pool.Load({"blocks"});
    EXPECT_EQ(Keys(pool), (Strings{"blocks\\a.group", "blocks\\sub\\b.group"}));
    EXPECT_TRUE(prompts.Log().empty());
}
