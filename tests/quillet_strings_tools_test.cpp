#include "quillet_strings_tools.h"

#include <gtest/gtest.h>

TEST(Concat, OfNothingIsNothing) { EXPECT_EQ(quillet_concat(nullptr, nullptr), nullptr); }
