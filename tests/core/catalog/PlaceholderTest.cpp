#include <gtest/gtest.h>
TEST(Placeholder, Catalog) {}
