#include "common/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace obrin {

TEST(SignedDecimal, HasABlankInPlaceOfAPlusSign) {
    EXPECT_EQ(SignedDecimal(5), " 5");
    EXPECT_EQ(SignedDecimal(0), " 0");
    EXPECT_EQ(SignedDecimal(-5), "-5");
}

TEST(PaddedDecimal, HasAtLeastThatManyDigits) {
    EXPECT_EQ(PaddedDecimal(5, 3), "005");
    EXPECT_EQ(PaddedDecimal(-7, 2), "-07");
    EXPECT_EQ(PaddedDecimal(123, 2), "123");
    EXPECT_EQ(PaddedDecimal(std::numeric_limits<int>::min(), 2), "-2147483648");
}

TEST(FormatThousandths, HasNoUnneededZeros) {
    EXPECT_EQ(FormatThousandths(1250), "1.25");
    EXPECT_EQ(FormatThousandths(1005), "1.005");
    EXPECT_EQ(FormatThousandths(10'000), "10");
    EXPECT_EQ(FormatThousandths(0), "0");
}

TEST(ParseNumber, ReadsADecimalNumberWithBlanksAroundIt) {
    const std::pair<const char*, double> cases[] = {{"  12 ", 12}, {"+5", 5},    {"-2.5", -2.5}, {"5.", 5},
                                                    {".5", 0.5},   {"1E+1", 10}, {"25e-2", 0.25}};
    for (const auto& [text, number] : cases)
        EXPECT_EQ(ParseNumber(text), number) << text;
}

TEST(ParseNumber, RefusesATextThatIsNotExactlyOneNumber) {
    for (const char* text : {"", " ", "abc", "12abc", "1 2", "1,5", ".", "-", "1e", "1.2.3", "\t5", "5\t"})
        EXPECT_EQ(ParseNumber(text), std::nullopt) << '"' << text << '"';
}

// The C library reads these as numbers.
TEST(ParseNumber, RefusesANumberThatIsNotDecimal) {
    for (const char* text : {"0x1F", "inf", "nan"})
        EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
}

TEST(LeadingNumber, IsTheLongestNumberAtTheStartAfterBlanks) {
    const std::pair<const char*, double> cases[] = {{"  12 ", 12}, {"12abc", 12},  {"0.5 in", 0.5},
                                                    {"-1,5", -1},  {"1.2.3", 1.2}, {"1e", 1}};
    for (const auto& [text, number] : cases)
        EXPECT_EQ(LeadingNumber(text), number) << text;
}

TEST(LeadingNumber, IsZeroWhenTheTextStartsWithNone) {
    for (const char* text : {"", " ", "abc", ".", "-", "\t5", "inf", "nan", "0x1F"})
        EXPECT_EQ(LeadingNumber(text), 0) << '"' << text << '"';
}

} // namespace obrin
