#include "controls/Picture.h"

#include "common/BitmapFile.h"
#include "platform/Failure.h"
#include "platform/File.h"

namespace obrin {

UniqueBitmap LoadPicture(const std::string& path) {
    const std::string action = "Loading the picture " + path;
    File file(path, File::Use::Read);
    if (!IsWholeBitmap(file.Read(bitmapHeaderBytes), file.Size()))
        throw RunTimeError(PlatformError::InvalidData, action);
    file.Close();
    SetLastError(0);
    UniqueBitmap picture(static_cast<HBITMAP>(
        LoadImageA(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
    if (picture)
        return picture;
    if (GetLastError() != 0)
        ThrowLastError(action);
    throw RunTimeError(PlatformError::InvalidData, action); // LoadImage sets no error for a damaged file
}

UniqueBitmap ScalePicture(HBITMAP picture, UINT dpi) {
    const SIZE size = PictureSize(picture);
    const int width = MulDiv(size.cx, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);
    const int height = MulDiv(size.cy, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);

    const HDC screen = GetDC(nullptr);
    UniqueBitmap scaled(CreateCompatibleBitmap(screen, width, height));
    const UniqueDc from(CreateCompatibleDC(screen));
    const UniqueDc to(CreateCompatibleDC(screen));
    ReleaseDC(nullptr, screen);
    if (!scaled)
        throw RunTimeError(ERROR_NOT_ENOUGH_MEMORY, "Scaling the picture");

    const HGDIOBJ oldFrom = SelectObject(from.get(), picture);
    const HGDIOBJ oldTo = SelectObject(to.get(), scaled.get());
    SetStretchBltMode(to.get(), HALFTONE);
    SetBrushOrgEx(to.get(), 0, 0, nullptr);
    StretchBlt(to.get(), 0, 0, width, height, from.get(), 0, 0, size.cx, size.cy, SRCCOPY);
    SelectObject(to.get(), oldTo);
    SelectObject(from.get(), oldFrom);
    return scaled;
}

SIZE PictureSize(HBITMAP picture) {
    BITMAP description{};
    GetObjectA(picture, sizeof description, &description);
    return {description.bmWidth, description.bmHeight};
}

void PictureBox::Load(const std::string& path, UINT dpi) {
    UniqueBitmap loaded = LoadPicture(path);
    Show(loaded.get(), dpi);
    picture = std::move(loaded);
}

void PictureBox::Scale(UINT dpi) {
    if (picture)
        Show(picture.get(), dpi);
}

void PictureBox::Show(HBITMAP original, UINT dpi) {
    // STM_SETIMAGE returns the bitmap that the control used before. That is either `scaled` or a copy made by
    // the control, which we must delete too.
    UniqueBitmap newScaled = ScalePicture(original, dpi);
    UniqueBitmap old(reinterpret_cast<HBITMAP>(
        SendMessageA(window, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(newScaled.get()))));
    if (old == scaled)
        (void)old.release(); // the assignment below deletes it
    scaled = std::move(newScaled);
}

} // namespace obrin
