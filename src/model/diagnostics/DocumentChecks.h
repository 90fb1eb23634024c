#pragma once

#include "diagnostics/Diagnostic.h"
#include "operations/ObjectStore.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace lw {

// The lines of the records that phases, cases, switches and actions were
// read from, by name, in the order of the file (an action by its phase's,
// object's and own name); for objects made since, there is none.
struct ObjectSourceLines {
    std::unordered_map<std::string, std::vector<int>> phases;
    std::unordered_map<std::string, std::vector<int>> cases;
    std::unordered_map<std::string, std::vector<int>> switches;
    std::unordered_map<std::string, std::vector<int>> actions;
};

// The key of an action in ObjectSourceLines.
std::string ActionLineKey(const std::string& phaseName, const std::string& objectName,
                          const std::string& actionName);

// The soundness of the document as it stands, whatever file it came from:
// names that two objects share, actions for properties the block no longer
// has, cases and switches with fewer than two members, phases that nothing
// leads into, objects stacked at one position. Each diagnostic names its
// object and, where the object came from a file, its line. The whole
// document is checked, in time linear in its size.
Diagnostics CheckDocument(const ObjectStore& store, const ObjectSourceLines& lines,
                          const std::string& file);

// A phase, case or switch by its name, any other object by its kind and its
// phase's name, as a user would name it.
std::string ObjectLabel(const ObjectStore& store, const EditorObject& object);

} // namespace lw
