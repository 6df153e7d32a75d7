#include "controls/Theme.h"

#include "platform/Library.h"

namespace obrin {

namespace {

// The functions are null if the library cannot be loaded.
struct UxTheme {
    UniqueLibrary library = LoadLibraryFrom("UxTheme.dll", LOAD_LIBRARY_SEARCH_SYSTEM32);
    decltype(&BeginBufferedPaint) begin = FindRoutine<decltype(begin)>(library, "BeginBufferedPaint");
    decltype(&EndBufferedPaint) end = FindRoutine<decltype(end)>(library, "EndBufferedPaint");
    decltype(&EnableThemeDialogTexture) enableTexture =
        FindRoutine<decltype(enableTexture)>(library, "EnableThemeDialogTexture");

    // BufferedPaintInit keeps the buffers between paints.
    UxTheme() {
        if (const auto init = FindRoutine<decltype(&BufferedPaintInit)>(library, "BufferedPaintInit"))
            init();
    }
};

const UxTheme& GetUxTheme() {
    static const UxTheme theme;
    return theme;
}

} // namespace

void PaintBuffered(HDC screen, const RECT& area, const std::function<void(HDC)>& paint) {
    const UxTheme& theme = GetUxTheme();
    HDC buffer = nullptr;
    const HPAINTBUFFER painting = theme.begin != nullptr && theme.end != nullptr
                                      ? theme.begin(screen, &area, BPBF_COMPATIBLEBITMAP, nullptr, &buffer)
                                      : nullptr;
    paint(painting != nullptr ? buffer : screen);
    if (painting != nullptr)
        theme.end(painting, TRUE);
}

void UseTabBackground(HWND dialog) {
    if (const auto enable = GetUxTheme().enableTexture)
        enable(dialog, ETDT_ENABLETAB);
}

} // namespace obrin
