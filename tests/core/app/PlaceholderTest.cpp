#include <gtest/gtest.h>
TEST(Placeholder, App) {}
