#include "maintenance/UpdateRegister.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(UpdateRegister, FindsTheKeyOrThePlaceForIt) {
    EXPECT_EQ(UpdateKey(5) + UpdateKey(42) + UpdateKey(-7), "005042-00");
    EXPECT_EQ(UpdateKey(1234), "123") << "never longer than a record";
    struct {
        const char *bytes, *key;
        bool updated;
        std::size_t record;
    } const cases[] = {
        {"", "005", false, 1},        {"001002", "002", true, 2},  {"001002", "003", false, 3},
        {"001002X", "009", false, 3}, {"00", "001", false, 1},     {"42 042", "042", true, 2},
        {"42 ", "042", false, 2},     {"900500", "005", false, 3}, // only whole records count
    };
    for (const auto& [bytes, key, updated, record] : cases) {
        const auto found = FindUpdateKey(bytes, key);
        EXPECT_EQ(found.updated, updated) << bytes;
        EXPECT_EQ(found.record, record) << bytes;
    }
}

} // namespace obrin
