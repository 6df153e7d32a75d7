#include "settings/SettingsStore.h"

#include "common/RunTimeError.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/ScratchFolder.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(SettingsStore, LiesBelowTheFolderOfTheVariableAndIsReplaced) {
    const test::ScratchFolder folder;
    const std::string base = folder.path.string();
    SetEnvironmentVariableA("TesselTemp", nullptr);
    EXPECT_EQ(SettingsPath("UB"), "\\Ini\\UB.ini");
    SetEnvironmentVariableA("TesselTemp", base.c_str());
    const std::string path = SettingsPath("  Core\\UB ");
    EXPECT_EQ(path, base + "\\Ini\\Core\\UB.ini");
    WriteDefaultSettings(path, std::string(10000, 'x'));
    EXPECT_TRUE(CreateHardLinkA("before", path.c_str(), nullptr));
    WriteDefaultSettings(path, "new");
    EXPECT_LT(ReadFileBytes(path).size(), 500U) << "written whole";
    EXPECT_GT(ReadFileBytes("before").size(), 10000U) << "replaced, not written in place";
}

TEST(SettingsStore, BadPlacesAreThePlatformsError) {
    const test::ScratchFolder folder;
    WriteFileBytes("file", "kept");
    CreateFolder("Ini");
    CreateFolder("Ini\\folder.ini");
    SetEnvironmentVariableA("TesselTemp", folder.path.string().c_str());
    for (const std::string& key : {std::string("a?b|c\\UB"), std::string("folder"), std::string("U*"),
                                   std::string(300, 'k'), std::string("..\\file\\UB")}) {
        EXPECT_THROW(WriteDefaultSettings(SettingsPath(key), "name"), RunTimeError) << key;
        EXPECT_THROW(LoadSystemSettings(SettingsPath(key)), RunTimeError) << key;
    }
    EXPECT_EQ(ReadFileBytes("file"), "kept");
}

} // namespace obrin
