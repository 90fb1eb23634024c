#include "UndoDocument.h"
#include "support/SampleEditor.h"
#include "undo/UR_DeleteObjectsCmd.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

class DeleteObjectsTest : public ::testing::Test {
protected:
    // Selects the objects by id in this order and deletes them; the command
    // that was pushed, or null.
    UR_Command* Delete(const Ids& selected) {
        const auto& stack = weaver.undoManager.undoStack;
        const std::size_t pushed = stack.size();
        for (std::int32_t id : selected)
            weaver.selection.Add(weaver.FindObject(id));
        weaver.DeleteSelection();
        EXPECT_TRUE(weaver.selection.members.empty());
        return stack.size() > pushed ? stack.back().get() : nullptr;
    }

    template <typename T> T& Get(std::int32_t id) const { return *As<T>(weaver.FindObject(id)); }

    test::SampleEditor editor;
    Weaver& weaver = editor.weaver;
};

// Phase 1 with everything that can hang on a phase: phases 2 and 3 measure
// from it, check 4, rule action 5, property action 6, unlinker 7; case 8
// holds phases 1 and 2; links 2->3, 1->2 and 2->1.
class DeletePhaseTest : public DeleteObjectsTest {
protected:
    DeletePhaseTest() {
        Phase* phase = PhaseAt(weaver);
        PhaseAt(weaver)->primaryLinkId = phase->id;
        PhaseAt(weaver)->secondaryLinkId = phase->id;
        CheckOf(weaver, *phase, CheckRange);
        ActionOf(weaver, *phase, "");
        ActionOf(weaver, *phase, "Plane");
        weaver.NewUnlinker()->phaseId = phase->id;
        weaver.NewCase()->phaseIds = {1, 2};
        phase->caseId = Get<Phase>(2).caseId = 8;
        weaver.links = {LinkBetween(Get<Phase>(2), Get<Phase>(3)),
                        LinkBetween(*phase, Get<Phase>(2)), LinkBetween(Get<Phase>(2), *phase)};
        weaver.RefreshGateMarks();
        original = Describe(weaver);
    }

    // After an undo the phase stands at the end of its case's list; all else
    // is as it was.
    void ExpectRestored(const Ids& order) {
        EXPECT_EQ(ObjectOrder(weaver), order);
        EXPECT_EQ(Get<Case>(8).phaseIds, (Ids{2, 1}));
        Get<Case>(8).phaseIds = {1, 2};
        EXPECT_EQ(Describe(weaver), original);
    }

    std::string original;
};

} // namespace

TEST_F(DeletePhaseTest, APhaseTakesAllThatBelongsToItAndUndoBringsItBack) {
    UR_Command* command = Delete({1});
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(ObjectOrder(weaver), (Ids{2, 3, 8}));
    EXPECT_EQ(Get<Phase>(2).primaryLinkId, 0);
    EXPECT_EQ(Get<Phase>(3).secondaryLinkId, 0);
    EXPECT_EQ(Get<Case>(8).phaseIds, Ids{2});
    EXPECT_EQ(weaver.links, std::vector<Link>{LinkBetween(Get<Phase>(2), Get<Phase>(3))});
    EXPECT_TRUE(Get<Phase>(2).inputs[0].openMark);
    const std::string deleted = Describe(weaver);

    // Restored objects come last: phases, then checks, actions, unlinkers.
    command->Undo();
    ExpectRestored({2, 3, 8, 1, 4, 5, 6, 7});
    command->Redo();
    EXPECT_EQ(Describe(weaver), deleted);
    command->Undo();
    ExpectRestored({2, 3, 8, 1, 4, 5, 6, 7});
}

TEST_F(DeletePhaseTest, AnActionAloneGoesOnlyIfItIsARuleAction) {
    EXPECT_EQ(Delete({}), nullptr);
    const int repaints = editor.host.repaints;
    EXPECT_EQ(Delete({6}), nullptr);
    EXPECT_EQ(editor.host.repaints, repaints + 1);
    EXPECT_EQ(Describe(weaver), original);

    UR_Command* command = Delete({5});
    EXPECT_EQ(Get<Phase>(1).actionIds, Ids{6});
    command->Undo();
    EXPECT_EQ(Get<Phase>(1).actionIds, (Ids{6, 5}));
}

TEST_F(DeleteObjectsTest, OnlyThePhasesFirstUnlinkerGoesWithIt) {
    const std::int32_t phase = PhaseAt(weaver)->id;
    weaver.NewUnlinker()->phaseId = phase;
    weaver.NewUnlinker()->phaseId = phase;
    Delete({phase})->Undo();
    EXPECT_EQ(ObjectOrder(weaver), (Ids{3, 1, 2}));
}

// A deletion takes the links phase by phase in the selection's order, each
// phase's links in list order and each link once; undo appends them in that
// order. Geometry links are cut from the referrers in list order.
TEST_F(DeleteObjectsTest, LinksAndReferrersAreTakenInOrder) {
    for (int i = 0; i < 4; ++i)
        PhaseAt(weaver);
    const auto link = [&](std::int32_t from, std::int32_t to) {
        return LinkBetween(Get<Phase>(from), Get<Phase>(to));
    };
    weaver.links = {link(3, 4), link(2, 1), link(1, 1), link(1, 2), link(2, 3)};
    Get<Phase>(4).primaryLinkId = 2;
    Get<Phase>(3).primaryLinkId = 2;
    Get<Phase>(4).secondaryLinkId = 1;
    weaver.RefreshGateMarks();
    const std::string original = Describe(weaver);

    UR_Command* command = Delete({2, 1});
    EXPECT_EQ(weaver.links, std::vector<Link>{link(3, 4)});
    EXPECT_EQ(Get<Phase>(3).primaryLinkId + Get<Phase>(4).primaryLinkId, 0);
    EXPECT_EQ(Get<Phase>(4).secondaryLinkId, 0);
    const std::string deleted = Describe(weaver);
    command->Undo();
    EXPECT_EQ(weaver.links,
              (std::vector<Link>{link(3, 4), link(2, 1), link(1, 2), link(2, 3), link(1, 1)}));
    weaver.links = {link(3, 4), link(2, 1), link(1, 1), link(1, 2), link(2, 3)};
    EXPECT_EQ(Describe(weaver), original);
    command->Redo();
    EXPECT_EQ(Describe(weaver), deleted);
}

// Switch 1 holds cases 2 and 3; case 2 holds phase 4.
class DeleteSwitchTest : public DeleteObjectsTest {
protected:
    DeleteSwitchTest() {
        weaver.NewSwitch()->caseIds = {2, 3};
        weaver.NewCase()->switchId = 1;
        weaver.NewCase()->switchId = 1;
        PhaseAt(weaver)->caseId = 2;
        Get<Case>(2).phaseIds = {4};
    }
};

TEST_F(DeleteSwitchTest, ACaseDeletedWithItsSwitchReentersItInEitherOrder) {
    for (const Ids& order : {Ids{1, 2}, Ids{2, 1}}) {
        UR_Command* command = Delete(order);
        EXPECT_EQ(Get<Phase>(4).caseId, 0);
        command->Undo();
        command->Redo();
        command->Undo();
        EXPECT_EQ(Get<Switch>(1).caseIds, (Ids{3, 2}));
        EXPECT_EQ(Get<Case>(2).switchId, 1);
        EXPECT_EQ(Get<Case>(3).switchId, 0);
        EXPECT_EQ(Get<Phase>(4).caseId, 2);
        // Back to the start for the other order.
        Get<Switch>(1).caseIds = {2, 3};
        Get<Case>(3).switchId = 1;
    }
}
