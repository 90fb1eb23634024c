#pragma once

namespace lw {

// The program's name as the user sees it, in captions and message boxes.
inline constexpr const char* kApplicationName = "Loomwright";
// The version, set once for the whole build (the project's version).
inline constexpr const char* kApplicationVersion = LOOMWRIGHT_VERSION;
// The maker's name, under which the user's options are kept.
inline constexpr const char* kOrganizationName = "Tarnwick";

// The name of a document never saved.
inline constexpr const char* kUntitledName = "untitled";

} // namespace lw
