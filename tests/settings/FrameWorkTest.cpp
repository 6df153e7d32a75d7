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

// A disk that holds some folders and records which ones are created.
struct Disk {
    FolderCalls Calls() {
        return {
            .exists = [this](const std::string& folder) { return std::ranges::count(existing, folder) > 0; },
            .create = [this](const std::string& folder) { created.push_back(folder); },
            .isLeadByte = test::IsLeadByte};
    }

    Folders existing;
    Folders created;
};

TEST(EnsurePath, CreatesTheMissingFoldersOutermostFirst) {
    struct {
        const char* rule;
        const char* path;
        Folders created;
    } const cases[] = {
        {"the first folder follows the drive", R"(C:\a.ini)", {}},
        {"a drive is not needed", R"(\Ini\a.ini)", {R"(\Ini\)"}},
        {"the first folder follows the server", R"(\\server\share\a.ini)", {R"(\\server\share\)"}},
        {"a last component with a dot is a file", R"(C:\Data\Old.files)", {R"(C:\Data\)"}},
        {"a last component without a dot is a folder", R"(C:\a.b\New)", {R"(C:\a.b\)", R"(C:\a.b\New\)"}},
        {"a slash separates nothing", R"(C:\a/b\c.d/e)", {R"(C:\a/b\)"}},
        {"the second byte of a character separates nothing", "C:\\a\x81\\b\\c.\x81\\d", {"C:\\a\x81\\b\\"}},
        {"the same in a server's name", "\\\\a\x81\\b\\share", {"\\\\a\x81\\b\\share\\"}},
    };
    for (const auto& [rule, path, created] : cases) {
        Disk disk;
        EXPECT_TRUE(EnsurePath(path, create, disk.Calls())) << rule;
        EXPECT_EQ(disk.created, created) << rule;
    }
}

TEST(EnsurePath, LeavesExistingFoldersAlone) {
    Disk disk{.existing = {R"(C:\Tessel\)"}, .created = {}};
    EXPECT_TRUE(EnsurePath(R"(C:\Tessel\Temp\a.ini)", create, disk.Calls()));
    EXPECT_EQ(disk.created, (Folders{R"(C:\Tessel\Temp\)"}));
}

TEST(EnsurePath, OnlyLooksWhenItMayNotCreate) {
    Disk disk{.existing = {R"(C:\Tessel\)"}, .created = {}};
    EXPECT_TRUE(EnsurePath(R"(C:\Tessel\a.ini)", onlyLook, disk.Calls()));
    EXPECT_FALSE(EnsurePath(R"(C:\Tessel\Temp\a.ini)", onlyLook, disk.Calls()));
    EXPECT_EQ(disk.created, Folders{});
}

TEST(EnsurePath, FailsWithoutABackslashAfterTheRoot) {
    Disk disk;
    EXPECT_FALSE(EnsurePathLocal("C:", create, disk.Calls()));
    EXPECT_FALSE(EnsurePathUnc(R"(\\server)", create, disk.Calls()));
}

} // namespace
} // namespace obrin
