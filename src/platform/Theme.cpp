#include "platform/Theme.h"

namespace obrin {

namespace {

// All null without the library.
struct UxTheme {
    HMODULE library = LoadLibraryExA("UxTheme.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32); // stays
    decltype(&BeginBufferedPaint) begin = Find<decltype(begin)>("BeginBufferedPaint");
    decltype(&EndBufferedPaint) end = Find<decltype(end)>("EndBufferedPaint");
    decltype(&EnableThemeDialogTexture) enableTexture =
        Find<decltype(enableTexture)>("EnableThemeDialogTexture");

    // Once for the thread that paints; its buffers are kept from one painting to the next.
    UxTheme() {
        if (const auto init = Find<decltype(&BufferedPaintInit)>("BufferedPaintInit"))
            init();
    }

private:
    template <class Routine>
    Routine Find(const char* name) const {
        return reinterpret_cast<Routine>(GetProcAddress(library, name));
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
