// Files no one should ever write, read through the real open path: each must
// be read to its end without a crash or a hang, keep what can be kept, and
// cost no memory beyond its own size.
#include "app/FileCommands.h"
#include "document/TemplateReader.h"
#include "platform/NativeFileSystem.h"
#include "seams/ScriptedFileDialogs.h"
#include "support/SampleEditor.h"
#include "support/ScratchFolder.h"
#include "support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

using namespace lw;
namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

const std::string kData = test::SampleEditor::kData;
const std::size_t kHundredMegabytes = std::size_t{100} << 20;

// A phase on its own block set of the sample data, as the program writes it.
std::string PhaseLines(const std::string& name,
                       const std::string& block = "scg\\0\\blocks\\air\\patrol.group") {
    return "blocks_set; blocks_" + name + "; main(" + block + ");\r\n" + "phase; " + name +
           "; server_setpos(); blocks_" + name + "; ;;\r\n";
}

Names PhaseNames(const Weaver& weaver) {
    Names names;
    for (const auto& object : weaver.objects) {
        if (const Phase* phase = As<Phase>(object.get()))
            names.push_back(phase->name);
    }
    return names;
}

class HostileInputTest : public ::testing::Test {
protected:
    // Puts a template into the data folder and opens it as the editor does.
    void OpenTemplate(const std::string& bytes) {
        editor.disk.AddFile(kData + "/scg/hostile.mt", bytes);
        editor.Open("scg\\hostile.mt");
    }
    void AddBlockFile(const std::string& name, const std::string& bytes) {
        editor.disk.AddFile(kData + "/scg/0/blocks/air/" + name, bytes);
    }

    test::SampleEditor editor;
    ScriptedFileDialogs dialogs;
    FileCommands commands{editor.weaver, dialogs};
};

} // namespace

TEST_F(HostileInputTest, AHundredMegabyteLineIsReadAndWhatFollowsItToo) {
    OpenTemplate(PhaseLines("Before") + std::string(kHundredMegabytes, 'x') + "\r\n" +
                 PhaseLines("After"));
    EXPECT_EQ(PhaseNames(editor.weaver), (Names{"Before", "After"}));

    AddBlockFile("long.group", std::string(kHundredMegabytes, 'x') +
                                   "\r\nMCU_H_Input\r\n{\r\n  Name = \"after\";\r\n}\r\n");
    editor.StartUp();
    EXPECT_EQ(editor.weaver.blockPool.GetBlock("scg\\0\\blocks\\air\\long.group").inputs,
              Names{"after"});
}

TEST_F(HostileInputTest, NulBytesSeparateWordsAndNeverEndALineOrTheFile) {
    using namespace std::string_literals;
    AddBlockFile("nul.group", "MCU_H_Input\r\n{\r\n  Name = \"ga\0te\";\r\n"
                              "\0  Name = \"second\";\r\n}\r\n"s);
    OpenTemplate("blocks_set; blocks_A; main(scg\\0\\blocks\\air\\nul.group);\r\n"
                 "phase;\0A;\0server_setpos(); blocks_A;\0;;\r\n"
                 "pha\0se; Split; server_setpos(); blocks_A; ;;\r\n"s +
                 PhaseLines("After"));

    EXPECT_EQ(PhaseNames(editor.weaver), (Names{"A", "After"}));
    const Phase* phase = editor.weaver.FindPhaseByName("A");
    ASSERT_NE(phase, nullptr);
    ASSERT_EQ(phase->inputs.size(), 2u);
    EXPECT_EQ(phase->inputs[0].name, "ga\0te"s);
    EXPECT_EQ(phase->inputs[1].name, "second");
}

TEST_F(HostileInputTest, AnUnreadableTemplateIsRefusedAfterTheChangesWereSaved) {
    editor.Open("scg\\sample_small.mt");
    editor.weaver.undoManager.Push(nullptr);
    const std::string changed = editor.SavedText();
    editor.disk.AddFile(kData + "/scg/locked.mt", PhaseLines("Locked"));
    editor.disk.MakeUnreadable(kData + "/scg/locked.mt");

    editor.prompts.QueueAnswer(Answer::Yes);
    dialogs.answers = {kData + "/scg/locked.mt"};
    commands.Open();
    ASSERT_EQ(editor.prompts.Log().size(), 2u);
    EXPECT_TRUE(editor.prompts.Log()[0].isQuestion);
    EXPECT_EQ(editor.prompts.Log()[1].text, "Can't open template file!");
    EXPECT_EQ(editor.DataFileText("scg\\sample_small.mt"), changed);
    EXPECT_EQ(editor.disk.KindOf(kData + "/scg/locked.mt"), PathKind::File);
    EXPECT_TRUE(editor.weaver.objects.empty());
    EXPECT_TRUE(editor.weaver.fileName.empty());
}
