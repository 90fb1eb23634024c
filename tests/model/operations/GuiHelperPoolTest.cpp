#include "operations/GuiHelperPool.h"

#include "operations/BlockSetPool.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

GuiHelperDesc Record(const std::string& name, int x, const std::string& owner = "",
                     const std::string& detail = "") {
    return GuiHelperDesc{name, x, 0, owner, detail, 0};
}

int XOf(const GuiHelperDesc* record) {
    return record == nullptr ? -1 : record->x;
}

} // namespace

// Every search finds the first record in file order that is still there,
// whichever search took the records before it.
TEST(GuiHelperPoolTest, ARecordTakenByOneSearchIsGoneForEveryOther) {
    std::vector<GuiHelperDesc> records = {Record("check", 1, "P", "free"), Record("check", 2),
                                          Record("unlink_P", 3), Record("check", 4, "P", "free"),
                                          Record("blocks_P", 5)};
    {
        GuiHelperPool pool(records);
        EXPECT_EQ(XOf(pool.TakeByOwner("check", "P", "free")), 1);
        // A phase that happens to be called "check" takes the next one left.
        EXPECT_EQ(XOf(pool.TakeByName("check")), 2);
        EXPECT_EQ(XOf(pool.TakeByName("check")), 4);
        EXPECT_EQ(XOf(pool.TakeByOwner("check", "P", "free")), -1);
        EXPECT_EQ(XOf(pool.FindByStrippedName("P")), 3);
        EXPECT_EQ(XOf(pool.FindByStrippedName("P")), 3);
        EXPECT_EQ(XOf(pool.TakeByName("unlink_P")), 3);
        EXPECT_EQ(XOf(pool.FindByStrippedName("P")), 5);
        EXPECT_EQ(records.size(), 5u);
    }
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].objectName, "blocks_P");
}

TEST(BlockSetPoolTest, EachSetIsUsedUpByTheFirstPhaseThatNamesIt) {
    std::vector<BlockSetDesc> sets = {
        {"a", {{"main", "1"}}}, {"b", {{"main", "2"}}}, {"a", {{"main", "3"}}}};
    {
        BlockSetPool pool(sets);
        EXPECT_EQ(pool.Take("a")->blocks.at("main"), "1");
        EXPECT_EQ(pool.Take("a")->blocks.at("main"), "3");
        EXPECT_EQ(pool.Take("a"), nullptr);
        EXPECT_EQ(pool.Take("c"), nullptr);
    }
    ASSERT_EQ(sets.size(), 1u);
    EXPECT_EQ(sets[0].name, "b");
}
