#include "maintenance/AboutTexts.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(VersionText, HasPlainNumbers) {
    EXPECT_EQ(VersionText({.major = 2, .minor = 0, .revision = 38}), "Version 2.0.38");
}

} // namespace obrin
