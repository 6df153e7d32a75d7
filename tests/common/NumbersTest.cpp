#include "common/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace obrin {

TEST(Numbers, AreRead) {
    struct {
        const char* text;
        std::optional<double> whole;
        double leading;
    } const cases[] = {
        {"12", 12, 12}, {" 12 ", 12, 12},  {"+5", 5, 5},     {"-3", -3, -3},     {"2.5", 2.5, 2.5},
        {"5.", 5, 5},   {".5", .5, .5},    {"1E+1", 10, 10}, {"", {}, 0},        {" ", {}, 0},
        {"abc", {}, 0}, {"12abc", {}, 12}, {"1 2", {}, 1},   {"1,5", {}, 1},     {"0x1F", {}, 0},
        {"inf", {}, 0}, {"nan", {}, 0},    {".", {}, 0},     {"-", {}, 0},       {"0.5 in", {}, .5},
        {"1e", {}, 1},  {"\t5", {}, 0},    {"5\t", {}, 5},   {"1.2.3", {}, 1.2},
    };
    const std::string zeros(500, '0');
    EXPECT_EQ(LeadingNumber("0." + zeros + "25e500"), 0.25);
    EXPECT_EQ(LeadingNumber("25" + zeros + "e-502"), 0.25);
    EXPECT_EQ(LeadingNumber("0e999999999999"), 0);
    EXPECT_EQ(LeadingNumber("-9e99999"), -std::numeric_limits<double>::infinity());
    for (const auto& [text, whole, leading] : cases) {
        EXPECT_EQ(ParseNumber(text), whole) << '"' << text << '"';
        EXPECT_EQ(LeadingNumber(text), leading) << '"' << text << '"';
    }
}

} // namespace obrin
