#include "document/TemplateReader.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace lw;

namespace {

const std::string kClip = "scg\\clip.mt";

class SelectionExportTest : public ::testing::Test {
protected:
    void SetUp() override { e.Open("scg\\sample_small.mt"); }

    // Exports the selection and reads the file back.
    TemplateDesc Export() {
        e.weaver.ExportSelection(kClip);
        std::istringstream text(e.DataFileText(kClip));
        TemplateDesc desc;
        ReadTemplateDesc(desc, text);
        return desc;
    }

    static std::vector<std::string> Names(const std::vector<PhaseDesc>& phases) {
        std::vector<std::string> names;
        for (const PhaseDesc& phase : phases)
            names.push_back(phase.name);
        return names;
    }

    test::SampleEditor e;
};

} // namespace

TEST_F(SelectionExportTest, APhaseTakesItsPartsAndCutsWhatLeavesTheSelection) {
    e.Select("Contact");
    const TemplateDesc desc = Export();
    ASSERT_EQ(Names(desc.phases), std::vector<std::string>{"Contact"});
    // Its primary link looks at an unselected phase.
    EXPECT_NE(e.DataFileText(kClip).find("; random(<DELETED>);"), std::string::npos);
    EXPECT_EQ(desc.blockSets.size(), 1u);
    EXPECT_EQ(desc.checks.size(), 1u);
    EXPECT_EQ(desc.actions.size(), 4u);
    // Links in and out, and the case it belongs to, stay behind.
    EXPECT_TRUE(desc.links.empty());
    EXPECT_TRUE(desc.cases.empty());
    EXPECT_TRUE(e.prompts.Log().empty());
}

TEST_F(SelectionExportTest, LinksAndMembersSurviveOnlyBetweenSelectedObjects) {
    e.Select("CaseContact");
    e.Select("PatrolStart");
    e.Select("Contact");
    const TemplateDesc desc = Export();
    // Records follow the selection's order, not the document's.
    EXPECT_EQ(Names(desc.phases), (std::vector<std::string>{"PatrolStart", "Contact"}));
    EXPECT_EQ(desc.phases[1].geoParams, std::vector<std::string>{"PatrolStart"});
    ASSERT_EQ(desc.links.size(), 1u);
    EXPECT_EQ(desc.links[0].fromPhase, "PatrolStart");
    EXPECT_EQ(desc.links[0].toPhase, "Contact");
    ASSERT_EQ(desc.cases.size(), 1u);
    EXPECT_EQ(desc.cases[0].phaseNames, std::vector<std::string>{"Contact"});
}

// Nothing selected writes nothing, and says so.
TEST_F(SelectionExportTest, AnEmptySelectionLeavesTheFileAsItWas) {
    e.disk.AddFile(std::string(test::SampleEditor::kData) + "/scg/clip.mt", "old");
    e.weaver.ExportSelection(kClip);
    EXPECT_EQ(e.DataFileText(kClip), "old");
    EXPECT_EQ(e.prompts.MessageTexts(), std::vector<std::string>{"Empty Selection!"});
}
