#include "ToolRun.h"
#include "support/TestFiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace fs = std::filesystem;
using lw::test::ReadFileBytes;

namespace {

const std::string kDataOption = "--data " + Quoted(lw::test::SampleDataDir()) + " ";

class ToolTemplateCommandsTest : public ToolFolderTest {
protected:
    std::string Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
        return Path(name);
    }
    ToolRun Normalize(const std::string& in, const std::string& out) const {
        return RunTool("normalize " + kDataOption + Quoted(in) + " " + Quoted(out));
    }
};

const char* const kBadLink = "tlink; Nowhere(done); Also(go);\r\n";

} // namespace

TEST_F(ToolTemplateCommandsTest, NormalizeReproducesEverySampleByteForByte) {
    for (const char* name : {"sample_small.mt", "sample_rich.mt", "sample_convoy.mt"}) {
        const std::string in = lw::test::SampleDataDir() + "/scg/" + name;
        const ToolRun run = Normalize(in, Path(name));
        EXPECT_EQ(run.status, 0) << name << ": " << run.output;
        EXPECT_EQ(run.output, "") << name;
        EXPECT_EQ(ReadFileBytes(Path(name)), ReadFileBytes(in)) << name;
    }
}

// Each folder below cases/normalize holds input.mt, the expected.mt that
// normalize writes of it, and the messages.txt it prints.
TEST_F(ToolTemplateCommandsTest, NormalizeCases) {
    const auto cases = lw::test::CaseFolders(lw::test::CasesDir() + "/normalize");
    ASSERT_FALSE(cases.empty());
    for (const std::string& caseFolder : cases) {
        const ToolRun run = Normalize(caseFolder + "/input.mt", Path("out.mt"));
        const std::string messages = ReadFileBytes(caseFolder + "/messages.txt");
        EXPECT_EQ(run.output, messages) << caseFolder;
        EXPECT_EQ(run.status, messages.empty() ? 0 : 1) << caseFolder;
        EXPECT_EQ(ReadFileBytes(Path("out.mt")), ReadFileBytes(caseFolder + "/expected.mt"))
            << caseFolder;
    }
}

TEST_F(ToolTemplateCommandsTest, CheckPrefixesEachMessageWithItsTemplate) {
    const std::string bad = Write("bad.mt", kBadLink);
    const std::string good = lw::test::SampleDataDir() + "/scg/sample_small.mt";
    ToolRun run =
        RunTool("check " + kDataOption + Quoted(bad) + " " + Quoted(good) + " " + Quoted(bad));
    EXPECT_EQ(run.status, 1);
    const std::string expected =
        bad + ": Can't find From phase for link\n" + bad + ": Error adding link!\n";
    EXPECT_EQ(run.output, expected + expected);

    // A path relative to the working folder.
    run = RunTool("check " + kDataOption + "bad.mt", folder.string());
    EXPECT_EQ(run.output, "bad.mt: Can't find From phase for link\nbad.mt: Error adding link!\n");
}

// A folder stands for every template under it, in sorted order, each named
// as if given by itself. The nine bytes of c.mt once crashed the reader; they
// hold no template record.
TEST_F(ToolTemplateCommandsTest, CheckTakesEveryTemplateUnderAFolder) {
    fs::create_directories(Path("a/deep"));
    Write("a/deep/z.MT", kBadLink);
    Write("a/notes.txt", kBadLink);
    Write("b.mt", kBadLink);
    Write("c.mt", "case; \"");
    const ToolRun run = RunTool("check " + kDataOption + Quoted(folder.string()));
    EXPECT_EQ(run.status, 2) << run.output;
    std::string expected;
    for (const std::string& name : {Path("a/deep/z.MT"), Path("b.mt")})
        expected += name + ": Can't find From phase for link\n" + name + ": Error adding link!\n";
    EXPECT_EQ(run.output, expected + Path("c.mt") + ": This file holds no template.\n");
}

TEST_F(ToolTemplateCommandsTest, UnreadableOrUnwritableFilesExitWithTwo) {
    const std::string good = lw::test::SampleDataDir() + "/scg/sample_small.mt";
    ToolRun run = RunTool("check " + kDataOption + Quoted(Path("missing.mt")) + " " + Quoted(good));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, Path("missing.mt") + ": Can't open template file!\n");

    run = Normalize(Path("missing.mt"), Path("out.mt"));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "Can't open template file!\n");
    EXPECT_FALSE(fs::exists(Path("out.mt")));

    run = Normalize(good, Path("no/such/folder/out.mt"));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "Can't save template file!\n");
    run = Normalize(good, folder.string());
    EXPECT_EQ(run.status, 2);
}

// Each folder below cases/check holds input.mt, with block files laid over
// the sample data in an optional data/ folder, and the expected.txt that
// `check --format gcc` prints of it, the data folder written DATA. The same
// template checked as JSON gives valid JSON with as many diagnostics.
TEST_F(ToolTemplateCommandsTest, CheckCasesReportEachProblemWithItsLine) {
    const auto cases = lw::test::CaseFolders(lw::test::CasesDir() + "/check");
    ASSERT_FALSE(cases.empty());
    for (const std::string& caseFolder : cases) {
        const std::string data = FreshDataFor(caseFolder);
        ToolRun run =
            RunTool("check --data " + Quoted(data) + " --format gcc input.mt", caseFolder);
        std::string output = run.output;
        for (std::size_t at; (at = output.find(data)) != std::string::npos;)
            output.replace(at, data.size(), "DATA");
        EXPECT_EQ(output, ReadFileBytes(caseFolder + "/expected.txt")) << caseFolder;
        // Errors count for the exit status, warnings alone do not.
        EXPECT_EQ(run.status, output.find(": error:") != std::string::npos ? 1 : 0) << caseFolder;

        run = RunTool("check --data " + Quoted(data) + " --format json input.mt", caseFolder);
        QJsonParseError error;
        const QJsonDocument json =
            QJsonDocument::fromJson(QByteArray::fromStdString(run.output), &error);
        ASSERT_EQ(error.error, QJsonParseError::NoError) << caseFolder << run.output;
        const QJsonObject result = json.array().at(0).toObject();
        EXPECT_EQ(static_cast<std::size_t>(result["diagnostics"].toArray().size() +
                                           result["messages"].toArray().size()),
                  static_cast<std::size_t>(std::count(output.begin(), output.end(), '\n')))
            << caseFolder;
        // Qt reads a bad escape leniently, so the texts must come back whole
        // (those of plain ASCII: other bytes are written as their code points).
        for (const QJsonValue& problem : result["diagnostics"].toArray()) {
            const QString message = problem.toObject()["message"].toString();
            if (message.toLatin1() == message.toUtf8()) {
                EXPECT_NE(output.find(message.toStdString()), std::string::npos) << caseFolder;
            }
        }
    }
}

// Warnings count for the exit status only when asked; the text format stays
// as it always was, the message boxes alone.
TEST_F(ToolTemplateCommandsTest, CheckFormatsAndWhatCountsForTheExitStatus) {
    const std::string small = lw::test::CasesDir() + "/check/small-case/input.mt";
    EXPECT_EQ(RunTool("check " + kDataOption + "--format gcc " + Quoted(small)).status, 0);
    EXPECT_EQ(RunTool("check " + kDataOption + "--format gcc --werror " + Quoted(small)).status, 1);
    const ToolRun text = RunTool("check " + kDataOption + Quoted(small));
    EXPECT_EQ(text.output, "");
    EXPECT_EQ(text.status, 0);
    EXPECT_EQ(RunTool("check " + kDataOption + "--format xml " + Quoted(small)).status, 2);
}
