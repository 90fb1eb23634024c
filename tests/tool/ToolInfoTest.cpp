#include "ToolRun.h"
#include "support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

TEST(ToolInfoTest, FindsTheSampleDataNextToTheBuildByItself) {
    const ToolRun run = RunTool("info");
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_NE(run.output.find("tvd: scg\\0\\"), std::string::npos) << run.output;
    EXPECT_NE(run.output.find("blocks: scg\\0\\blocks\\air ("), std::string::npos) << run.output;
}

// Every spelling of one data folder gives the same pool. A relative folder
// was once put in front of the scanned paths a second time, so the pool came
// up empty and a reload stripped every link and action from a template.
TEST(ToolInfoTest, EverySpellingOfTheDataFolderGivesTheSamePool) {
    const std::filesystem::path data = LOOMWRIGHT_SAMPLE_DATA_DIR;
    const std::string checkout = data.parent_path().string();
    const auto pool = [&](const std::string& folder) {
        const ToolRun run = RunTool("info --data " + Quoted(folder), checkout);
        EXPECT_EQ(run.status, 0) << run.output;
        return run.output.substr(run.output.find("\ntvd:"));
    };
    const std::string absolute = pool(data.string());
    EXPECT_EQ(absolute.find("(0 blocks)"), std::string::npos) << absolute;
    EXPECT_EQ(pool("data"), absolute);
    EXPECT_EQ(pool("data/"), absolute);
    EXPECT_EQ(pool("../" + data.parent_path().filename().string() + "/data"), absolute);
}

TEST(ToolInfoTest, UsageErrorsExitWithTwo) {
    EXPECT_EQ(RunTool("").status, 2);
    EXPECT_EQ(RunTool("frobnicate").status, 2);
    EXPECT_EQ(RunTool("info --data").status, 2);
    EXPECT_EQ(RunTool("info --bogus").status, 2);
    for (const char* count : {"0", "12x", "99999999"}) {
        const ToolRun run = RunTool(std::string("generate ") + count + " nowhere");
        EXPECT_EQ(run.status, 2) << count;
        EXPECT_NE(run.output.find("whole number from 1 to"), std::string::npos) << run.output;
    }
    const ToolRun help = RunTool("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("usage: loomwright-tool"), std::string::npos);
}
