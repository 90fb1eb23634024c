#include "app/EditorCommands.h"
#include "app/RecentFiles.h"
#include "platform/MemoryOptionsStore.h"
#include "seams/ScriptedFileDialogs.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

// The rich sample open in a canvas of 1024 by 768 pixels.
class ViewCommandsTest : public ::testing::Test {
protected:
    void SetUp() override {
        e.view.pixelWidth = 1024;
        e.view.pixelHeight = 768;
        e.Open("scg\\sample_rich.mt");
    }

    SampleEditor e;
    ScriptedFileDialogs files;
    EditorCommands commands{e.weaver, files};
};

} // namespace

TEST_F(ViewCommandsTest, FindGoesRoundTheMatchesOfNamesAndBlocksWithoutRegardToCase) {
    Finder& finder = commands.Find();
    finder.Search("CASE");
    const std::size_t cases = finder.MatchCount();
    EXPECT_GT(cases, 1u);
    EXPECT_TRUE(commands.Run(CommandId::FindPrevious));
    EXPECT_EQ(finder.Status(), std::to_string(cases) + " of " + std::to_string(cases));
    ASSERT_EQ(e.weaver.selection.members.size(), 1u);
    EXPECT_EQ(e.weaver.selection.members[0]->GetKind(), ObjectKind::Case);
    commands.Run(CommandId::FindNext);
    EXPECT_EQ(finder.Status(), "1 of " + std::to_string(cases));

    finder.Search("bomberRAID");
    EXPECT_EQ(finder.MatchCount(), 1u) << "a phase's name in another case";
    finder.Search("patrol_low");
    EXPECT_EQ(finder.MatchCount(), 1u) << "a phase whose block is named so";
    finder.Search("no such name");
    EXPECT_EQ(finder.Status(), "No match");
    EXPECT_FALSE(commands.IsEnabled(CommandId::FindNext));
}

TEST(RecentFilesTest, KeepsEightMostRecentFirstEachOnce) {
    RecentFiles recent;
    for (int i = 1; i <= 9; ++i)
        recent.Add("scg\\t" + std::to_string(i) + ".mt");
    recent.Add("scg\\t5.mt");
    ASSERT_EQ(recent.Paths().size(), 8u);
    EXPECT_EQ(recent.Paths()[0], "scg\\t5.mt");
    EXPECT_EQ(recent.Paths()[1], "scg\\t9.mt");
    EXPECT_EQ(recent.Paths()[7], "scg\\t2.mt");

    MemoryOptionsStore store;
    recent.Save(store);
    RecentFiles shorter;
    shorter.Add("scg\\only.mt");
    shorter.Save(store);
    RecentFiles read;
    read.Load(store);
    EXPECT_EQ(read.Paths(), std::vector<std::string>{"scg\\only.mt"});
    // The keys count from one: File1 is the newest.
    EXPECT_EQ(store.GetString(RecentFiles::kSection, "File1", ""), "scg\\only.mt");
}
