// Loads and scales pictures from BMP files, and shows them in a control.
#pragma once

#include "platform/Handle.h"

#include <string>

namespace obrin {

/// Loads a BMP file. Throws RunTimeError if it cannot be read or is not a valid BMP file.
UniqueBitmap LoadPicture(const std::string& path);

/// Returns a copy of a picture, scaled from 96 DPI to `dpi`. Throws RunTimeError.
UniqueBitmap ScalePicture(HBITMAP picture, UINT dpi);

/// Returns width and height in pixels; zeros for a null picture.
SIZE PictureSize(HBITMAP picture);

/// Shows a picture in a stock picture control (SS_BITMAP). The control takes the size of the picture.
class PictureBox {
public:
    /// Uses an existing control. The parent of the control destroys it.
    void Attach(HWND control) { window = control; }
    HWND Window() const { return window; }

    /// Shows the picture of a file, scaled to a DPI. Throws RunTimeError and then keeps the old picture.
    void Load(const std::string& path, UINT dpi);
    /// Scales the picture to another DPI. Does nothing without a picture.
    void Scale(UINT dpi);

private:
    void Show(HBITMAP original, UINT dpi);

    HWND window = nullptr;
    UniqueBitmap picture, scaled;
};

} // namespace obrin
