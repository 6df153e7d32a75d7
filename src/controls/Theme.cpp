#include "controls/Theme.h"

#include "platform/Library.h"

namespace obrin {

namespace {

// The routines are null without the library.
struct UxTheme {
    UniqueLibrary library = LoadLibraryFrom("UxTheme.dll", LOAD_LIBRARY_SEARCH_SYSTEM32);
    decltype(&BeginBufferedPaint) begin = FindRoutine<decltype(begin)>(library, "BeginBufferedPaint");
    decltype(&EndBufferedPaint) end = FindRoutine<decltype(end)>(library, "EndBufferedPaint");
    decltype(&EnableThemeDialogTexture) enableTexture =
        FindRoutine<decltype(enableTexture)>(library, "EnableThemeDialogTexture");

    // Once for the thread that paints; its buffers are kept from one painting to the next.
    UxTheme() {
        if (const auto init = FindRoutine<decltype(&BufferedPaintInit)>(library, "BufferedPaintInit"))
            init();
    }
};

const UxTheme& Loaded() {
    static const UxTheme theme;
    return theme;
}

} // namespace

void PaintBuffered(HDC screen, const RECT& area, const std::function<void(HDC)>& paint) {
    const UxTheme& theme = Loaded();
    HDC buffer = nullptr;
    const HPAINTBUFFER painting = theme.begin != nullptr && theme.end != nullptr
                                      ? theme.begin(screen, &area, BPBF_COMPATIBLEBITMAP, nullptr, &buffer)
                                      : nullptr;
    paint(painting != nullptr ? buffer : screen);
    if (painting != nullptr)
        theme.end(painting, TRUE);
}

void UseTabBackground(HWND dialog) {
    if (Loaded().enableTexture != nullptr)
        Loaded().enableTexture(dialog, ETDT_ENABLETAB);
}

} // namespace obrin
