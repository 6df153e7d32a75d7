#include "maintenance/AboutTexts.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

TEST(AboutTexts, VersionHasPlainNumbers) {
    EXPECT_EQ(VersionText({2, 0, 38}), "Version 2.0.38");
    EXPECT_EQ(VersionText({10, 21, 0}), "Version 10.21.0");
    EXPECT_EQ(VersionText(ProgramVersion()), "Version " OBRIN_PROJECT_VERSION) << "the build's own";
}

TEST(AboutTexts, DisclaimerIsAWarningOfTwoSentences) {
    const std::string text = disclaimerText;
    const auto second = text.find(".\r\n");
    EXPECT_TRUE(text.starts_with("Warning: \r\n"));
    EXPECT_NE(text.find("may not be distributed", second), std::string::npos);
    EXPECT_EQ(text.find('\n', second + 3), std::string::npos);
}

} // namespace
} // namespace obrin
