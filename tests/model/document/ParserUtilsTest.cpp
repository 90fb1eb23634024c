#include "document/ParserUtils.h"

#include <gtest/gtest.h>

using SortieKitSpace::ParserUtils;

namespace {

std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    ParserUtils::parseLineIntoWords(words, line);
    return words;
}

std::vector<std::string> Params(const std::string& line, std::size_t pos = 0) {
    std::vector<std::string> params;
    ParserUtils::getParamsInBrackets(params, line, pos);
    return params;
}

using Strings = std::vector<std::string>;

} // namespace

TEST(ParserUtilsWords, QuotedTextIsOneWord) {
    EXPECT_EQ(Words("Format \"set_value($property, $value)\""),
              (Strings{"Format", "set_value($property, $value)"}));
    EXPECT_EQ(Words("gui_helper; n; 10; 20;\"\"; ( ); 3;"),
              (Strings{"gui_helper", "n", "10", "20", "", "3"}));
    EXPECT_EQ(Words("Name \"open"), (Strings{"Name", "open"}));
    // A quote never closed is passed over, so no word holds a separator.
    EXPECT_EQ(Words("coalition(\"e); x"), (Strings{"coalition", "e", "x"}));
    EXPECT_EQ(Words("a(b,\")"), (Strings{"a", "b"}));
    std::size_t pos = 0;
    EXPECT_EQ(ParserUtils::getNextWord("\" set(a)", pos), "set");
    EXPECT_EQ(pos, 5u);
}

TEST(ParserUtilsBrackets, NestedBracketsStayInOneEntry) {
    EXPECT_EQ(Params("x(f(a,b),c)"), (Strings{"f(a,b)", "c"}));
}
