#include "settings/FrameWork.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace obrin {
namespace {

// What the walk asks of the file system, in order: "?" in front of a folder looked at, "+" of one made.
struct RecordedFolders {
    std::vector<std::string> folders; // that are there
    std::string record, refused;

    FolderCalls Calls() {
        return {.exists =
                    [this](const std::string& folder) {
                        record += " ?" + folder;
                        return std::ranges::find(folders, folder) != folders.end();
                    },
                .create =
                    [this](const std::string& folder) {
                        record += " +" + folder;
                        if (folder == refused)
                            throw RunTimeError(5, folder);
                    }};
    }
};

TEST(EnsurePath, LooksAtEachFolderOutermostFirstAndMakesWhatIsMissing) {
    struct Walk {
        std::string path;
        std::vector<std::string> probed;
    };
    for (const auto& [path, probed] : {
             Walk{R"(C:\Tessel\Temp\Ini\a.ini)",
                  {R"(C:\Tessel\)", R"(C:\Tessel\Temp\)", R"(C:\Tessel\Temp\Ini\)"}},
             Walk{R"(C:\Data\Old.files)", {R"(C:\Data\)"}}, // taken for a file
             Walk{R"(C:\Data\Old.files\)", {R"(C:\Data\)", R"(C:\Data\Old.files\)"}},
             Walk{R"(C:\Data\Reports)", {R"(C:\Data\)", R"(C:\Data\Reports\)"}},
             Walk{R"(C:\a.b\c)", {R"(C:\a.b\)", R"(C:\a.b\c\)"}},
             Walk{R"(C:\)", {}},
             Walk{R"(\Ini\Core\a.ini)", {R"(\Ini\)", R"(\Ini\Core\)"}},
             Walk{R"(Temp\Ini\a.ini)", {R"(Temp\Ini\)"}},
             Walk{"Reports", {}},
             Walk{"", {}},
             Walk{R"(C:\a/b\c.d/e)", {R"(C:\a/b\)"}}, // "/" separates nothing
             Walk{R"(C:\a\\b.ini)", {R"(C:\a\)", R"(C:\a\\)"}},
             Walk{R"(\\server\share\Ini\a.ini)", {R"(\\server\share\)", R"(\\server\share\Ini\)"}},
             Walk{R"(\\server\share)", {R"(\\server\share\)"}},
             Walk{R"(\\server)", {}},
         }) {
        std::string looked, made;
        for (const auto& folder : probed) {
            looked += " ?" + folder;
            made += " ?" + folder + " +" + folder;
        }
        RecordedFolders missing{}, there{.folders = probed, .record = {}, .refused = {}}, fixed{};
        EXPECT_TRUE(EnsurePath(path, true, missing.Calls())) << path;
        EXPECT_EQ(missing.record, made);
        EXPECT_TRUE(EnsurePath(path, true, there.Calls())) << path;
        EXPECT_EQ(there.record, looked);
        EXPECT_EQ(EnsurePath(path, false, fixed.Calls()), probed.empty()) << path;
        EXPECT_EQ(fixed.record, probed.empty() ? "" : " ?" + probed.front());
    }
}

TEST(EnsurePath, FindsNoFolderWithoutABackslashToStartFrom) {
    RecordedFolders folders;
    EXPECT_FALSE(EnsurePathLocal("Reports", true, folders.Calls()));
    EXPECT_FALSE(EnsurePathUnc(R"(\\server)", true, folders.Calls()));
    EXPECT_EQ(folders.record, "");
}

TEST(EnsurePath, EndsAtAFolderThatCannotBeMade) {
    RecordedFolders folders{.folders = {}, .record = {}, .refused = R"(C:\a\)"};
    EXPECT_THROW(EnsurePath(R"(C:\a\b\c.ini)", true, folders.Calls()), RunTimeError);
    EXPECT_EQ(folders.record, R"( ?C:\a\ +C:\a\)");
}

} // namespace
} // namespace obrin
