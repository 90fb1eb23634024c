#include "undo/UndoManager.h"

#include "app/Weaver.h"
#include "platform/MemoryFileSystem.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/RecordingPrompts.h"
#include "support/RecordingViewHost.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

// A command that reports its own destruction into a shared log.
class LoggingCommand : public UR_Command {
public:
    LoggingCommand(int number, std::vector<int>& destroyed)
        : UR_Command(nullptr), number_(number), destroyed_(destroyed) {}
    ~LoggingCommand() override { destroyed_.push_back(number_); }
    void Undo() override { ++undone; }
    void Redo() override { ++redone; }
    int undone = 0;
    int redone = 0;

private:
    int number_;
    std::vector<int>& destroyed_;
};

class UndoManagerTest : public ::testing::Test {
protected:
    std::unique_ptr<UR_Command> Command(int number) {
        return std::make_unique<LoggingCommand>(number, destroyed);
    }

    std::vector<int> destroyed;
    MemoryFileSystem disk;
    MemoryOptionsStore store;
    RecordingPrompts prompts;
    Weaver weaver{prompts, store, disk};
    UndoManager& history = weaver.undoManager;
};

} // namespace

TEST_F(UndoManagerTest, TheHundredAndFirstPushDestroysTheOldest) {
    for (int i = 1; i <= 101; ++i)
        history.Push(Command(i));
    EXPECT_EQ(history.undoStack.size(), 100u);
    EXPECT_EQ(destroyed, std::vector<int>{1});
}

TEST_F(UndoManagerTest, APushEndsTheRedoBranch) {
    history.Push(Command(1));
    history.redoStack.push_back(Command(2));
    history.redoStack.push_back(Command(3));
    history.Push(Command(4));
    EXPECT_TRUE(history.redoStack.empty());
    EXPECT_EQ(destroyed, (std::vector<int>{3, 2}));
    EXPECT_EQ(history.undoStack.size(), 2u);
}

TEST_F(UndoManagerTest, ANullPushMarksTheDocumentAndKeepsTheRedoStack) {
    test::RecordingViewHost host;
    weaver.SetViewHost(&host);
    weaver.fileName = "scg\\a.mt";
    history.redoStack.push_back(Command(1));
    history.Push(nullptr);
    EXPECT_TRUE(history.changed);
    EXPECT_EQ(history.redoStack.size(), 1u);
    EXPECT_EQ(host.titles, std::vector<std::string>{"Loomwright - scg\\a.mt*"});
}

// Coming back to the saved state clears the "*" and leaving it sets it, so
// the caption tells truthfully whether the file differs from the document.
TEST_F(UndoManagerTest, UndoAndRedoRememberTheSavedState) {
    test::RecordingViewHost host;
    weaver.SetViewHost(&host);
    history.Push(Command(1));
    history.Push(Command(2));
    history.MarkSaved();
    weaver.Undo();
    EXPECT_TRUE(history.changed);
    EXPECT_EQ(host.title.back(), '*');
    weaver.Redo();
    EXPECT_FALSE(history.changed);
    EXPECT_NE(host.title.back(), '*');

    // A new change on top of an undo loses the saved state for good.
    weaver.Undo();
    history.Push(Command(3));
    weaver.Undo();
    EXPECT_TRUE(history.changed);

    // The state before the oldest dropped command cannot come back either.
    history.ClearHistory();
    for (int i = 1; i <= 101; ++i)
        history.Push(Command(i));
    while (!history.undoStack.empty())
        weaver.Undo();
    EXPECT_TRUE(history.changed);

    // Nothing to undo: only the repaint.
    const int repaints = host.repaints;
    weaver.Undo();
    EXPECT_EQ(host.repaints, repaints + 1);
}
