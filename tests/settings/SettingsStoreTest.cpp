#include "settings/SettingsStore.h"

#include "platform/File.h"
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

} // namespace obrin
