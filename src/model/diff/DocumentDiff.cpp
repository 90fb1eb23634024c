#include "diff/DocumentDiff.h"

#include "diff/DocumentFacts.h"

#include <algorithm>
#include <map>
#include <set>

namespace lw {

namespace {

using Renames = std::map<std::pair<std::string, std::string>, std::string>;

DocumentFacts Describe(const ObjectStore& store, const Renames& renames) {
    return DescribeDocument(store, [&renames](const std::string& kind, const std::string& name) {
        const auto found = renames.find({kind, name});
        return found != renames.end() ? found->second : name;
    });
}

// What must match for a removed and an added object to be one renamed: its
// content and its place, all but its name.
bool SameButForName(const ObjectFacts& a, const ObjectFacts& b) {
    if (a.x != b.x || a.y != b.y)
        return false;
    if (a.kind == "phase")
        return a.Field("blocks") == b.Field("blocks") && a.Field("links") == b.Field("links");
    if (a.kind == "case")
        return a.Field("phases") == b.Field("phases");
    return a.Field("cases") == b.Field("cases");
}

// Pairs the objects of the kind that only one document names, in name order,
// each with the first of the other side that matches it.
void FindRenames(const DocumentFacts& older, const DocumentFacts& newer, const std::string& kind,
                 Renames& renames) {
    std::vector<const ObjectFacts*> added;
    for (const auto& [key, object] : newer.objects) {
        if (object.kind == kind && older.objects.count(key) == 0)
            added.push_back(&object);
    }
    for (const auto& entry : older.objects) {
        const ObjectFacts& object = entry.second;
        if (object.kind != kind || newer.objects.count(entry.first) != 0)
            continue;
        const auto match = std::find_if(added.begin(), added.end(), [&](const ObjectFacts* a) {
            return a != nullptr && SameButForName(object, *a);
        });
        if (match != added.end()) {
            renames[{kind, object.name}] = (*match)->name;
            *match = nullptr;
        }
    }
}

ObjectDiff Compare(const ObjectFacts* before, const ObjectFacts* after) {
    const ObjectFacts& either = after != nullptr ? *after : *before;
    ObjectDiff diff;
    diff.kind = either.kind;
    diff.name = either.name;
    diff.owner = either.owner;
    diff.added = before == nullptr;
    diff.removed = after == nullptr;
    diff.oldId = before != nullptr ? before->id : 0;
    diff.newId = after != nullptr ? after->id : 0;
    if (before == nullptr || after == nullptr)
        return diff;
    diff.dx = after->x - before->x;
    diff.dy = after->y - before->y;
    diff.moved = diff.dx != 0 || diff.dy != 0;
    for (std::size_t i = 0; i < after->fields.size() && i < before->fields.size(); ++i) {
        if (after->fields[i].second != before->fields[i].second)
            diff.changedFields.push_back(after->fields[i].first);
    }
    return diff;
}

bool Differs(const ObjectDiff& diff) {
    return diff.added || diff.removed || diff.moved || !diff.changedFields.empty() ||
           !diff.oldName.empty();
}

// Phases, cases, switches; a phase's attached objects right after it.
std::tuple<int, std::string, int, std::string> ListingOrder(const ObjectDiff& diff) {
    static const std::map<std::string, int> kKindRank = {
        {"phase", 0}, {"case", 1}, {"switch", 2}, {"check", 3}, {"action", 4}, {"unlinker", 5}};
    const int rank = kKindRank.at(diff.kind);
    if (diff.owner.empty())
        return {rank, diff.name, -1, ""};
    return {0, diff.owner, rank, diff.name};
}

std::vector<std::string> Minus(const std::vector<std::string>& a,
                               const std::vector<std::string>& b) {
    std::vector<std::string> rest;
    std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(rest));
    return rest;
}

} // namespace

DocumentDiff CompareDocuments(const ObjectStore& older, const ObjectStore& newer) {
    const DocumentFacts after = Describe(newer, {});
    // A rename of a phase shows in its case's phases, of a case in its
    // switch's cases: each kind is paired once the one before is renamed.
    Renames renames;
    for (const char* kind : {"phase", "case", "switch"})
        FindRenames(Describe(older, renames), after, kind, renames);
    const DocumentFacts before = Describe(older, renames);

    std::map<std::string, std::string> oldNames;
    for (const auto& [kindAndName, newName] : renames)
        oldNames[kindAndName.first + '\n' + newName] = kindAndName.second;

    DocumentDiff result;
    auto note = [&](const ObjectFacts* was, const ObjectFacts* is) {
        ObjectDiff diff = Compare(was, is);
        if (was != nullptr && is != nullptr && is->owner.empty()) {
            const auto renamed = oldNames.find(is->kind + '\n' + is->name);
            if (renamed != oldNames.end())
                diff.oldName = renamed->second;
        }
        if (Differs(diff))
            result.objects.push_back(std::move(diff));
    };
    for (const auto& [key, object] : after.objects) {
        const auto found = before.objects.find(key);
        note(found != before.objects.end() ? &found->second : nullptr, &object);
    }
    for (const auto& [key, object] : before.objects) {
        if (after.objects.count(key) == 0)
            note(&object, nullptr);
    }
    std::stable_sort(
        result.objects.begin(), result.objects.end(),
        [](const ObjectDiff& a, const ObjectDiff& b) { return ListingOrder(a) < ListingOrder(b); });
    result.addedLinks = Minus(after.links, before.links);
    result.removedLinks = Minus(before.links, after.links);
    return result;
}

} // namespace lw
