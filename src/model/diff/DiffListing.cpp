#include "diff/DiffListing.h"

#include "text/JsonString.h"
#include "text/Text.h"

#include <set>

namespace lw {

namespace {

std::string Signed(std::int32_t value) {
    return (value >= 0 ? "+" : "") + std::to_string(value);
}

// What differs about one object, one fact a line.
std::vector<std::string> Facts(const ObjectDiff& diff) {
    if (diff.added)
        return {"added"};
    if (diff.removed)
        return {"removed"};
    std::vector<std::string> facts;
    if (!diff.oldName.empty())
        facts.push_back("renamed from " + diff.oldName);
    if (diff.moved)
        facts.push_back("moved by " + Signed(diff.dx) + ", " + Signed(diff.dy));
    if (!diff.changedFields.empty())
        facts.push_back("changed " + Joined(diff.changedFields, ", "));
    return facts;
}

std::string AttachedLabel(const ObjectDiff& diff) {
    return diff.kind + (diff.name.empty() ? "" : " " + diff.name);
}

} // namespace

std::string DiffText(const DocumentDiff& diff) {
    if (diff.Same())
        return "The templates are the same.\n";
    std::string text;
    std::string header;
    // An added or removed phase takes its checks, actions and unlinkers
    // with it: they are not listed one by one.
    std::set<std::string> wholePhases;
    for (const ObjectDiff& object : diff.objects) {
        if (object.owner.empty()) {
            header = object.kind + " " + object.name;
            text += header + "\n";
            for (const std::string& fact : Facts(object))
                text += "  " + fact + "\n";
            if (object.kind == "phase" && (object.added || object.removed))
                wholePhases.insert(object.name);
            continue;
        }
        if (wholePhases.count(object.owner) != 0)
            continue;
        if (header != "phase " + object.owner) {
            header = "phase " + object.owner;
            text += header + "\n";
        }
        for (const std::string& fact : Facts(object))
            text += "  " + AttachedLabel(object) + ": " + fact + "\n";
    }
    if (!diff.addedLinks.empty() || !diff.removedLinks.empty()) {
        text += "links\n";
        for (const std::string& link : diff.addedLinks)
            text += "  added " + link + "\n";
        for (const std::string& link : diff.removedLinks)
            text += "  removed " + link + "\n";
    }
    return text;
}

namespace {

std::string JsonList(const std::vector<std::string>& texts) {
    std::string json = "[";
    for (std::size_t i = 0; i < texts.size(); ++i)
        json += (i == 0 ? "" : ", ") + JsonString(texts[i]);
    return json + "]";
}

std::string ObjectJson(const ObjectDiff& object) {
    const char* state = object.added ? "added" : object.removed ? "removed" : "changed";
    std::string json =
        "{\"kind\": " + JsonString(object.kind) + ", \"name\": " + JsonString(object.name);
    if (!object.owner.empty())
        json += ", \"phase\": " + JsonString(object.owner);
    json += ", \"state\": \"" + std::string(state) + "\"";
    if (!object.oldName.empty())
        json += ", \"renamedFrom\": " + JsonString(object.oldName);
    if (object.moved)
        json +=
            ", \"movedBy\": [" + std::to_string(object.dx) + ", " + std::to_string(object.dy) + "]";
    if (!object.changedFields.empty())
        json += ", \"changedFields\": " + JsonList(object.changedFields);
    return json + "}";
}

} // namespace

std::string DiffJson(const DocumentDiff& diff) {
    std::string json =
        "{\"same\": " + std::string(diff.Same() ? "true" : "false") + ", \"objects\": [";
    for (std::size_t i = 0; i < diff.objects.size(); ++i)
        json += (i == 0 ? "\n  " : ",\n  ") + ObjectJson(diff.objects[i]);
    json += std::string(diff.objects.empty() ? "" : "\n") +
            "], \"links\": {\"added\": " + JsonList(diff.addedLinks) +
            ", \"removed\": " + JsonList(diff.removedLinks) + "}}\n";
    return json;
}

} // namespace lw
