#include "settings/FrameWork.h"

#include "support/CodePage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace obrin {
namespace {

using Folders = std::vector<std::string>;

constexpr bool create = true;
constexpr bool onlyLook = false;

// A disk that holds some folders and records what is asked of it.
struct Disk {
    FolderCalls Calls() {
        const auto exists = [this](const std::string& folder) {
            lookedAt.push_back(folder);
            return std::ranges::find(existing, folder) != existing.end();
        };
        const auto add = [this](const std::string& folder) { created.push_back(folder); };
        return {.exists = exists, .create = add, .isLeadByte = test::IsLeadByte};
    }

    Folders existing;
    Folders lookedAt;
    Folders created;
};

// The folders that are created for a path on an empty disk.
Folders FoldersOf(const std::string& path) {
    Disk disk;
    EXPECT_TRUE(EnsurePath(path, create, disk.Calls()));
    return disk.created;
}

TEST(EnsurePath, CreatesMissingFoldersOutermostFirst) {
    Disk disk;
    disk.existing = {R"(C:\Tessel\)"};
    EXPECT_TRUE(EnsurePath(R"(C:\Tessel\Temp\Ini\CSBackup.ini)", create, disk.Calls()));
    EXPECT_EQ(disk.created, (Folders{R"(C:\Tessel\Temp\)", R"(C:\Tessel\Temp\Ini\)"}));
}

TEST(EnsurePath, StopsAtTheFirstMissingFolderWhenItOnlyLooks) {
    Disk disk;
    EXPECT_FALSE(EnsurePath(R"(C:\Tessel\Temp\a.ini)", onlyLook, disk.Calls()));
    EXPECT_EQ(disk.lookedAt, (Folders{R"(C:\Tessel\)"}));
    EXPECT_EQ(disk.created, Folders{});
}

TEST(EnsurePath, SucceedsWhenEveryFolderExists) {
    Disk disk;
    disk.existing = {R"(C:\Tessel\)", R"(C:\Tessel\Temp\)"};
    EXPECT_TRUE(EnsurePath(R"(C:\Tessel\Temp\a.ini)", onlyLook, disk.Calls()));
}

TEST(EnsurePath, TreatsALastComponentWithADotAsAFile) {
    EXPECT_EQ(FoldersOf(R"(C:\Data\Old.files)"), (Folders{R"(C:\Data\)"}));
}

TEST(EnsurePath, TreatsALastComponentWithoutADotAsAFolder) {
    EXPECT_EQ(FoldersOf(R"(C:\Old.files\New)"), (Folders{R"(C:\Old.files\)", R"(C:\Old.files\New\)"}));
}

TEST(EnsurePath, StartsAfterTheDrive) {
    EXPECT_EQ(FoldersOf(R"(C:\a.ini)"), Folders{});
    EXPECT_EQ(FoldersOf(R"(\Ini\a.ini)"), (Folders{R"(\Ini\)"}));
}

TEST(EnsurePath, StartsANetworkPathAfterTheServer) {
    EXPECT_EQ(FoldersOf(R"(\\server\share\Ini\a.ini)"),
              (Folders{R"(\\server\share\)", R"(\\server\share\Ini\)"}));
}

TEST(EnsurePath, SlashSeparatesNothing) {
    EXPECT_EQ(FoldersOf(R"(C:\a/b\c.d/e)"), (Folders{R"(C:\a/b\)"}));
}

TEST(EnsurePath, SecondByteOfACharacterSeparatesNothing) {
    EXPECT_EQ(FoldersOf("C:\\a\x81\\b\\c.\x81\\d"), (Folders{"C:\\a\x81\\b\\"}));
    EXPECT_EQ(FoldersOf("\\\\a\x81\\b\\share"), (Folders{"\\\\a\x81\\b\\share\\"}));
}

TEST(EnsurePathLocal, FailsWithoutABackslash) {
    Disk disk;
    EXPECT_TRUE(EnsurePathLocal(R"(C:\)", create, disk.Calls()));
    EXPECT_FALSE(EnsurePathLocal("C:", create, disk.Calls()));
}

TEST(EnsurePathUnc, FailsWithoutABackslashAfterTheServer) {
    Disk disk;
    EXPECT_TRUE(EnsurePathUnc(R"(\\server\)", create, disk.Calls()));
    EXPECT_FALSE(EnsurePathUnc(R"(\\server)", create, disk.Calls()));
}

} // namespace
} // namespace obrin
