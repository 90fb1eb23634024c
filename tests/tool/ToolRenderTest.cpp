#include "ToolRun.h"
#include "support/TestFiles.h"

#include <QColor>
#include <QImage>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace fs = std::filesystem;

namespace {

const std::string kDataOption = "--data " + Quoted(lw::test::SampleDataDir()) + " ";

// How many pixels of two pictures of one size differ visibly in a channel.
int CountDifferentPixels(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            count += std::abs(qRed(p) - qRed(q)) > 64 || std::abs(qGreen(p) - qGreen(q)) > 64 ||
                     std::abs(qBlue(p) - qBlue(q)) > 64;
        }
    }
    return count;
}

class ToolRenderTest : public ToolFolderTest {
protected:
    ToolRun Render(const std::string& options, const std::string& in,
                   const std::string& out) const {
        return RunTool("render " + kDataOption + options + " " + Quoted(in) + " " + Quoted(out));
    }
};

} // namespace

// Each folder below cases/render holds input.mt, the options of the command
// in an optional arguments.txt, and the expected.png it draws.
TEST_F(ToolRenderTest, PicturesMatchTheirReferences) {
    const auto cases = lw::test::CaseFolders(lw::test::CasesDir() + "/render");
    ASSERT_FALSE(cases.empty());
    for (const std::string& caseFolder : cases) {
        std::string options;
        if (fs::exists(caseFolder + "/arguments.txt"))
            options = lw::test::ReadFileBytes(caseFolder + "/arguments.txt");
        options.erase(options.find_last_not_of(" \r\n") + 1);
        const ToolRun run = Render(options, caseFolder + "/input.mt", Path("out.png"));
        EXPECT_EQ(run.status, 0) << caseFolder << ": " << run.output;
        const QImage actual(QString::fromStdString(Path("out.png")));
        const QImage expected(QString::fromStdString(caseFolder + "/expected.png"));
        ASSERT_FALSE(expected.isNull()) << caseFolder;
        ASSERT_EQ(actual.size(), expected.size()) << caseFolder;
        // Glyphs may differ a little where the font renderer does; the
        // drawing itself may not.
        EXPECT_LE(CountDifferentPixels(actual, expected), actual.width() * actual.height() / 1000)
            << caseFolder << ": if the change is meant, render input.mt again into expected.png";
    }
}

TEST_F(ToolRenderTest, PrintsTheLoadMessagesAndFailsOnFilesItCannotUse) {
    const std::string bad = Path("bad.mt");
    std::ofstream(bad, std::ios::binary) << "tlink; Nowhere(done); Also(go);\r\n";
    ToolRun run = Render("--layers io", bad, Path("bad.png"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "Can't find From phase for link\nError adding link!\n");
    EXPECT_EQ(QImage(QString::fromStdString(Path("bad.png"))).size(), QSize(40, 40))
        << "an empty template is its margin alone";

    run = Render("", Path("missing.mt"), Path("missing.png"));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "Can't open template file!\n");
    EXPECT_FALSE(fs::exists(Path("missing.png")));

    const std::string sample = lw::test::SampleDataDir() + "/scg/sample_small.mt";
    run = Render("", sample, Path("no/such/folder/out.png"));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output,
              "loomwright-tool: can't write the picture " + Path("no/such/folder/out.png") + "\n");
}
