#include "session/pattern.h"

#include <gtest/gtest.h>

#include <string>

namespace lodge {
namespace {

TEST(Pattern, WithoutAStarItIsTheTextItself) {
    EXPECT_TRUE(matchesPattern("1,234.50", "1,234.50"));
    EXPECT_FALSE(matchesPattern("1,234.50", "1,234.5"));
    EXPECT_FALSE(matchesPattern("1,234.5", "1,234.50"));
    EXPECT_TRUE(matchesPattern("", ""));
    EXPECT_FALSE(matchesPattern("", "x"));
}

TEST(Pattern, AStarStandsForAnyRunAlsoForNone) {
    EXPECT_TRUE(matchesPattern("", "*"));
    EXPECT_TRUE(matchesPattern("anything", "*"));
    EXPECT_TRUE(matchesPattern("Version 2561.00", "Version *"));
    EXPECT_TRUE(matchesPattern("Version ", "Version *"));
    EXPECT_FALSE(matchesPattern("Version", "Version *"));
    EXPECT_TRUE(matchesPattern("return.txt", "*.txt"));
    EXPECT_TRUE(matchesPattern("M026 : กรุณาระบุ วัน", "M026*วัน"));
    EXPECT_TRUE(matchesPattern("a\nb", "a*b"));
}

TEST(Pattern, AStarGivesBackWhatALaterPartNeeds) {
    EXPECT_TRUE(matchesPattern("abababc", "*abc"));
    EXPECT_TRUE(matchesPattern("aXbXc", "a*X*c"));
    EXPECT_FALSE(matchesPattern("aXbYc", "a*X*X*c"));
    EXPECT_TRUE(matchesPattern("abc", "**a**c**"));
}

TEST(Pattern, OnlyTheStarIsSpecial) {
    EXPECT_FALSE(matchesPattern("abc", "a?c"));
    EXPECT_TRUE(matchesPattern("(5.00)", "(5.0*)"));
}

TEST(Pattern, ManyStarsOverALongTextAreQuick) {
    const std::string text(20000, 'a');
    EXPECT_FALSE(matchesPattern(text, "*a*a*a*a*a*a*a*a*b"));
}

} // namespace
} // namespace lodge
