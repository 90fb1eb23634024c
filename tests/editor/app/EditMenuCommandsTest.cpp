#include "app/EditMenuCommands.h"

#include "app/FileCommands.h"
#include "seams/ScriptedFileDialogs.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

const std::string kData = test::SampleEditor::kData;

class EditMenuCommandsTest : public ::testing::Test {
protected:
    void SetUp() override { e.Open("scg\\sample_small.mt"); }

    test::SampleEditor e;
    Weaver& weaver = e.weaver;
    ScriptedFileDialogs dialogs;
    FileCommands files{weaver, dialogs};
    EditMenuCommands edit{weaver, files};
};

} // namespace

TEST_F(EditMenuCommandsTest, CutDeletesTheSelectionEvenWhenTheClipboardCannotBeWritten) {
    e.disk.AddFile(kData + "/scg/clipboard.mt", "");
    e.disk.MakeReadOnly(kData + "/scg/clipboard.mt");
    const std::size_t objects = weaver.objects.size();
    e.Select("ReturnHome");
    edit.Cut();
    EXPECT_EQ(e.prompts.MessageTexts(), std::vector<std::string>{"Can't open file!"});
    EXPECT_EQ(weaver.FindPhaseByName("ReturnHome"), nullptr);
    edit.Undo();
    EXPECT_EQ(weaver.objects.size(), objects);
}

TEST_F(EditMenuCommandsTest, ReloadAsksAndSavesFirst) {
    e.prompts.QueueAnswer(Answer::No);
    edit.ReloadBlocks();
    EXPECT_EQ(e.DataFileText(Weaver::kReloadLogPath), "<missing>");

    // A save that does not happen stops the reload.
    weaver.undoManager.Push(nullptr);
    weaver.fileName.clear();
    e.prompts.QueueAnswer(Answer::Yes);
    edit.ReloadBlocks();
    EXPECT_EQ(e.DataFileText(Weaver::kReloadLogPath), "<missing>");

    weaver.fileName = "scg\\sample_small.mt";
    e.prompts.QueueAnswer(Answer::Yes);
    edit.ReloadBlocks();
    EXPECT_EQ(e.prompts.Log().back().icon, MessageIcon::Warning);
    EXPECT_EQ(e.prompts.Log().back().text, EditMenuCommands::kReloadQuestion);
    EXPECT_NE(e.DataFileText(Weaver::kReloadLogPath), "<missing>");
    EXPECT_EQ(e.host.openedFiles.size(), 1u);
}
