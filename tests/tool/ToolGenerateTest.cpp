#include "ToolRun.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>

using lw::test::ReadFileBytes;

namespace {

using ToolGenerateTest = ToolFolderTest;

std::size_t CountLines(const std::string& text, const std::string& start) {
    std::size_t count = 0;
    for (std::size_t at = text.find("\r\n" + start); at != std::string::npos;
         at = text.find("\r\n" + start, at + 1))
        ++count;
    return count;
}

} // namespace

// A generated template is what the editor would save itself: it loads in its
// data folder with no message and normalizes to the same bytes.
TEST_F(ToolGenerateTest, WritesATemplateThatLoadsCleanlyAndIsItsOwnNormalForm) {
    const ToolRun generate = RunTool("generate 203 " + Quoted(Path("data")));
    ASSERT_EQ(generate.status, 0) << generate.output;
    const std::string mt = Path("data") + "/scg/synthetic.mt";
    EXPECT_EQ(generate.output, mt + "\n");

    const std::string data = "--data " + Quoted(Path("data")) + " ";
    // Nor does any check find a problem in it: a file the writer wrote gives
    // no diagnostic.
    const ToolRun check = RunTool("check " + data + "--format gcc --werror " + Quoted(mt));
    EXPECT_EQ(check.status, 0);
    EXPECT_EQ(check.output, "");
    const ToolRun normalize =
        RunTool("normalize " + data + Quoted(mt) + " " + Quoted(Path("n.mt")));
    EXPECT_EQ(normalize.status, 0) << normalize.output;
    EXPECT_EQ(ReadFileBytes(Path("n.mt")), ReadFileBytes(mt));

    const std::string text = ReadFileBytes(mt);
    EXPECT_EQ(CountLines(text, "phase; "), 203u);
    EXPECT_EQ(CountLines(text, "case; "), 50u);
    EXPECT_EQ(CountLines(text, "switch; "), 13u);
    EXPECT_EQ(CountLines(text, "check; "), 203u);
    EXPECT_EQ(CountLines(text, "action; "), 406u);
    EXPECT_GT(CountLines(text, "olink; "), 100u);
    for (const char* type : {"server_setpos(", "server_waypoint(", "server_targetpos(", "azimuth(",
                             "line(", "at(", "random(", "fractal("})
        EXPECT_NE(text.find(type), std::string::npos) << type;
}

TEST_F(ToolGenerateTest, RefusesACountThatIsNoPositiveNumber) {
    for (const char* count : {"0", "12x", "99999999"}) {
        const ToolRun run = RunTool(std::string("generate ") + count + " " + Quoted(Path("d")));
        EXPECT_EQ(run.status, 2) << count;
        EXPECT_NE(run.output.find("whole number from 1 to"), std::string::npos) << run.output;
    }
}
