// Each folder under cases/format holds input.mt and expected.mt: the input is
// read and written again, and the bytes must equal the expected file.

#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "support/TestFiles.h"

#include <cctype>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

using namespace lw;

namespace {

// The line that begins at begin, line end included, with CR and LF shown.
std::string VisibleLineAt(const std::string& text, std::size_t begin) {
    std::string line = "\"";
    for (std::size_t i = begin; i < text.size(); ++i) {
        const char c = text[i];
        line += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
        if (c == '\n')
            break;
    }
    return line + "\"";
}

std::string FirstDifference(const std::string& expected, const std::string& actual) {
    std::size_t at = 0;
    while (at < expected.size() && at < actual.size() && expected[at] == actual[at])
        ++at;
    std::size_t lineBegin = 0;
    int number = 1;
    for (std::size_t i = 0; i < at; ++i) {
        if (expected[i] == '\n') {
            lineBegin = i + 1;
            ++number;
        }
    }
    return "first difference in line " + std::to_string(number) + ":\n  expected " +
           VisibleLineAt(expected, lineBegin) + "\n  actual   " + VisibleLineAt(actual, lineBegin);
}

std::string CaseName(const ::testing::TestParamInfo<std::string>& info) {
    std::string name = std::filesystem::path(info.param).filename().string();
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
    }
    return name;
}

class FormatCase : public ::testing::TestWithParam<std::string> {};

} // namespace

TEST_P(FormatCase, WritesWhatItReadsAsExpected) {
    const std::string folder = GetParam();
    std::istringstream input(test::ReadFileBytes(folder + "/input.mt"),
                             std::ios::in | std::ios::binary);
    const std::string expected = test::ReadFileBytes(folder + "/expected.mt");

    TemplateDesc desc;
    ReadTemplateDesc(desc, input);
    const std::string actual = TemplateDescText(desc);
    EXPECT_TRUE(actual == expected)
        << "case " << folder << ": " << FirstDifference(expected, actual);

    // Reporting the problems of the lines reads them no differently.
    std::istringstream again(test::ReadFileBytes(folder + "/input.mt"),
                             std::ios::in | std::ios::binary);
    TemplateDesc reported;
    TemplateReadReport report;
    ReadTemplateDesc(reported, again, &report);
    EXPECT_EQ(TemplateDescText(reported), actual) << "case " << folder;
}

INSTANTIATE_TEST_SUITE_P(Cases, FormatCase,
                         ::testing::ValuesIn(test::CaseFolders(test::CasesDir() + "/format")),
                         CaseName);
