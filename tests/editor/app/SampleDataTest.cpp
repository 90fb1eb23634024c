#include "app/Weaver.h"
#include "document/TemplateReader.h"
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

// The bundled data folder as the editor finds it at start. That every sample
// template opens without a message and saves back byte for byte is the
// tool's normalize test.
class SampleDataTest : public ::testing::Test {
protected:
    void SetUp() override { weaver.StartUp(test::SampleDataDir()); }

    TemplateDesc Read(const std::string& relativePath) {
        std::istringstream stream(test::ReadFileBytes(test::SampleDataDir() + "/" + relativePath));
        TemplateDesc desc;
        ReadTemplateDesc(desc, stream);
        return desc;
    }

    NativeFileSystem disk;
    MemoryOptionsStore options;
    RecordingPrompts prompts;
    Weaver weaver{prompts, options, disk};
};

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
