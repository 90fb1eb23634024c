#include "catalog/BlockInfo.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

BlockInfo Block(std::vector<std::string> inputs, std::vector<std::string> outputs,
                std::vector<std::string> objects) {
    BlockInfo info;
    info.inputs = std::move(inputs);
    info.outputs = std::move(outputs);
    for (const std::string& object : objects)
        info.dynamics[object] = {};
    return info;
}

} // namespace

TEST(IsCompatibleWith, NeedsTheSameCountsAndNamesButNotTheSameProperties) {
    BlockInfo main = Block({"in"}, {"done", "fail"}, {"plane"});
    BlockInfo other = Block({"in"}, {"fail", "done"}, {"plane"});
    other.dynamics["plane"] = {"Model"};
    other.folder = "elsewhere";
    EXPECT_TRUE(IsCompatibleWith(main, other));
    EXPECT_FALSE(IsCompatibleWith(main, Block({"in"}, {"done"}, {"plane"})));
    EXPECT_FALSE(IsCompatibleWith(main, Block({"in"}, {"done", "fail"}, {"ship"})));
    EXPECT_FALSE(IsCompatibleWith(main, Block({"In"}, {"done", "fail"}, {"plane"})));
    EXPECT_FALSE(IsCompatibleWith(main, Block({"in"}, {"done", "fail"}, {"plane", "ship"})));
}
