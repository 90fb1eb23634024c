#include "operations/BlockReloader.h"

#include "platform/MemoryFileSystem.h"
#include "platform/RecordingPrompts.h"
#include "support/HandBuilt.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

using Lines = std::vector<std::string>;

// A store and a pool on a data folder in memory whose one block folder,
// "blocks", holds a block with two gates and one with two properties.
class BlockReloaderTest : public ::testing::Test {
protected:
    BlockReloaderTest() {
        files.SetBaseFolder("/d");
        disk.AddFile("/d/blocks/gates.group", "MCU_H_Input\n{\nName = \"in\";\n}\n"
                                              "MCU_H_Output\n{\nName = \"out\";\n}\n");
        disk.AddFile("/d/blocks/lead.group", "MCU_H_Dynamic\n{\nName = \"Lead\";\n"
                                             "Property = \"Model\";\nProperty = \"Skin\";\n}\n");
    }

    Phase* AddPhase(const std::string& name, const std::string& block) {
        Phase* phase = store.NewPhase();
        phase->name = name;
        phase->blocks["main"] = block;
        return phase;
    }
    // Runs a reload and answers the lines that tell of a change.
    Lines Reload() {
        Lines log;
        BlockReloader(store, pool, log).Run({"blocks"});
        Lines changes;
        for (const std::string& line : log) {
            if (line.rfind("ERROR", 0) == 0 || line.rfind("ADDED", 0) == 0 ||
                line.rfind("REMOVED", 0) == 0)
                changes.push_back(line);
        }
        return changes;
    }

    MemoryFileSystem disk;
    FileAccess files{disk};
    RecordingPrompts prompts;
    BlocksContainer pool{files, prompts};
    ObjectStore store;
};

} // namespace

TEST_F(BlockReloaderTest, AnActionMovedIntoAFreedPlaceWaitsForTheNextReload) {
    Phase* phase = AddPhase("P", "blocks\\lead.group");
    test::ActionOf(store, *phase, "Lead", "Model");
    test::ActionOf(store, *phase, "Lead", "Gone1");
    test::ActionOf(store, *phase, "Lead", "Gone2");
    Action* byHand = test::ActionOf(store, *phase, "", "Briefing");
    Action* orphan = store.NewAction();
    orphan->objectName = "Lead";
    orphan->name = "Gone3";

    EXPECT_EQ(Reload(), (Lines{"ADDED: Action Skin:Lead to PHASE: P",
                               "REMOVED: Action: Gone1:Lead from PHASE: P"}));
    EXPECT_EQ(phase->actionIds, (std::vector<std::int32_t>{2, 4, 5, 7}));

    EXPECT_EQ(Reload(), Lines{"REMOVED: Action: Gone2:Lead from PHASE: P"});
    EXPECT_EQ(Reload(), Lines{});
    EXPECT_EQ(store.FindObject(byHand->id), byHand);
    EXPECT_EQ(store.FindObject(orphan->id), orphan);
}
