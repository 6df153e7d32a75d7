// The menu window: shows one system and connects the operator's actions with the host.
#pragma once

#include "controls/Picture.h"
#include "menu/MenuFiles.h"
#include "menu/MenuLayout.h"
#include "menu/MenuTree.h"
#include "platform/Handle.h"
#include "platform/SupportLibrary.h"
#include "startup/HostLink.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// Class and caption of the menu window. A second menu finds it by them.
constexpr const char* menuWindowClass = "ObrinMenu.frmMain";
constexpr const char* menuCaption = "Obrin System Menu";

class frmMain {
public:
    frmMain() = default;
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    /// Creates the window, loads it and shows it. The user can close the window during the load; RunEvents
    /// then returns at once. Throws RunTimeError.
    void Show();

    HWND Window() const { return window; }

private:
    struct Fonts {
        UniqueFont title, label, link, button, message;
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnCommand(int id, int notification);
    bool OnSetCursor(HWND hit, int hitTest);

    // Events of the window.
    bool Form_Load(); // returns false if the user has closed the window
    void Form_Resize();
    void Form_DpiChanged(UINT newDpi, const RECT& suggested);
    void Form_AppearanceChanged(UINT message, WPARAM wParam, LPARAM lParam);
    void Form_Unload();

    // Events of controls and menu items.
    void mnuSystems_Click(std::size_t index);
    void mnuAboutObrin_Click();
    void mnuTreeView_Click(int item);
    void Command1_Click();

    void CreateControls();
    SIZE DesignedOuterSize() const;
    void ApplyFonts();
    void SetLabel(HWND label, const std::string& text);
    Size SizeInTwips(HWND control) const;
    void PopUp(int x, int y);

    void LoadSystem(const std::string& fileName, std::string_view contents);
    void RunSelectedProgram();
    void RunHostProgram(std::string_view program);

    std::optional<SupportLibrary> corvel; // set by Form_Load
    HWND window = nullptr;
    HWND Frame1 = nullptr;
    MenuTree TreeView1;
    HWND Command1 = nullptr;
    HWND Label1 = nullptr; // system title
    PictureBox Image1;
    HWND Label2 = nullptr; // user
    HWND Label3 = nullptr; // workstation number
    HWND Label4 = nullptr; // text in front of the link
    HWND Label5 = nullptr; // link

    HWND lastFocus = nullptr; // the control that had the focus when the window was last active

    UINT dpi = USER_DEFAULT_SCREEN_DPI;
    Fonts fonts;
    std::optional<LayoutMargins> margins; // set by CreateControls
    MenuLayout layout = design::layout;
    bool crosshair = false; // whether the pointer is a crosshair, see OnSetCursor

    std::int16_t wsid = 0;
    HostLink hostLink;
    std::vector<MenuFile> MnuFiles;
    std::string currentSystem; // name of the menu file shown
    std::string propertiesKey; // key of the program whose popup was opened last
    bool unloading = false;
};

} // namespace obrin
