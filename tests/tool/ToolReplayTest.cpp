#include "ToolRun.h"
#include "support/TestFiles.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace fs = std::filesystem;
using lw::test::ReadFileBytes;

namespace {

class ToolReplayTest : public ToolFolderTest {
protected:
    // Runs in the scratch folder with OUT typed as given, so that the
    // captions in the output do not depend on where the test runs.
    ToolRun Replay(const std::string& data, const std::string& input, const std::string& script,
                   const std::string& out = "out.mt") const {
        return RunTool("replay --data " + Quoted(data) + " " + Quoted(input) + " " +
                           Quoted(script) + " " + Quoted(out),
                       folder.string());
    }

    void WriteScript(const std::string& text) const {
        std::ofstream(Path("script.txt"), std::ios::binary) << text;
    }

    const std::string sampleInput = lw::test::SampleDataDir() + "/scg/sample_small.mt";
};

} // namespace

// Each folder below cases/replay holds input.mt, script.txt, the expected.mt
// that the replay writes and the output.txt that it prints; status.txt holds
// the exit status where it is not 0, and an optional data/ folder the files
// that are laid over the sample data.
TEST_F(ToolReplayTest, ReplayCases) {
    const auto cases = lw::test::CaseFolders(lw::test::CasesDir() + "/replay");
    ASSERT_FALSE(cases.empty());
    for (const std::string& caseFolder : cases) {
        const ToolRun run =
            Replay(FreshDataFor(caseFolder), caseFolder + "/input.mt", caseFolder + "/script.txt");
        EXPECT_EQ(run.output, ReadFileBytes(caseFolder + "/output.txt")) << caseFolder;
        const std::string statusFile = caseFolder + "/status.txt";
        const int status = fs::exists(statusFile) ? std::stoi(ReadFileBytes(statusFile)) : 0;
        EXPECT_EQ(run.status, status) << caseFolder;
        EXPECT_EQ(ReadFileBytes(Path("out.mt")), ReadFileBytes(caseFolder + "/expected.mt"))
            << caseFolder;
        fs::remove(Path("out.mt"));
    }
}

// A line that is not understood stops the replay before anything is loaded
// or written, naming the script, the line's number, the reason and the line.
TEST_F(ToolReplayTest, RefusesLinesItDoesNotUnderstand) {
    const struct {
        std::string line;
        std::string reason;
    } refused[] = {
        {"jump 10 10", "unknown event"},
        {"click 10", "missing number"},
        {"click 10 1e3", "not a number"},
        {"wheel 0 0 +120", "not a number"},
        {"move 5 5 left", "unexpected word"},
        {"dblclick 5 5 shift", "unexpected word"},
        {"key Enter", "unknown key"},
        {"command ID_EDIT_UNDO now", "unexpected word"},
        {"command ID_NO_SUCH_THING", "unknown command"},
        {"answer maybe", "unknown answer"},
        {"dialog yes", "unknown dialog outcome"},
        {"file   # no path", "missing path"},
        {"dump all", "unexpected word"},
    };
    for (const auto& [line, reason] : refused) {
        WriteScript("# a comment\r\n\r\nclick 150 250 shift ctrl\r\n" + line + "\r\ndump\r\n");
        const ToolRun run = Replay(lw::test::SampleDataDir(), sampleInput, "script.txt");
        EXPECT_EQ(run.output, "loomwright-tool: script.txt:4: " + reason + ": " + line + "\n");
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_FALSE(fs::exists(Path("out.mt"))) << line;
    }
}

TEST_F(ToolReplayTest, FailsWithoutItsFiles) {
    const std::string data = lw::test::SampleDataDir();
    WriteScript("dump\n");
    const ToolRun noScript = Replay(data, sampleInput, "missing.txt");
    EXPECT_EQ(noScript.output, "loomwright-tool: can't read script missing.txt\n");
    EXPECT_EQ(noScript.status, 2);

    const ToolRun noFolder = Replay(data, sampleInput, "script.txt", "missing/out.mt");
    EXPECT_EQ(noFolder.output, "state=0 selection=[] changed=0 undo=0 redo=0 "
                               "caption=\"Loomwright - missing/out.mt\" view=0,0 scale=1\n"
                               "Can't save template file!\n");
    EXPECT_EQ(noFolder.status, 2);

    const ToolRun twoArguments =
        RunTool("replay " + Quoted(sampleInput) + " script.txt", folder.string());
    EXPECT_NE(twoArguments.output.find("usage:"), std::string::npos);
    EXPECT_EQ(twoArguments.status, 2);
}
