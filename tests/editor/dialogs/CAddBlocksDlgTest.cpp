#include "dialogs/CAddBlocksDlg.h"

#include "app/Weaver.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;

const std::string kPatrol = "scg\\0\\blocks\\air\\patrol.group";
const std::string kPatrolHigh = "scg\\0\\blocks\\air\\patrol_high.group";
const std::string kPatrolLow = "scg\\0\\blocks\\air\\patrol_low.group";

class AddBlocksTest : public ::testing::Test {
protected:
    AddBlocksTest() { e.StartUp(); }

    test::SampleEditor e;
};

TEST_F(AddBlocksTest, OffersTheCompatibleBlocksInKeyOrderWithTheMainBlockAmongThem) {
    CAddBlocksDlg dialog(e.weaver.blockPool, kPatrolHigh);
    EXPECT_EQ(dialog.mainBlock, kPatrolHigh);
    EXPECT_EQ(dialog.blockList.Texts(), (Texts{kPatrol, kPatrolHigh, kPatrolLow}));

    dialog.blockList.Select(2);
    dialog.blockList.Select(0);
    ASSERT_TRUE(dialog.Ok(e.prompts));
    EXPECT_EQ(dialog.chosen, (Texts{kPatrol, kPatrolLow}));
    EXPECT_TRUE(e.prompts.Log().empty());
}

} // namespace
} // namespace lw
