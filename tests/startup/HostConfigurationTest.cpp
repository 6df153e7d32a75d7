#include "startup/HostConfiguration.h"

#include "support/CodePage.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

std::string Blanked(std::string_view configuration) {
    return BlankDriveLines(configuration, test::UpperCase);
}

TEST(BlankDriveLines, EmptiesLinesThatBeginWithDriveInAnyCase) {
    EXPECT_EQ(Blanked("Drive S,C:\\OLD,X,\\\r\nFiles 1\r\nDRIVE\r\ndRiVe 2\r\n"), "\r\nFiles 1\r\n\r\n\r\n");
    EXPECT_EQ(Blanked("Drivers 3\r\n"), "\r\n");
}

TEST(BlankDriveLines, KeepsOtherLinesUnchanged) {
    const std::string others = " Drive S\r\n\r\n  \r\nDriv\r\nmy Drive\r\n";
    EXPECT_EQ(Blanked(others), others);
}

TEST(BlankDriveLines, EndsEveryLineInCrLf) {
    EXPECT_EQ(Blanked("a\nb\rc"), "a\r\nb\r\nc\r\n");
}

TEST(AddDriveLine, PutsTheDriveLineFirst) {
    EXPECT_EQ(AddDriveLine("C:\\APPS\\HOST", "Files 1\r\n"), "Drive S,C:\\APPS\\HOST,X,\\\r\nFiles 1\r\n");
    EXPECT_EQ(AddDriveLine("", ""), "Drive S,,X,\\\r\n") << "the folder is unknown";
}

TEST(AddDriveLine, DropsOnlyBlankLines) {
    EXPECT_EQ(AddDriveLine("C:\\HOST", "\r\n a \r\n  \r\n\t\r\n\r\n"),
              "Drive S,C:\\HOST,X,\\\r\n a \r\n\t\r\n");
}

} // namespace
} // namespace obrin
