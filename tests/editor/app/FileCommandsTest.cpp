#include "app/FileCommands.h"

#include "app/Weaver.h"
#include "platform/MemoryFileSystem.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/RecordingPrompts.h"
#include "seams/ScriptedFileDialogs.h"
#include "support/RecordingViewHost.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

const std::string kData = "/Sim/Data";
const std::string kSmall = "scg\\sample_small.mt";

class FileCommandsTest : public ::testing::Test {
protected:
    void SetUp() override {
        test::CopyFolderIntoMemory(test::SampleDataDir(), disk, kData);
        weaver.SetViewHost(&host);
    }

    void StartUp() { weaver.StartUp(kData); }
    std::string Bytes(const std::string& path) {
        auto stream = disk.OpenForReading(path);
        return stream ? std::string(std::istreambuf_iterator<char>(*stream), {}) : "<missing>";
    }
    void LoadChanged() {
        ASSERT_TRUE(weaver.LoadTemplateFile(kSmall));
        weaver.undoManager.Push(nullptr);
    }

    MemoryFileSystem disk;
    MemoryOptionsStore store;
    RecordingPrompts prompts;
    test::RecordingViewHost host;
    Weaver weaver{prompts, store, disk};
    ScriptedFileDialogs dialogs;
    FileCommands commands{weaver, dialogs};
};

} // namespace

TEST_F(FileCommandsTest, SaveOfANewDocumentOffersDefaultInTheDataFolder) {
    StartUp();
    EXPECT_FALSE(weaver.LoadTemplateFile("scg\\gone.mt"));
    weaver.undoManager.Push(nullptr);
    dialogs.answers = {kData + "/Scg/Mine.MT"};
    commands.Save();
    ASSERT_EQ(dialogs.requests.size(), 1u);
    EXPECT_EQ(dialogs.requests[0].fileName, "default.mt");
    EXPECT_EQ(dialogs.requests[0].filter, "Mission Template Files (*.mt)|*.mt||");
    EXPECT_EQ(dialogs.startFolders[0], kData);
    // A name typed in mixed case comes back in lower case, relative to the data folder.
    EXPECT_EQ(weaver.fileName, "scg\\mine.mt");
    EXPECT_FALSE(weaver.undoManager.changed);
    EXPECT_NE(Bytes(kData + "/scg/mine.mt"), "<missing>");
}

// A file outside the data folder cannot be taken, and the user is told why
// instead of seeing the command do nothing.
TEST_F(FileCommandsTest, ChoosingRefusesFilesOutsideTheDataFolderAndReadOnlyFiles) {
    StartUp();
    FileRequest request{"", FileCommands::kTemplateFilter, "scg", "*.mt"};
    dialogs.answers = {"/Sim/Database/x.mt", "/elsewhere/x.mt", kData + "/SCG/Sample_Rich.mt"};
    EXPECT_FALSE(commands.ChooseFileToOpen(request));
    EXPECT_FALSE(commands.ChooseFileToOpen(request));
    EXPECT_TRUE(commands.ChooseFileToOpen(request));
    EXPECT_EQ(request.fileName, "scg\\sample_rich.mt");
    EXPECT_EQ(dialogs.startFolders[0], kData + "/scg");
    const std::string outside =
        "A template can only be opened in the data folder, \"" + kData + "\".";
    EXPECT_EQ(prompts.MessageTexts(), (std::vector<std::string>{outside, outside}));
    prompts = RecordingPrompts();

    disk.MakeReadOnly(kData + "/scg/sample_rich.mt");
    dialogs.answers = {kData + "/scg/sample_rich.mt"};
    EXPECT_FALSE(commands.ChooseFileToSave(request));
    EXPECT_EQ(prompts.MessageTexts(), std::vector<std::string>{"This file is Read Only!"});
}

TEST_F(FileCommandsTest, NewAsksAboutChangesAndHonoursEachAnswer) {
    StartUp();
    LoadChanged();
    const std::size_t count = weaver.objects.size();

    prompts.QueueAnswer(Answer::Cancel);
    commands.New();
    EXPECT_EQ(weaver.objects.size(), count);

    // Yes with a save that fails keeps the document.
    disk.MakeReadOnly(kData + "/scg/sample_small.mt");
    prompts.QueueAnswer(Answer::Yes);
    commands.New();
    EXPECT_EQ(weaver.objects.size(), count);
    ASSERT_EQ(prompts.Log().size(), 3u);
    EXPECT_EQ(prompts.Log()[0].text, "Template has been changed. Do you want to save changes?");
    EXPECT_TRUE(prompts.Log()[0].isQuestion);

    prompts.QueueAnswer(Answer::No);
    commands.New();
    EXPECT_TRUE(weaver.objects.empty());
    EXPECT_TRUE(weaver.fileName.empty());
    EXPECT_EQ(weaver.nextId, 1);
    EXPECT_EQ(host.title, "Loomwright - untitled");

    // Without changes nothing is asked.
    commands.New();
    EXPECT_EQ(prompts.Log().size(), 4u);
}
