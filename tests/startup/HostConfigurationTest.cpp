#include "startup/HostConfiguration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace obrin {
namespace {

std::string Upper(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

TEST(HostConfiguration, FirstPassBlanksDriveLinesAndKeepsTheOthers) {
    const std::pair<const char*, const char*> cases[] = {
        {"DRIVE A\r\nx\r\ndrive\r\nDrive S,C:\\OLD,X,\\\r\n", "\r\nx\r\n\r\n\r\n"},
        {"Drivers=3\r\nMyDrive\r\nDriv\r\n Drive\r\n", "\r\nMyDrive\r\nDriv\r\n Drive\r\n"},
        {"drive\nFiles 1\nDrive\r\n\rlast\n", "\r\nFiles 1\r\n\r\n\r\nlast\r\n"},
        {"\x80\xFF\tx\r\n  \r\nlast", "\x80\xFF\tx\r\n  \r\nlast\r\n"},
        {"", ""},
    };
    for (const auto& [before, after] : cases)
        EXPECT_EQ(BlankDriveLines(before, Upper), after);
}

} // namespace
} // namespace obrin
