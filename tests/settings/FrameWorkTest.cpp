#include "settings/FrameWork.h"

#include <gtest/gtest.h>

#include <vector>

namespace obrin {
namespace {

// What the walk asks of the file system, in order: "?" in front of a folder looked at, "+" of one made.
std::string Walk(const std::string& path, bool create, bool allThere) {
    std::string record;
    const bool there = EnsurePath(path, create,
                                  {.exists =
                                       [&](const std::string& folder) {
                                           record += " ?" + folder;
                                           return allThere;
                                       },
                                   .create = [&](const std::string& folder) { record += " +" + folder; },
                                   .isLeadByte = [](char byte) { return byte == '\x81'; }});
    return record + (there ? " there" : " missing");
}

TEST(EnsurePath, LooksAtEachFolderOutermostFirstAndMakesWhatIsMissing) {
    const std::pair<std::string, std::vector<std::string>> cases[] = {
        {R"(C:\Tessel\Temp\Ini\a.ini)", {R"(C:\Tessel\)", R"(C:\Tessel\Temp\)", R"(C:\Tessel\Temp\Ini\)"}},
        {R"(C:\Data\Old.files)", {R"(C:\Data\)"}}, // taken for a file
        {R"(C:\a.b\c)", {R"(C:\a.b\)", R"(C:\a.b\c\)"}},
        {R"(\Ini\a.ini)", {R"(\Ini\)"}},
        {"", {}},
        {R"(C:\a/b\c.d/e)", {R"(C:\a/b\)"}}, // "/" separates nothing
        {R"(C:\a\\b.ini)", {R"(C:\a\)", R"(C:\a\\)"}},
        {R"(\\server\share\Ini\a.ini)", {R"(\\server\share\)", R"(\\server\share\Ini\)"}},
        {R"(\\server\share)", {R"(\\server\share\)"}},
        {R"(\\server)", {}},
        {"C:\\\x81\\\\b\x81\\.c", {"C:\\\x81\\\\"}}, // characters of two bytes, which separate nothing
        {"\\\\\x81\\\\\x81\\", {"\\\\\x81\\\\\x81\\\\"}},
    };
    for (const auto& [path, probed] : cases) {
        std::string looked, made;
        for (const auto& folder : probed) {
            looked += " ?" + folder;
            made += " ?" + folder + " +" + folder;
        }
        EXPECT_EQ(Walk(path, true, false), made + " there");
        EXPECT_EQ(Walk(path, true, true), looked + " there");
        EXPECT_EQ(Walk(path, false, false), probed.empty() ? " there" : " ?" + probed[0] + " missing");
    }
}

} // namespace
} // namespace obrin
