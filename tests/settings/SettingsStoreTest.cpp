#include "settings/SettingsStore.h"

#include "common/RunTimeError.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Handle.h"
#include "platform/ScratchFolder.h"
#include "settings/FrameWorkFolders.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

class SettingsStore : public testing::Test {
protected:
    SettingsStore() { UseFolder(base); }

    static void UseFolder(const std::string& path) { SetEnvironmentVariableA("TesselTemp", path.c_str()); }
    static SettingValues Values(const std::string& value) {
        SettingValues values;
        values.fill(value);
        return values;
    }

    test::ScratchFolder folder;
    const std::string base = folder.path.string();
    const std::string path = base + "\\Ini\\UB.ini";
};

TEST_F(SettingsStore, LiesBelowTheFolderOfTheVariable) {
    UseFolder("C:\\Tessel\\Temp");
    EXPECT_EQ(SettingsPath("  Core\\Programs\\CSBackup "),
              "C:\\Tessel\\Temp\\Ini\\Core\\Programs\\CSBackup.ini");
    SetEnvironmentVariableA("TesselTemp", nullptr);
    EXPECT_EQ(SettingsPath("UB"), "\\Ini\\UB.ini");
    UseFolder(base + "\\");
    SaveSystemSettings(SettingsPath("UB"), Values("v"));
    SaveSystemSettings(SettingsPath("..\\Other\\UB"), Values("v"));
    EXPECT_TRUE(FileExists(path));
    EXPECT_TRUE(FileExists(base + "\\Other\\UB.ini"));
}

TEST_F(SettingsStore, MakesFoldersOnlyWhenAsked) {
    EXPECT_FALSE(EnsurePath(path, false));
    EXPECT_FALSE(FolderExists(base + "\\Ini"));
    EXPECT_TRUE(EnsurePath(path, true));
    EXPECT_TRUE(EnsurePath(path, false));
    EXPECT_FALSE(FileExists(path));
}

TEST_F(SettingsStore, KeepsTheOldFileWhenASaveFails) {
    SaveSystemSettings(path, Values(std::string(10000, 'x')));
    SaveSystemSettings(path, Values("old"));
    const std::string old = ReadFileBytes(path);
    EXPECT_EQ(old.size(), 13 * (18 + 1 + 5 + 3 + 2)) << "written whole";
    for (const unsigned othersMay : {0U, 0U + FILE_SHARE_READ + FILE_SHARE_WRITE}) {
        const UniqueFile reader(
            CreateFileA(path.c_str(), GENERIC_READ, othersMay, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_THROW(SaveSystemSettings(path, Values("new")), RunTimeError);
        if (othersMay == 0) {
            EXPECT_THROW(LoadSystemSettings(path), RunTimeError);
        }
    }
    EXPECT_EQ(ReadFileBytes(path), old);
    EXPECT_EQ(ListNormalFiles(base + "\\Ini"), std::vector<std::string>{"UB.ini"}) << "nothing beside it";
}

TEST_F(SettingsStore, BadPlacesAreThePlatformsError) {
    WriteFileBytes(base + "\\file", "kept");
    EXPECT_TRUE(EnsurePath(base + "\\Ini\\folder.ini\\", true));
    struct Place {
        const char* below;
        std::string key;
    };
    for (const auto& [below, key] :
         {Place{"\\file", "UB"}, Place{"\\a?b|c", "UB"}, Place{"", "folder"}, Place{"", "U*"},
          Place{"", std::string(300, 'k')}, Place{"", "..\\file\\UB"}}) {
        UseFolder(base + below);
        EXPECT_THROW(WriteDefaultSettings(SettingsPath(key), "name"), RunTimeError) << below << key;
        EXPECT_THROW(LoadSystemSettings(SettingsPath(key)), RunTimeError) << below << key;
    }
    EXPECT_EQ(ReadFileBytes(base + "\\file"), "kept");
}

} // namespace
} // namespace obrin
