#include "maintenance/UpdateRegister.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(UpdateKey, IsTheNumberInThreeDigits) {
    EXPECT_EQ(UpdateKey(5), "005");
    EXPECT_EQ(UpdateKey(42), "042");
}

TEST(UpdateKey, IsThreeBytesEvenForANumberOutOfRange) {
    EXPECT_EQ(UpdateKey(1234), "123");
    EXPECT_EQ(UpdateKey(-5), "-00");
}

TEST(FindUpdateKey, FindsTheRecordThatHoldsTheKey) {
    EXPECT_TRUE(FindUpdateKey("001002", "002").updated);
    EXPECT_EQ(FindUpdateKey("001002", "002").record, 2U);
}

TEST(FindUpdateKey, FindsNothingInARegisterWithoutTheKey) {
    EXPECT_FALSE(FindUpdateKey("", "002").updated);
    EXPECT_FALSE(FindUpdateKey("100200", "002").updated) << "only across two records";
}

TEST(FindUpdateKey, PutsANewKeyAfterTheLastWholeRecord) {
    EXPECT_EQ(FindUpdateKey("", "003").record, 1U);
    EXPECT_EQ(FindUpdateKey("001002", "003").record, 3U);
    EXPECT_EQ(FindUpdateKey("00100", "003").record, 2U);
}

} // namespace obrin
