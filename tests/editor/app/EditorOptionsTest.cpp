#include "app/EditorOptions.h"

#include "platform/MemoryOptionsStore.h"

#include <gtest/gtest.h>

using namespace lw;

TEST(EditorOptionsTest, SavesAllSevenKeysInTheirSectionAsZeroOrOne) {
    MemoryOptionsStore store;
    EditorOptions options;
    options.DrawSwitchAndCases = true;
    options.SetLastUsedTemplateName("scg\\rich.mt");
    options.Save(store);

    const char* section = "LoomwrightOptions";
    EXPECT_EQ(store.GetInt(section, "OpenLastUsedTemplateOnStart", -1), 1);
    EXPECT_EQ(store.GetString(section, "LastUsedTemplateName", "?"), "scg\\rich.mt");
    EXPECT_EQ(store.GetInt(section, "DrawInputOutputs", -1), 0);
    EXPECT_EQ(store.GetInt(section, "DrawSwitchAndCases", -1), 1);
    EXPECT_EQ(store.GetInt(section, "DrawChecks", -1), 0);
    EXPECT_EQ(store.GetInt(section, "DrawActions", -1), 0);
    EXPECT_EQ(store.GetInt(section, "DrawGeometry", -1), 0);
}

TEST(EditorOptionsTest, AnyNonZeroIsTrueAndMissingKeysKeepThePresentValue) {
    MemoryOptionsStore store;
    store.SetInt("LoomwrightOptions", "DrawChecks", 7);
    store.SetInt("LoomwrightOptions", "OpenLastUsedTemplateOnStart", 0);
    store.SetInt("OtherSection", "DrawActions", 1);
    EditorOptions options;
    options.DrawActions = true;
    options.LastUsedTemplateName = "kept.mt";
    options.Load(store);
    EXPECT_TRUE(options.DrawChecks);
    EXPECT_FALSE(options.OpenLastUsedTemplateOnStart);
    EXPECT_TRUE(options.DrawActions);
    EXPECT_EQ(options.LastUsedTemplateName, "kept.mt");
}
