#include "catalog/GroupReader.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace lw;

namespace {

using Strings = std::vector<std::string>;
using Dynamics = std::map<std::string, Strings>;

BlockInfo Read(const std::string& text) {
    BlockInfo info;
    std::istringstream stream(text);
    ReadGroupStream(info, stream);
    return info;
}

} // namespace

TEST(ReadGroupStream, ReadsGatesInFileOrderAndSkipsEverythingElse) {
    const BlockInfo info = Read("Name = \"top level\";\n"
                                "MCU_H_Input\n{\n  Name = \"in 1\";\n  Index = 3;\n}\n"
                                "MCU_Timer\n{\n  Name = \"timer\";\n}\n"
                                "MCU_H_Output\n{\n  Name = \"out\";\n}\n"
                                "MCU_H_Input\n{\n  Name = in2;\n  Name = x; Comment = y\n}\n");
    EXPECT_EQ(info.inputs, (Strings{"in 1", "in2"}));
    EXPECT_EQ(info.outputs, Strings{"out"});
    EXPECT_TRUE(info.dynamics.empty());
}

TEST(ReadGroupStream, StoresDynamicsAtTheirCloseWithTheLaterSectionWinning) {
    const BlockInfo info = Read("MCU_H_Dynamic\n{\n Name = \"plane\";\n Property = \"Model\";\n"
                                " Property = Skin;\n}\n"
                                "Name = \"ignored after close\";\n"
                                "MCU_H_Dynamic\n{\n Property = orphan;\n}\n"
                                "MCU_H_Dynamic\n{\n Name = ship;\n}\n"
                                "MCU_H_Dynamic\n{\n Name = plane;\n Property = Country;\n}\n");
    EXPECT_EQ(info.dynamics, (Dynamics{{"", {"orphan"}}, {"plane", {"Country"}}, {"ship", {}}}));
}

TEST(ReadGroupStream, AcceptsCrLfAndLongLines) {
    const std::string longName(20000, 'x');
    const BlockInfo info =
        Read("MCU_H_Input\r\n{\r\n Name = \"" + longName + "\";\r\n}\r\nMCU_H_Output\r\n");
    EXPECT_EQ(info.inputs, Strings{longName});
}
