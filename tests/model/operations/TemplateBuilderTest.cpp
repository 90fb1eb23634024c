#include "operations/TemplateBuilder.h"

#include "platform/MemoryFileSystem.h"
#include "platform/RecordingPrompts.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

using Strings = std::vector<std::string>;
using Ids = std::vector<std::int32_t>;
using Blocks = std::map<std::string, std::string>;

const char* const kPlane = "b\\plane.group";
const char* const kTruck = "b\\truck.group";
const char* const kNoBlocks = "Phase without blocks: ignoring";
const char* const kLinkError = "Error adding link!";

BlockInfo MakeBlock(Strings inputs, Strings outputs, std::map<std::string, Strings> dynamics) {
    BlockInfo info;
    info.inputs = std::move(inputs);
    info.outputs = std::move(outputs);
    info.dynamics = std::move(dynamics);
    return info;
}

// A phase with a block set of its own name.
void AddPhase(TemplateDesc& desc, const std::string& name, Blocks blocks = {{"main", kPlane}},
              GenerationType type = GenerationRandom, Strings geo = {}) {
    desc.phases.push_back(PhaseDesc{name, type, geo, "blocks_" + name, "", ""});
    desc.blockSets.push_back(BlockSetDesc{"blocks_" + name, std::move(blocks)});
}

Strings GateNames(const std::vector<GateSlot>& gates) {
    Strings names;
    for (const GateSlot& gate : gates)
        names.push_back(gate.name);
    return names;
}

class TemplateBuilderTest : public ::testing::Test {
protected:
    void SetUp() override {
        files.SetBaseFolder("/data");
        pool.Put(kPlane, MakeBlock({"in"}, {"out", "done"}, {{"Plane", {"Skin"}}}));
        pool.Put(kTruck, MakeBlock({"t_in"}, {"t_out"}, {{"Truck", {"Cargo"}}}));
    }

    template <typename T> T& Get(std::int32_t id) {
        T* object = As<T>(store.FindObject(id));
        EXPECT_NE(object, nullptr) << "id " << id;
        return *object;
    }

    MemoryFileSystem disk;
    FileAccess files{disk};
    RecordingPrompts prompts;
    BlocksContainer pool{files, prompts};
    ObjectStore store;
    TemplateBuilder builder{store, pool, prompts};
};

} // namespace

TEST_F(TemplateBuilderTest, PhaseTakesItsGatesFromTheFirstBlockKeyAndConsumesItsRecords) {
    TemplateDesc desc;
    desc.phases.push_back(PhaseDesc{"P", GenerationRandom, {}, "set", "spawn", "scg\\b"});
    desc.blockSets.push_back(BlockSetDesc{"set", {{"main", kPlane}, {"a_a", kTruck}}});
    desc.guiHelpers = {{"Q", 1, 1, "", "", 2}, {"P", 10, -20, "", "", 4}};
    builder.Build(desc);
    const Phase& phase = Get<Phase>(1);
    EXPECT_EQ(phase.name, "P");
    EXPECT_EQ(phase.allocationType, "spawn");
    EXPECT_EQ(phase.blocksFolder, "scg\\b");
    EXPECT_EQ(phase.blocks, (Blocks{{"main", kPlane}, {"a_a", kTruck}}));
    EXPECT_EQ(phase.inputs, (std::vector<GateSlot>{GateSlot{"t_in", true}}));
    EXPECT_EQ(GateNames(phase.outputs), Strings{"t_out"});
    EXPECT_EQ(phase.blockProperties.count("Truck"), 1u);
    EXPECT_EQ(phase.posX, 10);
    EXPECT_EQ(phase.posY, -20);
    EXPECT_EQ(phase.colorIndex, 4);
    EXPECT_TRUE(desc.blockSets.empty());
    EXPECT_TRUE(desc.guiHelpers == (std::vector<GuiHelperDesc>{{"Q", 1, 1, "", "", 2}}));
    EXPECT_TRUE(prompts.Log().empty());
}

TEST_F(TemplateBuilderTest, UnknownBlocksAreReadFromTheirFilesAndAnUnreadableOneIsDropped) {
    disk.AddFile("/data/extra/New.Group", "MCU_H_Input\n{\n  Name = arrive;\n}\n");
    TemplateDesc desc;
    AddPhase(desc, "P", {{"main", "extra\\new.group"}, {"z", "extra\\gone.group"}});
    AddPhase(desc, "Q", {{"main", "extra\\gone.group"}});
    builder.Build(desc);
    const std::string readError = "Error reading \"extra\\gone.group\" file!";
    EXPECT_EQ(prompts.MessageTexts(), (Strings{readError, readError, kNoBlocks}));
    EXPECT_TRUE(pool.Contains("extra\\new.group"));
    EXPECT_FALSE(pool.Contains("extra\\gone.group"));
    EXPECT_EQ(Get<Phase>(1).blocks, (Blocks{{"main", "extra\\new.group"}}));
    EXPECT_EQ(GateNames(Get<Phase>(1).inputs), Strings{"arrive"});
    EXPECT_EQ(store.objects.size(), 1u);
}

TEST_F(TemplateBuilderTest, GeometryLinksAreTakenFromTheFrontOfTheParameters) {
    TemplateDesc desc;
    AddPhase(desc, "L", {{"main", kPlane}}, GenerationLine, {"T"});
    AddPhase(desc, "F", {{"main", kPlane}}, GenerationFractal, {"T", "Gone", "1", "2"});
    AddPhase(desc, "A", {{"main", kPlane}}, GenerationAzimuth, {"EMPTY", "T", "3"});
    AddPhase(desc, "S", {{"main", kPlane}}, GenerationServerSetPos, {"T", "4"});
    AddPhase(desc, "T");
    desc.phases.push_back(PhaseDesc{"Gone", GenerationRandom, {}, "", "", ""});
    builder.Build(desc);
    const Phase& line = Get<Phase>(1);
    EXPECT_EQ(line.primaryLinkId, 5);
    EXPECT_EQ(line.secondaryLinkId, 0);
    EXPECT_TRUE(line.geoParams.empty());
    const Phase& fractal = Get<Phase>(2);
    EXPECT_EQ(fractal.primaryLinkId, 5);
    EXPECT_EQ(fractal.secondaryLinkId, 0);
    EXPECT_EQ(fractal.geoParams, (Strings{"1", "2"}));
    const Phase& azimuth = Get<Phase>(3);
    EXPECT_EQ(azimuth.primaryLinkId, 0);
    EXPECT_EQ(azimuth.secondaryLinkId, 0);
    EXPECT_EQ(azimuth.geoParams, (Strings{"T", "3"}));
    const Phase& server = Get<Phase>(4);
    EXPECT_EQ(server.primaryLinkId, 0);
    EXPECT_EQ(server.geoParams, (Strings{"T", "4"}));
}

TEST_F(TemplateBuilderTest, TheSourceIsTheFirstPhaseOfItsNameAndTheDestinationAnother) {
    TemplateDesc desc;
    desc.links = {{true, "X", "out", "X", "in"}};
    builder.BuildLinks(desc, nullptr, nullptr);
    EXPECT_EQ(prompts.MessageTexts(), (Strings{"Can't find From phase for link", kLinkError}));

    AddPhase(desc, "X");
    AddPhase(desc, "X");
    AddPhase(desc, "X");
    builder.Build(desc);
    EXPECT_EQ(store.links, (std::vector<Link>{{true, 1, "out", 2, "in"}}));
}

TEST_F(TemplateBuilderTest, AnImportFindsOnlyWhatItBuildsAndCollectsIt) {
    TemplateDesc existing;
    AddPhase(existing, "Old");
    existing.cases = {{"OldCase", {"Old"}}};
    builder.Build(existing);
    // Only the imported phases have geometry words to resolve.
    Get<Phase>(1).geoParams = {"500"};

    TemplateDesc desc;
    AddPhase(desc, "New", {{"main", kPlane}}, GenerationAzimuth, {"Old", "1"});
    AddPhase(desc, "Other");
    desc.phases.push_back(PhaseDesc{"Dropped", GenerationRandom, {}, "", "", ""});
    desc.links = {{true, "Old", "out", "New", "in"}, {true, "New", "out", "Other", "in"}};
    desc.cases = {{"NewCase", {"New", "Old"}}};
    desc.switches = {{"S", 0, 0, 0, {"OldCase", "NewCase"}}};
    desc.checks = {{"New", CheckFree, {}}, {"Old", CheckFree, {}}};
    desc.actions = {{"New", "Plane", "Skin", "set_skin", {}, ""}};
    desc.unlinks = {{true, "unlink_New", {"in"}}, {true, "unlink_Old", {"in"}}};
    ObjectList list;
    std::vector<Link> made;
    builder.Build(desc, &list, &made);

    EXPECT_EQ(prompts.MessageTexts(),
              (Strings{kNoBlocks, "Can't find From phase for link", kLinkError}));
    Ids listed;
    for (const EditorObject* object : list)
        listed.push_back(object->id);
    // Old is 1, OldCase 2, Dropped 5, and the check on Old 9.
    EXPECT_EQ(listed, (Ids{3, 4, 6, 7, 8, 10, 11}));
    EXPECT_EQ(made, (std::vector<Link>{{true, 3, "out", 4, "in"}}));
    EXPECT_EQ(store.links, made);
    EXPECT_EQ(Get<Phase>(3).primaryLinkId, 0);
    EXPECT_EQ(Get<Phase>(1).geoParams, Strings{"500"});
    EXPECT_EQ(Get<Case>(6).phaseIds, Ids{3});
    EXPECT_EQ(Get<Phase>(1).caseId, 2);
    EXPECT_EQ(Get<Switch>(7).caseIds, Ids{6});
    EXPECT_EQ(Get<Case>(2).switchId, 0);
    EXPECT_EQ(Get<Check>(9).phaseId, 0);
    EXPECT_EQ(Get<Unlinker>(11).phaseId, 3);
    EXPECT_EQ(store.nextId, 12);
}
