// An unexpected error: its box ends the menu at once, without the orderly close.

#include "end_to_end/Installation.h"

namespace obrin::test {
namespace {

constexpr const char* boxTitle = "ObrinMenu";

// Running a program fails, and so does opening the Properties of the program with the key K.
struct ErrorBox : testing::Test {
    ErrorBox() {
        DeleteFileA("Updated.txt");
        CreateFolder("Updated.txt");
        WriteFileBytes("Ini", "no folder");
        SetEnvironmentVariableA("TesselTemp", ".");
        menu.emplace();
        EXPECT_TRUE(installation.HostGetsLast("UB"));
    }

    void ExpectErrorOver(const std::string& file) const {
        EXPECT_NE(menu->Texts(boxTitle).find(file), std::string::npos) << menu->Texts(boxTitle);
        EXPECT_FALSE(IsWindowEnabled(menu->Window()));
    }

    void ExpectEndWithoutClose() const {
        SendMessageA(menu->Window(), WM_CLOSE, 0, 0); // has no effect any more
        menu->Press(boxTitle, IDOK);
        EXPECT_EQ(menu->ExitCode(), 1);
        EXPECT_TRUE(installation.HostGetsLast("UB")) << "no exit command";
        EXPECT_TRUE(FileExists("Menu 5.txt"));
    }

    const Installation installation{5};
    std::optional<RunningMenu> menu;
};

TEST_F(ErrorBox, OfTheMenuWindowEndsTheMenu) {
    menu->Command(IDC_COMMAND1);
    ExpectErrorOver("Updated.txt");
    ExpectEndWithoutClose();
}

TEST_F(ErrorBox, OfADialogEndsTheMenu) {
    menu->Command(ID_TREE_PROPERTIES);
    ExpectErrorOver("\\Ini");
    ExpectEndWithoutClose();
}

} // namespace
} // namespace obrin::test
