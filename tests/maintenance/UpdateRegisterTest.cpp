#include "maintenance/UpdateRegister.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(UpdateKey, IsTheNumberInThreeBytes) {
    EXPECT_EQ(UpdateKey(5), "005");
    EXPECT_EQ(UpdateKey(42), "042");
    EXPECT_EQ(UpdateKey(1234), "123") << "cut to three bytes";
    EXPECT_EQ(UpdateKey(-5), "-00") << "cut to three bytes";
}

TEST(FindUpdateKey, ReturnsTheRecordOfTheKeyOrTheOneToWrite) {
    struct {
        const char* registered;
        bool updated;
        std::size_t record;
        const char* reason;
    } const cases[] = {
        {"001002", true, 2, "the key is in the second record"},
        {"", false, 1, "the register is empty"},
        {"100200", false, 3, "the digits of the key belong to two records"},
        {"00100", false, 2, "the incomplete record at the end is overwritten"},
    };
    for (const auto& [registered, updated, record, reason] : cases) {
        const UpdateSearch found = FindUpdateKey(registered, "002");
        EXPECT_EQ(found.updated, updated) << reason;
        EXPECT_EQ(found.record, record) << reason;
    }
}

} // namespace obrin
