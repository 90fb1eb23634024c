#pragma once

#include "operations/ObjectStore.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace lw {

// One object of a document as a comparison sees it: what it is, the names
// it is known by, where it stands and its fields as texts, every reference
// to another object written as that object's name.
struct ObjectFacts {
    std::string kind; // "phase", "case", "switch", "check", "action", "unlinker"
    // A phase's, case's or switch's name; what tells a check, an action or
    // an unlinker apart among those of its phase ("range", "PlayerLead
    // Model", with " #2" for the second of the same).
    std::string name;
    // The phase a check, an action or an unlinker belongs to.
    std::string owner;
    // A phase's, case's or switch's place; an attached object's place from
    // its phase, so that it does not count as moved when its phase moves.
    std::int32_t x = 0;
    std::int32_t y = 0;
    // Field name and value, in the order a listing names them.
    std::vector<std::pair<std::string, std::string>> fields;
    std::int32_t id = 0;

    // What identifies the object across two documents.
    std::string Key() const { return kind + '\n' + owner + '\n' + name; }
    const std::string& Field(const std::string& fieldName) const;
};

// A phase's, case's or switch's name as the other document knows it.
using NameMap = std::function<std::string(const std::string& kind, const std::string& name)>;

struct DocumentFacts {
    // Keyed by ObjectFacts::Key().
    std::map<std::string, ObjectFacts> objects;
    // Every link as "tlink From(gate) -> To(gate)".
    std::vector<std::string> links;
};

// The document's facts, with every phase, case and switch name passed
// through `rename` (the names the other document gives them).
DocumentFacts DescribeDocument(const ObjectStore& store, const NameMap& rename);

} // namespace lw
