#include "support/SampleEditor.h"
#include "undo/UR_ImportTemplateDesc.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

const std::string kClipboard = Weaver::kClipboardPath;

class ImportCommandTest : public ::testing::Test {
protected:
    void SetUp() override { e.Open("scg\\sample_small.mt"); }

    // Copies the named objects to the clipboard and empties the selection.
    void Copy(std::initializer_list<const char*> names) {
        for (const char* name : names)
            e.Select(name);
        e.weaver.ExportSelection(kClipboard);
        e.weaver.selection.Clear();
    }
    void PasteAt(int x, int y) { e.weaver.PlaceTemplate(kClipboard, x, y, 0, 0, 1.0f); }
    UR_ImportTemplateDesc& LastImport() {
        return dynamic_cast<UR_ImportTemplateDesc&>(*e.weaver.undoManager.undoStack.back());
    }

    test::SampleEditor e;
};

} // namespace

TEST_F(ImportCommandTest, APastedPhaseIsRenamedCentredAndComesWithItsParts) {
    const Phase& original = *e.weaver.FindPhaseByName("Contact");
    Copy({"Contact"});
    const std::size_t before = e.weaver.objects.size();
    PasteAt(500, 300);

    // The phase, its check and its four actions, all selected.
    ASSERT_EQ(e.weaver.objects.size(), before + 6);
    const Phase* copy = As<Phase>(e.weaver.objects[before].get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->name, "Contact_" + std::to_string(copy->id));
    EXPECT_EQ(copy->blocks, original.blocks);
    EXPECT_EQ(copy->inputs.size(), original.inputs.size());
    EXPECT_EQ(copy->checkIds.size(), 1u);
    EXPECT_EQ(copy->actionIds.size(), 4u);
    EXPECT_EQ(copy->primaryLinkId, 0);
    EXPECT_EQ(e.weaver.selection.members.size(), 6u);
    EXPECT_TRUE(e.weaver.undoManager.changed);

    // The box of the anchors is centred on the target.
    std::int32_t minX = INT32_MAX, maxX = INT32_MIN, minY = INT32_MAX, maxY = INT32_MIN;
    for (std::size_t i = before; i < e.weaver.objects.size(); ++i) {
        minX = std::min(minX, e.weaver.objects[i]->posX);
        maxX = std::max(maxX, e.weaver.objects[i]->posX);
        minY = std::min(minY, e.weaver.objects[i]->posY);
        maxY = std::max(maxY, e.weaver.objects[i]->posY);
    }
    EXPECT_EQ(minX + (maxX - minX) / 2, 500);
    EXPECT_EQ(minY + (maxY - minY) / 2, 300);
}

TEST_F(ImportCommandTest, ASuffixIsAddedAgainWhileTheLongerNameIsTaken) {
    Copy({"Sighting"});
    const std::int32_t next = e.weaver.nextId;
    Phase* squatter = e.weaver.NewPhase();
    squatter->name = "Sighting_" + std::to_string(next + 1);
    PasteAt(0, 0);
    const std::string suffix = "_" + std::to_string(next + 1);
    EXPECT_EQ(e.weaver.FindPhase(next + 1)->name, "Sighting" + suffix + suffix);
}

TEST_F(ImportCommandTest, ALinkBetweenCopiedPhasesIsImportedAndUndoneWithThem) {
    Copy({"PatrolStart", "Contact"});
    const std::size_t objects = e.weaver.objects.size();
    const std::size_t links = e.weaver.links.size();
    PasteAt(100, 100);
    EXPECT_EQ(e.weaver.links.size(), links + 1);
    EXPECT_EQ(LastImport().importedLinks.size(), 1u);

    e.weaver.Undo();
    EXPECT_EQ(e.weaver.objects.size(), objects);
    EXPECT_EQ(e.weaver.links.size(), links);
    // The pasted objects were selected; the selection lets them go.
    EXPECT_TRUE(e.weaver.selection.members.empty());

    // Redo builds an equal set under new ids and selects nothing.
    const UR_ImportTemplateDesc& import =
        dynamic_cast<UR_ImportTemplateDesc&>(*e.weaver.undoManager.redoStack.back());
    const std::vector<std::int32_t> firstRun = import.importedIds;
    e.weaver.Redo();
    ASSERT_EQ(import.importedIds.size(), 2 * firstRun.size());
    EXPECT_EQ(e.weaver.objects.size(), objects + firstRun.size());
    for (std::size_t i = 0; i < firstRun.size(); ++i) {
        EXPECT_EQ(e.weaver.FindObject(firstRun[i]), nullptr);
        EXPECT_NE(e.weaver.FindObject(import.importedIds[firstRun.size() + i]), nullptr);
    }
    EXPECT_EQ(e.weaver.links.size(), links + 1);
    EXPECT_TRUE(e.weaver.selection.members.empty());
}

TEST_F(ImportCommandTest, AFileThatCannotBeReadMakesNoCommandButAnEmptyOneDoes) {
    e.weaver.PlaceTemplate("scg\\missing.mt", 0, 0, 0, 0, 1.0f);
    EXPECT_EQ(e.prompts.MessageTexts(), std::vector<std::string>{"Can't open template file!"});
    EXPECT_TRUE(e.weaver.undoManager.undoStack.empty());

    e.disk.AddFile(std::string(test::SampleEditor::kData) + "/scg/empty.mt", "");
    e.weaver.PlaceTemplate("scg\\empty.mt", 0, 0, 0, 0, 1.0f);
    EXPECT_EQ(e.weaver.undoManager.undoStack.size(), 1u);
    EXPECT_TRUE(e.weaver.undoManager.changed);
}
