// Pictures from BMP files, and the control that shows one.
#pragma once

#include "platform/Handle.h"

#include <string>

namespace obrin {

/// Loads a BMP file. Throws RunTimeError when it cannot be read or holds no picture.
UniqueBitmap LoadPicture(const std::string& path);

/// A copy of the picture for a screen of the given DPI; the original is meant for 96.
UniqueBitmap ScalePicture(HBITMAP picture, UINT dpi);

/// Width and height in pixels; zeros without a picture.
SIZE PictureSize(HBITMAP picture);

/// A stock picture control (SS_BITMAP) that keeps its size to that of the picture.
class PictureBox {
public:
    /// Takes over an existing control; its window is owned by its parent.
    void Attach(HWND control) { window = control; }
    HWND Window() const { return window; }

    /// Shows the picture of a file at a DPI. Throws RunTimeError and keeps the picture it has.
    void Load(const std::string& path, UINT dpi);
    /// Shows its picture, if it has one, at another DPI.
    void Scale(UINT dpi);

private:
    void Show(HBITMAP original, UINT dpi);

    HWND window = nullptr;
    UniqueBitmap picture, scaled;
};

} // namespace obrin
