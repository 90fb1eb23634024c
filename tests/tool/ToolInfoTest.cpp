#include "support/TestFiles.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

namespace {

struct ToolRun {
    std::string output;
    int status = -1;
};

ToolRun RunTool(const std::string& arguments) {
    const std::string command = std::string(LOOMWRIGHT_TOOL) + " " + arguments + " 2>&1";
    ToolRun run;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        return run;
    std::array<char, 4096> buffer;
    std::size_t count = 0;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0)
        run.output.append(buffer.data(), count);
    const int status = pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

} // namespace

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
