#include "document/Keywords.h"

#include <iterator>

namespace lw {

namespace {

// Indexed by the enum value.
const char* const kGenerationKeywords[] = {
    "at",     "azimuth",       "fractal",         "line",
    "random", "server_setpos", "server_waypoint", "server_targetpos"};

const char* const kGenerationLabels[] = {"At",
                                         "Azimuth",
                                         "Fractal",
                                         "Line",
                                         "Random",
                                         "Server Set Pos",
                                         "Server Set Waypoint",
                                         "Server Target Pos"};

const char* const kCheckKeywords[] = {"squad",     "location_type", "coalition", "range",
                                      "in_radius", "free",          "in_sector"};

static_assert(std::size(kGenerationKeywords) == kGenerationTypeCount);
static_assert(std::size(kGenerationLabels) == kGenerationTypeCount);
static_assert(std::size(kCheckKeywords) == kCheckTypeCount);

template <std::size_t N>
std::int32_t IndexOf(const char* const (&table)[N], const std::string& keyword,
                     std::int32_t fallback) {
    for (std::size_t i = 0; i < N; ++i) {
        if (keyword == table[i])
            return static_cast<std::int32_t>(i);
    }
    return fallback;
}

template <std::size_t N>
std::string EntryAt(const char* const (&table)[N], std::int32_t value, std::int32_t fallback) {
    const bool inRange = value >= 0 && static_cast<std::size_t>(value) < N;
    return table[inRange ? value : fallback];
}

} // namespace

GenerationType generationTypeFromKeyword(const std::string& keyword) {
    return static_cast<GenerationType>(
        IndexOf(kGenerationKeywords, keyword, GenerationServerSetPos));
}

std::string generationTypeToKeyword(GenerationType type) {
    return EntryAt(kGenerationKeywords, type, GenerationServerSetPos);
}

CheckType checkTypeFromKeyword(const std::string& keyword) {
    return static_cast<CheckType>(IndexOf(kCheckKeywords, keyword, CheckFree));
}

std::string checkTypeToKeyword(CheckType type) {
    return EntryAt(kCheckKeywords, type, CheckFree);
}

std::string generationTypeLabel(GenerationType type) {
    return EntryAt(kGenerationLabels, type, GenerationServerSetPos);
}

} // namespace lw
