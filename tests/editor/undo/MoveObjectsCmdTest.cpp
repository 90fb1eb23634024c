#include "UndoDocument.h"
#include "support/SampleEditor.h"
#include "undo/UR_MoveObjectsCmd.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

TEST(MoveObjectsCmdTest, ADragIsUndoneAndRedoneByItsTotalMove) {
    test::SampleEditor editor;
    Weaver& weaver = editor.weaver;
    Phase* phase = PhaseAt(weaver);
    Case* aCase = weaver.NewCase();
    weaver.selection.Add(phase);
    weaver.selection.Add(aCase);
    // The drag has moved both by (30, -20).
    phase->posX = aCase->posX = 30;
    phase->posY = aCase->posY = -20;
    weaver.selection.Recalculate();
    const ScreenRect dragged = weaver.selection.bounds;
    UR_MoveObjectsCmd command(&weaver, 30, -20, weaver.selection.members);

    command.Undo();
    EXPECT_EQ(std::make_pair(phase->posX, phase->posY), std::make_pair(0, 0));
    EXPECT_EQ(std::make_pair(aCase->posX, aCase->posY), std::make_pair(0, 0));
    EXPECT_EQ(weaver.selection.bounds, dragged);
    // An object that is gone is skipped.
    weaver.RemoveObject(aCase);
    command.Redo();
    EXPECT_EQ(phase->posX, 30);
    EXPECT_EQ(phase->posY, -20);
}
