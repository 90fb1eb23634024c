#include "operations/ObjectStore.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

using Ids = std::vector<std::int32_t>;

Ids IdsInOrder(const ObjectStore& store) {
    Ids ids;
    for (const auto& object : store.objects)
        ids.push_back(object->id);
    return ids;
}

} // namespace

TEST(ObjectStoreTest, LookupsFindTheFirstInListOrderAlsoAfterARestore) {
    ObjectStore store;
    Phase* first = store.NewPhase();
    Phase* second = store.NewPhase();
    first->name = second->name = "twin";
    EXPECT_EQ(store.FindPhaseByName("twin"), first);

    // A restored object goes to the end of the list under its old id, so the
    // other twin is now first in list order.
    const PhaseSnapshot snapshot(*first);
    store.RemoveObject(first);
    Phase* restored = As<Phase>(store.Restore(snapshot.Rebuild()));
    EXPECT_EQ(IdsInOrder(store), (Ids{2, 1}));
    EXPECT_EQ(store.FindObject(1), restored);
    EXPECT_EQ(store.FindPhaseByName("twin"), second);
    EXPECT_EQ(store.nextId, 3);
}

TEST(ObjectStoreTest, GateMarksFollowTheLinks) {
    ObjectStore store;
    Phase* from = store.NewPhase();
    Phase* to = store.NewPhase();
    from->outputs = {GateSlot{"done", true}};
    to->inputs = {GateSlot{"go", true}, GateSlot{"go2", false}};
    const Link link{true, from->id, "done", to->id, "go"};
    store.links = {Link{true, from->id, "missing", 99, "go"}, link};
    store.RefreshGateMarks();
    EXPECT_FALSE(from->outputs[0].openMark);
    EXPECT_FALSE(to->inputs[0].openMark);
    EXPECT_TRUE(to->inputs[1].openMark);

    Link other = link;
    other.isObjectLink = false;
    store.RemoveLink(other);
    EXPECT_EQ(store.links.size(), 2u);
    store.RemoveLink(link);
    EXPECT_EQ(store.links.size(), 1u);
    // The mark stays until the next refresh.
    EXPECT_FALSE(to->inputs[0].openMark);
    store.RefreshGateMarks();
    EXPECT_TRUE(to->inputs[0].openMark);
}

// Removing many at once must leave what removing them one by one leaves.
TEST(ObjectStoreTest, RemovingManyAtOnceEqualsRemovingThemInTurn) {
    ObjectStore store;
    for (int i = 0; i < 6; ++i)
        store.NewPhase();
    store.selection.Add(store.FindObject(5));
    store.selection.Add(store.FindObject(2));
    store.selection.Add(store.FindObject(3));
    store.RemoveObjects({store.FindObject(5), nullptr, store.FindObject(2), store.FindObject(4)});
    EXPECT_EQ(IdsInOrder(store), (Ids{1, 3, 6}));
    EXPECT_EQ(store.objectIndex.size(), 3u);
    EXPECT_EQ(store.selection.members, std::vector<EditorObject*>{store.FindObject(3)});
    EXPECT_FALSE(store.selection.Contains(nullptr));

    const Link a{true, 1, "out", 3, "in"};
    const Link b{false, 1, "out", 3, "in"};
    store.links = {a, b, a, a, b};
    store.RemoveLinks({a, a, Link{}});
    EXPECT_EQ(store.links, (std::vector<Link>{b, a, b}));
}
