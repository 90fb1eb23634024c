#include "dialogs/ComboField.h"
#include "dialogs/ListField.h"
#include "dialogs/NumberField.h"
#include "platform/RecordingPrompts.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;

TEST(ListFieldTest, SortedListsIgnoreCaseAndKeepTiesInTheirOrder) {
    ListField list(true);
    for (const char* text : {"beta", "Alpha", "ALPHA", "gamma", "alpha", "Beta_2", "beta2"})
        list.Add(text);
    EXPECT_EQ(list.Texts(), (Texts{"Alpha", "ALPHA", "alpha", "beta", "beta2", "Beta_2", "gamma"}));

    ListField unsorted;
    unsorted.Add("b");
    unsorted.Add("a");
    EXPECT_EQ(unsorted.Texts(), (Texts{"b", "a"}));
}

TEST(ComboFieldTest, SelectingByTextTakesTheFirstEntryThatBeginsWithIt) {
    ComboField combo(true);
    for (const char* text : {"PHASE_10", "phase_1", "Patrol"})
        combo.Add(text);
    ASSERT_EQ(combo.Texts(), (Texts{"Patrol", "phase_1", "PHASE_10"}));

    EXPECT_TRUE(combo.SelectByText("PHASE_1"));
    EXPECT_EQ(combo.Text(), "phase_1");
    EXPECT_FALSE(combo.SelectByText("z"));
    EXPECT_EQ(combo.Text(), "phase_1") << "a failed search keeps the selection";
    EXPECT_FALSE(combo.SelectByText(""));
    EXPECT_EQ(combo.Text(), "phase_1");
}

} // namespace
} // namespace lw
