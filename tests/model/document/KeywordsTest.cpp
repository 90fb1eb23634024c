#include "document/Keywords.h"

#include <gtest/gtest.h>

using namespace lw;

TEST(Keywords, GenerationTypesBothWaysWithServerSetPosForTheUnknown) {
    const char* keywords[] = {"at",     "azimuth",       "fractal",         "line",
                              "random", "server_setpos", "server_waypoint", "server_targetpos"};
    for (std::int32_t value = 0; value < kGenerationTypeCount; ++value) {
        EXPECT_EQ(generationTypeToKeyword(GenerationType(value)), keywords[value]);
        EXPECT_EQ(generationTypeFromKeyword(keywords[value]), value);
    }
    for (const char* keyword : {"nonsense", "", "AT", " at"})
        EXPECT_EQ(generationTypeFromKeyword(keyword), GenerationServerSetPos) << keyword;
    for (std::int32_t value : {-1, 8, INT32_MIN})
        EXPECT_EQ(generationTypeToKeyword(GenerationType(value)), "server_setpos");
}

TEST(Keywords, CheckTypesBothWaysWithFreeForTheUnknown) {
    const char* keywords[] = {"squad",     "location_type", "coalition", "range",
                              "in_radius", "free",          "in_sector"};
    for (std::int32_t value = 0; value < kCheckTypeCount; ++value) {
        EXPECT_EQ(checkTypeToKeyword(CheckType(value)), keywords[value]);
        EXPECT_EQ(checkTypeFromKeyword(keywords[value]), value);
    }
    for (const char* keyword : {"nonsense", "", "Squad"})
        EXPECT_EQ(checkTypeFromKeyword(keyword), CheckFree) << keyword;
    for (std::int32_t value : {-1, 7, 9})
        EXPECT_EQ(checkTypeToKeyword(CheckType(value)), "free");
}
