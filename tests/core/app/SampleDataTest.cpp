#include "app/Weaver.h"
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/NativeFileSystem.h"
#include "platform/RecordingPrompts.h"
#include "support/TestFiles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

using namespace lw;

namespace {

const char* const kSampleTemplates[] = {"scg/sample_small.mt", "scg/sample_rich.mt",
                                        "scg/sample_convoy.mt"};

// The bundled data folder as the editor finds it at start.
class SampleDataTest : public ::testing::Test {
protected:
    void SetUp() override { weaver.StartUp(test::SampleDataDir()); }

    TemplateDesc Read(const std::string& relativePath) {
        std::istringstream stream(test::ReadFileBytes(test::SampleDataDir() + "/" + relativePath));
        TemplateDesc desc;
        ReadTemplateDesc(desc, stream);
        return desc;
    }

    bool HasGate(const std::vector<std::string>& gates, const std::string& gate) {
        return std::find(gates.begin(), gates.end(), gate) != gates.end();
    }

    // The block that gives a phase its gates: the one under the first key.
    BlockInfo GateBlockOf(const TemplateDesc& desc, const std::string& phaseName) {
        for (const PhaseDesc& phase : desc.phases) {
            if (phase.name != phaseName)
                continue;
            for (const BlockSetDesc& set : desc.blockSets) {
                if (set.name == phase.blockSetName && !set.blocks.empty())
                    return weaver.blockPool.GetBlock(set.blocks.begin()->second);
            }
        }
        return BlockInfo();
    }

    NativeFileSystem disk;
    MemoryOptionsStore options;
    RecordingPrompts prompts;
    Weaver weaver{prompts, options, disk};
};

// What the reader turns "<EMPTY>" and "<empty>" into goes back to the form
// that saving a document writes.
void RestoreBracketedWords(TemplateDesc& desc) {
    for (PhaseDesc& phase : desc.phases) {
        for (std::string& param : phase.geoParams) {
            if (param == "EMPTY")
                param = "<EMPTY>";
        }
    }
    for (ActionDesc& action : desc.actions) {
        if (action.ruleName == "empty")
            action.ruleName = "<empty>";
    }
}

} // namespace

TEST_F(SampleDataTest, StartsWithoutAMessageAndFillsEveryCatalogue) {
    EXPECT_TRUE(prompts.Log().empty());
    EXPECT_EQ(weaver.blockFolders.size(), 3u);
    EXPECT_GE(weaver.blockPool.blocks.size(), 20u);
    EXPECT_LE(weaver.blockPool.blocks.size(), 40u);
    EXPECT_GE(weaver.ruleCatalogue.rules.size(), 16u);
    for (const char* special : {"player model", "by career squadrons", "unique random fighter"})
        EXPECT_EQ(weaver.modelList.types.count(special), 1u) << special;
}

TEST_F(SampleDataTest, TemplatesAreExactlyWhatSavingWrites) {
    for (const char* path : kSampleTemplates) {
        TemplateDesc desc = Read(path);
        RestoreBracketedWords(desc);
        EXPECT_EQ(TemplateDescText(desc), test::ReadFileBytes(test::SampleDataDir() + "/" + path))
            << path;
    }
}

TEST_F(SampleDataTest, TemplatesNameOnlyKnownBlocksAndGates) {
    for (const char* path : kSampleTemplates) {
        const TemplateDesc desc = Read(path);
        for (const BlockSetDesc& set : desc.blockSets) {
            for (const auto& block : set.blocks)
                EXPECT_TRUE(weaver.blockPool.Contains(block.second))
                    << path << ": " << block.second;
        }
        for (const LinkDesc& link : desc.links) {
            EXPECT_TRUE(HasGate(GateBlockOf(desc, link.fromPhase).outputs, link.fromGate))
                << path << ": " << link.fromPhase << "(" << link.fromGate << ")";
            EXPECT_TRUE(HasGate(GateBlockOf(desc, link.toPhase).inputs, link.toGate))
                << path << ": " << link.toPhase << "(" << link.toGate << ")";
        }
    }
}

TEST_F(SampleDataTest, TheRichTemplateUsesEveryKindOfRecord) {
    const TemplateDesc desc = Read("scg/sample_rich.mt");
    std::set<int> generationTypes;
    for (const PhaseDesc& phase : desc.phases)
        generationTypes.insert(phase.generationType);
    std::set<int> checkTypes;
    for (const CheckDesc& check : desc.checks)
        checkTypes.insert(check.type);
    EXPECT_EQ(generationTypes.size(), 8u);
    EXPECT_EQ(checkTypes.size(), 7u);
    EXPECT_FALSE(desc.cases.empty());
    EXPECT_FALSE(desc.switches.empty());
    EXPECT_FALSE(desc.unlinks.empty());
    const auto isObjectLink = [](const LinkDesc& link) { return link.isObjectLink; };
    EXPECT_TRUE(std::any_of(desc.links.begin(), desc.links.end(), isObjectLink));
    EXPECT_FALSE(std::all_of(desc.links.begin(), desc.links.end(), isObjectLink));
    const auto hasCondition = [](const ActionDesc& action) {
        return !action.ruleCondition.empty();
    };
    EXPECT_TRUE(std::any_of(desc.actions.begin(), desc.actions.end(), hasCondition));
}
