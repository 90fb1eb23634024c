#include "app/DataFolder.h"
#include "app/Weaver.h"
#include "platform/MemoryFileSystem.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/RecordingPrompts.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

const char* kData = "/opt/Sim/data";

class WeaverStartUpTest : public ::testing::Test {
protected:
    void WriteIni(const std::string& text) {
        disk.AddFile(std::string(kData) + "/scg/Loomwright.ini", text);
    }
    void StartUp() { weaver.StartUp(kData); }

    MemoryFileSystem disk;
    MemoryOptionsStore store;
    RecordingPrompts prompts;
    Weaver weaver{prompts, store, disk};
};

using Strings = std::vector<std::string>;

} // namespace

TEST_F(WeaverStartUpTest, TheTvdPrefixAppliesOnlyToTheLinesBelowIt) {
    WriteIni("tvd scg\\1\\\r\nmodels a.cfg\r\n");
    StartUp();
    EXPECT_EQ(weaver.modelsPath, "scg\\1\\a.cfg");

    Weaver swapped{prompts, store, disk};
    WriteIni("models a.cfg\ntvd scg\\1\\\n");
    swapped.StartUp(kData);
    EXPECT_EQ(swapped.modelsPath, "scg\\0\\a.cfg");
    EXPECT_EQ(swapped.tvdFolder, "scg\\1\\");
}

TEST_F(WeaverStartUpTest, ReadsTheCataloguesAndBlockPoolTheIniNames) {
    WriteIni("tvd scg\\0\\\nmodels models.cfg\nactions actions.cfg\nblocks blocks\n");
    disk.AddFile(std::string(kData) + "/scg/0/Models.cfg", "Type\n{\nName fighter\n}\n");
    disk.AddFile(std::string(kData) + "/scg/0/actions.cfg", "Action\n{\nName r1\n}\n");
    disk.AddFile(std::string(kData) + "/scg/0/Blocks/Patrol.Group",
                 "MCU_H_Input\n{\nName = \"start\";\n}\n");
    StartUp();
    EXPECT_EQ(weaver.modelList.types.count("fighter"), 1u);
    ASSERT_EQ(weaver.ruleCatalogue.rules.size(), 1u);
    EXPECT_EQ(weaver.ruleCatalogue.rules[0].name, "r1");
    ASSERT_EQ(weaver.blockPool.blocks.count("scg\\0\\blocks\\patrol.group"), 1u);
    EXPECT_EQ(weaver.blockPool.blocks["scg\\0\\blocks\\patrol.group"].inputs, Strings{"start"});
}

TEST_F(WeaverStartUpTest, AMissingDataFolderResolvesAgainstTheWorkingFolder) {
    StartUp();
    EXPECT_EQ(weaver.dataFolder, "/opt/sim/data");
    EXPECT_EQ(weaver.files.BaseFolder(), "");
    EXPECT_TRUE(prompts.Log().empty());
}

TEST(DataFolderTest, TwoLevelsAboveTheExecutableThenData) {
    EXPECT_EQ(DataFolderForExecutable("/work/Main/build/bin/loomwright"), "/work/Main/data");
    EXPECT_EQ(DataFolderForExecutable("/a/./b/c/prog"), "/a/data");
    EXPECT_EQ(DataFolderForExecutable("C:/Sim/Tools/Bin/Loomwright.exe"), "C:/Sim/data");
}
