#pragma once

namespace lw {

// Words a template file holds where the objects have no name of their own:
// the export writes them, and building looks records up by some of them.
inline constexpr const char* kBlockSetPrefix = "blocks_";
inline constexpr const char* kUnlinkPrefix = "unlink_";
// Stands in for a geometry link that names no phase.
inline constexpr const char* kNoLinkedPhase = "<EMPTY>";
// A geometry link to a phase that exists but was left out of a copied selection.
inline constexpr const char* kDeletedLinkedPhase = "<DELETED>";
// The rule of an action that has none, so that the action still has a line.
inline constexpr const char* kNoRule = "<empty>";
// The gui helper name of every check: checks have no name, their phase and
// type tell them apart.
inline constexpr const char* kCheckHelperName = "check";

} // namespace lw
