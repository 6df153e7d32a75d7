#include "common/Text.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

TEST(Text, BlanksAreSpacesOnly) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
}

TEST(Text, TrailingBackslashIsAddedOnce) {
    EXPECT_EQ(EnsureTrailingBackslash("C:\\Tessel"), "C:\\Tessel\\");
    EXPECT_EQ(EnsureTrailingBackslash("C:\\Tessel\\"), "C:\\Tessel\\");
    EXPECT_EQ(EnsureTrailingBackslash(""), "\\");
}

} // namespace
} // namespace obrin
