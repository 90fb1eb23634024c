#include "support/SampleEditor.h"

#include <gtest/gtest.h>
#include <memory>

using namespace lw;

namespace {

const std::string kAir = std::string(test::SampleEditor::kData) + "/scg/0/blocks/air/";
const std::string kLogFile = std::string(test::SampleEditor::kData) + "/reload_blocks_log.txt";

// The sample's patrol block after an edit: its output "spotted" renamed,
// the property Altitude gone and Speed new.
const char* const kChangedPatrol = "MCU_H_Input\n{\nName = \"start\";\n}\n"
                                   "MCU_H_Input\n{\nName = \"abort\";\n}\n"
                                   "MCU_H_Input\n{\nName = \"OBJECT_target\";\n}\n"
                                   "MCU_H_Output\n{\nName = \"done\";\n}\n"
                                   "MCU_H_Output\n{\nName = \"failed\";\n}\n"
                                   "MCU_H_Output\n{\nName = \"sighted\";\n}\n"
                                   "MCU_H_Output\n{\nName = \"OBJECT_plane\";\n}\n"
                                   "MCU_H_Dynamic\n{\nName = \"PatrolLead\";\n"
                                   "Property = \"Model\";\nProperty = \"Skin\";\n"
                                   "Property = \"Country\";\nProperty = \"Speed\";\n}\n";

class NoChange : public UR_Command {
public:
    using UR_Command::UR_Command;
    void Undo() override {}
    void Redo() override {}
};

// sample_small.mt opened, with a history to lose, and then its patrol block
// changed and its landing block deleted on disk.
class ReloadBlocksTest : public ::testing::Test {
protected:
    void SetUp() override {
        editor.Open("scg\\sample_small.mt");
        UndoManager& history = editor.weaver.undoManager;
        history.undoStack.push_back(std::make_unique<NoChange>(&editor.weaver));
        history.redoStack.push_back(std::make_unique<NoChange>(&editor.weaver));
        editor.disk.AddFile(kAir + "patrol.group", kChangedPatrol);
        editor.disk.Remove(kAir + "landing.group");
    }

    void ExpectHistoryGoneAndChanged() const {
        const UndoManager& history = editor.weaver.undoManager;
        EXPECT_TRUE(history.undoStack.empty());
        EXPECT_TRUE(history.redoStack.empty());
        EXPECT_TRUE(history.changed);
    }

    test::SampleEditor editor;
};

} // namespace

TEST_F(ReloadBlocksTest, RepairsTheDocumentAndOpensTheLog) {
    Weaver& weaver = editor.weaver;
    weaver.ReloadBlocks();

    // The log's lines are the reload cases' (tests/cases/reload); here it
    // matters that the editor writes it where it opens it.
    EXPECT_NE(editor.DataFileText(Weaver::kReloadLogPath).find("REMOVED: Action: Altitude"),
              std::string::npos);
    EXPECT_EQ(editor.host.openedFiles, std::vector<std::string>{kLogFile});

    // A phase left without blocks stays.
    EXPECT_NE(weaver.FindPhaseByName("ReturnHome"), nullptr);

    ExpectHistoryGoneAndChanged();
    EXPECT_EQ(editor.host.title, "Loomwright - scg\\sample_small.mt*");
    EXPECT_TRUE(editor.prompts.Log().empty());
}

TEST_F(ReloadBlocksTest, ALogThatCannotBeCreatedStopsBeforeAnythingIsTouched) {
    Weaver& weaver = editor.weaver;
    weaver.undoManager.changed = false;
    const std::string before = editor.SavedText();
    editor.disk.FailNextReplace();

    weaver.ReloadBlocks();

    ASSERT_EQ(editor.prompts.Log().size(), 1u);
    EXPECT_EQ(editor.prompts.Log()[0].text, "Can't open log file! Aborting!");
    EXPECT_EQ(editor.prompts.Log()[0].icon, MessageIcon::Stop);
    EXPECT_EQ(editor.SavedText(), before);
    EXPECT_TRUE(weaver.blockPool.Contains("scg\\0\\blocks\\air\\landing.group"));
    EXPECT_TRUE(editor.host.openedFiles.empty());
    ExpectHistoryGoneAndChanged();
}

// Without a program to show it, the log would be written where the user
// never learns to look.
TEST_F(ReloadBlocksTest, ALogNoProgramCanShowIsNamedInAMessage) {
    editor.host.canOpenFiles = false;
    editor.weaver.ReloadBlocks();
    EXPECT_EQ(editor.prompts.MessageTexts(),
              std::vector<std::string>{"No program could show the reload log. It is in \"" +
                                       kLogFile + "\"."});
}
