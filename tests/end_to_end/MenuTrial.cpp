#include "end_to_end/MenuTrial.h"

#include "end_to_end/Input.h"
#include "menu/MenuDefinition.h"
#include "menu/MenuFiles.h"

#include <algorithm>

namespace obrin {

void PrintTo(Effect effect, std::ostream* output) {
    constexpr std::array names{"None",           "EndsEveryStart", "EndsShownSystem", "EndsProgramRun",
                               "EndsProperties", "WaitsForEver",   "FailsForOthers"};
    *output << names[static_cast<std::size_t>(effect)];
}

} // namespace obrin

namespace obrin::test {
namespace {

class Trial {
public:
    explicit Trial(Effect expectedEffect)
        : expected(expectedEffect) {}

    Effect Run() {
        const Effect effect = FindEffect();
        if (const char* box = ErrorBox()) {
            running.Press(box, IDOK);
            EXPECT_LE(running.ExitCode(), 1);
        }
        return effect;
    }

private:
    Effect FindEffect() {
        if (!Starts())
            return ErrorBox() != nullptr ? Effect::EndsEveryStart : Effect::WaitsForEver;
        menu = running.Window();
        if (!ShowsEverySystem())
            return Effect::EndsShownSystem;
        if (!RunsProgram())
            return Effect::EndsProgramRun;
        if (!OpensProperties())
            return Effect::EndsProperties;
        PostMessageA(menu, WM_CLOSE, 0, 0);
        EXPECT_EQ(running.ExitCode(), 0);
        return Effect::None;
    }

    // Returns the caption of the error box, or null if none is shown.
    const char* ErrorBox() const {
        for (const char* caption : {"ObrinMenu", "Error!"}) {
            if (running.Shown(caption) != nullptr)
                return caption;
        }
        return nullptr;
    }

    bool Starts() const {
        const ULONGLONG end = GetTickCount64() + 1500;
        const auto isMenuShown = [&] { return running.Shown("Obrin System Menu") != nullptr; };
        EXPECT_TRUE(Eventually([&] {
            const bool waitedEnough = expected == Effect::WaitsForEver && GetTickCount64() > end;
            return ErrorBox() != nullptr || isMenuShown() || waitedEnough ||
                   running.Shown("Waiting for Fenn") != nullptr;
        }));
        return isMenuShown();
    }

    // Sends a message to the menu. Returns false if it shows an error box. While the box is open, the message
    // is not answered, but WM_NULL is.
    bool Handles(UINT message, WPARAM wParam) const {
        constexpr UINT shortTime = 300, longTime = 20'000; // milliseconds
        DWORD_PTR result = 0;
        if (SendMessageTimeoutA(menu, message, wParam, 0, SMTO_NORMAL, shortTime, &result) == 0)
            SendMessageTimeoutA(menu, WM_NULL, 0, 0, SMTO_NORMAL, longTime, &result);
        return ErrorBox() == nullptr;
    }

    bool ShowsEverySystem() const {
        const std::size_t count = std::min<std::size_t>(EnumerateMenuFiles().size(), 5);
        for (std::size_t i = 1; i <= count; ++i) { // the first system last: its program is run then
            if (!Handles(WM_COMMAND, ID_SYSTEMS + i % count))
                return false;
        }
        return true;
    }

    bool RunsProgram() const {
        if (!Handles(WM_COMMAND, IDC_COMMAND1))
            return false;
        if (const char* update = "Auto Update Utility"; running.Shown(update) != nullptr) {
            Eventually([&] { return IsWindowVisible(GetDlgItem(running.Shown(update), IDOK)); });
            running.Press(update, IDOK);
        }
        return Handles(WM_NULL, 0);
    }

    bool OpensProperties() const {
        const auto entries =
            ParseMenuDefinition(ReadFileBytes(EnumerateMenuFiles().front().name), nullptr).entries;
        std::vector<HTREEITEM> items;
        AddItems(items, TreeView_GetRoot(running.Tree()));
        for (std::size_t i = 0; i < std::min<std::size_t>(items.size(), 10); ++i) {
            if (!entries[i].key.empty() && !OpensProperties(items[i]))
                return false;
        }
        return true;
    }

    void AddItems(std::vector<HTREEITEM>& items, HTREEITEM item) const {
        for (; item != nullptr; item = TreeView_GetNextSibling(running.Tree(), item)) {
            items.push_back(item);
            AddItems(items, TreeView_GetChild(running.Tree(), item));
        }
    }

    bool OpensProperties(HTREEITEM program) const {
        const char* dialog = "Properties";
        TreeView_SelectItem(running.Tree(), program);
        PostMessageA(running.Tree(), WM_CONTEXTMENU, 0, -1);
        EXPECT_TRUE(Eventually(ShownPopup));
        PostMessageA(menu, WM_KEYDOWN, VK_ESCAPE, 0);
        EXPECT_TRUE(Eventually([&] { return ShownPopup() == nullptr; }));
        PostMessageA(menu, WM_COMMAND, ID_TREE_PROPERTIES, 0);
        EXPECT_TRUE(Eventually([&] { return ErrorBox() != nullptr || running.Shown(dialog) != nullptr; }));
        if (const HWND properties = running.Shown(dialog); ErrorBox() == nullptr) {
            PostMessageA(properties, WM_COMMAND, IDOK, 0);
            EXPECT_TRUE(Eventually([&] { return ErrorBox() != nullptr || !IsWindow(properties); }));
        }
        return ErrorBox() == nullptr;
    }

    Effect expected;
    RunningMenu running;
    HWND menu = nullptr;
};

} // namespace

Effect TryMenu(Effect expected) {
    return Trial(expected).Run();
}

Effect PredictedEffect(const Findings& findings) {
    for (const Effect effect : {Effect::EndsEveryStart, Effect::WaitsForEver, Effect::EndsShownSystem,
                                Effect::EndsProgramRun, Effect::EndsProperties}) {
        if (std::ranges::find(findings, effect, &Finding::effect) != findings.end())
            return effect;
    }
    return Effect::None;
}

} // namespace obrin::test
