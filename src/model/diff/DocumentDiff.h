#pragma once

#include "operations/ObjectStore.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// How one object differs between an older and a newer document.
struct ObjectDiff {
    std::string kind;
    // The name in the newer document (the older one's for a removed object).
    std::string name;
    // The phase of a check, an action or an unlinker, by its newer name.
    std::string owner;
    // The older name of a renamed object; empty when the name stayed.
    std::string oldName;
    bool added = false;
    bool removed = false;
    bool moved = false;
    std::int32_t dx = 0;
    std::int32_t dy = 0;
    std::vector<std::string> changedFields;
    // The object in either document; 0 where it is not in that one.
    std::int32_t oldId = 0;
    std::int32_t newId = 0;
};

struct DocumentDiff {
    // Phases, cases and switches in that order, each by name; after each
    // phase the checks, actions and unlinkers of it that differ.
    std::vector<ObjectDiff> objects;
    std::vector<std::string> addedLinks;
    std::vector<std::string> removedLinks;

    bool Same() const { return objects.empty() && addedLinks.empty() && removedLinks.empty(); }
};

// Compares two documents by the names of their objects, not by the lines of
// their files: an object removed and another added under a new name with the
// same content and place is a rename, and references to a renamed object
// count as unchanged.
DocumentDiff CompareDocuments(const ObjectStore& older, const ObjectStore& newer);

} // namespace lw
