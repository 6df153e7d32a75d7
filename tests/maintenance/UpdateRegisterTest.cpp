#include "maintenance/UpdateRegister.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(UpdateKey, IsTheNumberInThreeBytes) {
    EXPECT_EQ(UpdateKey(5), "005");
    EXPECT_EQ(UpdateKey(42), "042");
    EXPECT_EQ(UpdateKey(1234), "123") << "out of range";
    EXPECT_EQ(UpdateKey(-5), "-00");
}

TEST(FindUpdateKey, FindsTheRecordOfTheKeyOrThePlaceForIt) {
    struct {
        const char* registered;
        bool updated;
        std::size_t record;
        const char* reason;
    } const cases[] = {
        {"001002", true, 2, "in the second record"},
        {"", false, 1, "an empty register"},
        {"100200", false, 3, "the key is there only across two records"},
        {"00100", false, 2, "in the place of the damaged record at the end"},
    };
    for (const auto& [registered, updated, record, reason] : cases) {
        const UpdateSearch found = FindUpdateKey(registered, "002");
        EXPECT_EQ(found.updated, updated) << reason;
        EXPECT_EQ(found.record, record) << reason;
    }
}

} // namespace obrin
