#include "ToolRun.h"
#include "support/TestFiles.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <filesystem>
#include <gtest/gtest.h>

using lw::test::ReadFileBytes;

namespace {

const std::string kDataOption = "--data " + Quoted(lw::test::SampleDataDir()) + " ";
const std::string kSmall = lw::test::SampleDataDir() + "/scg/sample_small.mt";
const char* const kSame = "The templates are the same.\n";

// A case's older template: its old.mt, or the small sample when it has none.
std::string OldTemplateOf(const std::string& caseFolder) {
    const std::string own = caseFolder + "/old.mt";
    return std::filesystem::exists(own) ? own : kSmall;
}

using ToolDiffTest = ToolFolderTest;

} // namespace

// Each folder below cases/diff holds new.mt, perhaps old.mt, and the
// expected.txt that diff prints for them; a listing other than "the same"
// exits with 1.
TEST_F(ToolDiffTest, DiffCases) {
    const auto cases = lw::test::CaseFolders(lw::test::CasesDir() + "/diff");
    ASSERT_FALSE(cases.empty());
    for (const std::string& caseFolder : cases) {
        const ToolRun run = RunTool("diff " + kDataOption + Quoted(OldTemplateOf(caseFolder)) +
                                    " " + Quoted(caseFolder + "/new.mt"));
        const std::string expected = ReadFileBytes(caseFolder + "/expected.txt");
        EXPECT_EQ(run.output, expected) << caseFolder;
        EXPECT_EQ(run.status, expected == kSame ? 0 : 1) << caseFolder;
    }
}

TEST_F(ToolDiffTest, JsonListsTheSameDifferences) {
    const std::string rename = lw::test::CasesDir() + "/diff/rename/new.mt";
    const ToolRun run =
        RunTool("diff " + kDataOption + "--format json " + Quoted(kSmall) + " " + Quoted(rename));
    EXPECT_EQ(run.status, 1);
    QJsonParseError error;
    const QJsonObject root =
        QJsonDocument::fromJson(QByteArray::fromStdString(run.output), &error).object();
    ASSERT_EQ(error.error, QJsonParseError::NoError) << run.output;
    EXPECT_FALSE(root["same"].toBool());
    const QJsonObject first = root["objects"].toArray().at(0).toObject();
    EXPECT_EQ(first["kind"].toString(), "phase");
    EXPECT_EQ(first["name"].toString(), "Spotting");
    EXPECT_EQ(first["renamedFrom"].toString(), "Sighting");
    EXPECT_TRUE(root["links"].toObject()["added"].toArray().isEmpty());
}

// The picture of a comparison marks an added phase green and shows where a
// removed check stood.
TEST_F(ToolDiffTest, RenderMarksTheDifferencesOnThePicture) {
    const std::string changed = lw::test::CasesDir() + "/diff/added_and_removed/new.mt";
    const ToolRun plain =
        RunTool("render " + kDataOption + Quoted(changed) + " " + Quoted(Path("plain.png")));
    const ToolRun marked = RunTool("render " + kDataOption + "--diff " + Quoted(kSmall) + " " +
                                   Quoted(changed) + " " + Quoted(Path("marked.png")));
    ASSERT_EQ(plain.status, 0) << plain.output;
    ASSERT_EQ(marked.status, 0) << marked.output;
    const QImage before(QString::fromStdString(Path("plain.png")));
    const QImage after(QString::fromStdString(Path("marked.png")));
    auto greens = [](const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == qRgb(0, 160, 0);
        return count;
    };
    EXPECT_EQ(greens(before), 0);
    EXPECT_GT(greens(after), 100);
    EXPECT_EQ(RunTool("render " + kDataOption + "--diff " + Quoted(Path("none.mt")) + " " +
                      Quoted(changed) + " " + Quoted(Path("x.png")))
                  .status,
              2);
}
