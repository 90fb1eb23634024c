#include "operations/NameIndex.h"

#include <gtest/gtest.h>

using namespace lw;

namespace {

ObjectList Scope(const ObjectStore& store) {
    ObjectList scope;
    for (const auto& object : store.objects)
        scope.push_back(object.get());
    return scope;
}

} // namespace

// The index must find what the store's walk in list order finds, also for
// duplicate names and for an object that a restore moved to the end.
TEST(NameIndexTest, FindsWhatAWalkInListOrderFinds) {
    ObjectStore store;
    for (const char* name : {"a", "b", "a", "c", "a"})
        store.NewPhase()->name = name;
    store.NewCase()->name = "b";
    const PhaseSnapshot first(*store.FindPhase(1));
    store.RemoveObject(store.FindObject(1));
    store.Restore(first.Rebuild());

    const NameIndex<Phase> phases(Scope(store));
    for (const char* name : {"a", "b", "c", "d"})
        EXPECT_EQ(phases.First(name), store.FindPhaseByName(name)) << name;
    EXPECT_EQ(phases.First("a")->id, 3);
    EXPECT_EQ(phases.Second("a")->id, 5);
    EXPECT_EQ(phases.Second("b"), nullptr);
    EXPECT_EQ(NameIndex<Case>(Scope(store)).First("b"), store.FindCaseByName("b"));

    const ObjectList list{store.FindObject(5), store.FindObject(4)};
    EXPECT_EQ(NameIndex<Phase>(list).First("a"), store.FindPhaseByName("a", &list));
}
