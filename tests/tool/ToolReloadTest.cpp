#include "ToolRun.h"
#include "support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace fs = std::filesystem;
using lw::test::ReadFileBytes;

namespace {

class ToolReloadTest : public ToolFolderTest {
protected:
    // A fresh copy of the sample data folder with the files of the case's
    // overlay folder copied over it.
    std::string DataFolderFor(const std::string& caseFolder, const std::string& overlay) const {
        const fs::path data = folder / overlay;
        fs::remove_all(data);
        fs::copy(lw::test::SampleDataDir(), data, fs::copy_options::recursive);
        if (fs::exists(caseFolder + "/" + overlay))
            fs::copy(caseFolder + "/" + overlay, data,
                     fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        return data.string();
    }
};

} // namespace

// Each folder below cases/reload holds input.mt, an optional data/ folder
// with the block files that differ from the sample data, the expected.mt
// that reload writes, and what it prints: messages.txt, then log.txt. An
// optional before/ folder holds the blocks that differ in the data the
// template was made with: it is then read against those (--before).
TEST_F(ToolReloadTest, ReloadCases) {
    const auto cases = lw::test::CaseFolders(lw::test::CasesDir() + "/reload");
    ASSERT_FALSE(cases.empty());
    for (const std::string& caseFolder : cases) {
        const std::string data = DataFolderFor(caseFolder, "data");
        const std::string before = fs::exists(caseFolder + "/before")
                                       ? "--before " + Quoted(DataFolderFor(caseFolder, "before"))
                                       : "";
        const ToolRun run =
            RunTool("reload --data " + Quoted(data) + " " + before + " " +
                    Quoted(caseFolder + "/input.mt") + " " + Quoted(Path("out.mt")));
        const std::string messages = ReadFileBytes(caseFolder + "/messages.txt");
        EXPECT_EQ(run.output, messages + ReadFileBytes(caseFolder + "/log.txt")) << caseFolder;
        EXPECT_EQ(run.status, messages.empty() ? 0 : 1) << caseFolder;
        EXPECT_EQ(ReadFileBytes(Path("out.mt")), ReadFileBytes(caseFolder + "/expected.mt"))
            << caseFolder;
        // The log goes to the output only.
        EXPECT_FALSE(fs::exists(data + "/reload_blocks_log.txt")) << caseFolder;
    }
}
