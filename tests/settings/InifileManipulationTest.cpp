#include "settings/InifileManipulation.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(FormatIniLine, PadsTheKeyTo18Characters) {
    EXPECT_EQ(FormatIniLine("Program", "UB"), "Program           =     UB");
    EXPECT_EQ(FormatIniLine("123456789012345678", "UB"), "123456789012345678=     UB");
}

TEST(FormatIniLine, RefusesALongerKey) {
    EXPECT_THROW(FormatIniLine("1234567890123456789", "UB"), RunTimeError);
}

} // namespace obrin
