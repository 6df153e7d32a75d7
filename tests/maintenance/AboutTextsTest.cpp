#include "maintenance/AboutTexts.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(VersionText, HasThreeNumbersWithoutLeadingZeros) {
    EXPECT_EQ(VersionText({.major = 2, .minor = 0, .revision = 38}), "Version 2.0.38");
}

TEST(DisclaimerText, StartsWithAWarningLine) {
    EXPECT_TRUE(std::string(disclaimerText).starts_with("Warning: \r\n"));
}

} // namespace obrin
