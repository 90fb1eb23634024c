#include "catalog/RuleCatalogue.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace lw;

namespace {

RuleCatalogue Read(const std::string& text) {
    RuleCatalogue catalogue;
    std::istringstream stream(text);
    catalogue.Read(stream);
    return catalogue;
}

} // namespace

TEST(RuleCatalogue, ReadsFieldsFlagsAndAddBlocks) {
    const RuleCatalogue catalogue = Read("}\n"
                                         "Action\n{\n  Name = set_model;\n"
                                         "  Comment = \"Sets the model\";\n"
                                         "  Format = \"set_model($property, $value)\";\n"
                                         "  NoHelper = 0;\n  NeedCondition = 1;\n"
                                         "  Complex = no;\n  Import\n"
                                         "  Add\n  {\n    Condition = orphan;\n"
                                         "    Action = \"a(x,y)\";\n    Action = \"b()\";\n"
                                         "    Condition = \"if(z); \";\n  }\n"
                                         "  Name = renamed;\n}\n");
    ASSERT_EQ(catalogue.rules.size(), 1u);
    const RuleDef& rule = catalogue.rules[0];
    EXPECT_EQ(rule.name, "renamed");
    EXPECT_EQ(rule.comment, "Sets the model");
    EXPECT_EQ(rule.format, "set_model($property, $value)");
    EXPECT_FALSE(rule.noHelper);
    EXPECT_TRUE(rule.needCondition);
    EXPECT_TRUE(rule.complex);
    EXPECT_FALSE(rule.isImport);
    ASSERT_EQ(rule.adds.size(), 2u);
    EXPECT_EQ(rule.adds[0].action, "a(x,y)");
    EXPECT_EQ(rule.adds[0].condition, "");
    EXPECT_EQ(rule.adds[1].action, "b()");
    EXPECT_EQ(rule.adds[1].condition, "if(z); ");
    EXPECT_EQ(catalogue.parseState, 0);
}
