#include "common/Twips.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

TEST(Twips, AreAFixedPartOfAnInch) {
    for (const unsigned dpi : {96U, 120U, 144U, 192U}) {
        EXPECT_EQ(ToPixels(1440, dpi), static_cast<int>(dpi));
        EXPECT_EQ(ToPixels(-720, dpi), -static_cast<int>(dpi) / 2);
        for (const int pixels : {-7, 0, 1, 333, 30'000})
            EXPECT_EQ(ToPixels(ToTwips(pixels, dpi), dpi), pixels) << "there and back";
    }
}

} // namespace
} // namespace obrin
