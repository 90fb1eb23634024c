#include "ToolRun.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>

TEST(ToolInfoTest, FindsTheSampleDataNextToTheBuildByItself) {
    const ToolRun run = RunTool("info");
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_NE(run.output.find("tvd: scg\\0\\"), std::string::npos) << run.output;
    EXPECT_NE(run.output.find("blocks: scg\\0\\blocks\\air ("), std::string::npos) << run.output;
}

TEST(ToolInfoTest, AnEmptyDataFolderStartsWithDefaults) {
    const ToolRun run = RunTool("info --data /nonexistent-loomwright-folder");
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.output.find("models: models.cfg (0 types, 0 models)"), std::string::npos)
        << run.output;
}

TEST(ToolInfoTest, UsageErrorsExitWithTwo) {
    EXPECT_EQ(RunTool("").status, 2);
    EXPECT_EQ(RunTool("frobnicate").status, 2);
    EXPECT_EQ(RunTool("info --data").status, 2);
    EXPECT_EQ(RunTool("info --bogus").status, 2);
    const ToolRun help = RunTool("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("usage: loomwright-tool"), std::string::npos);
}
