// Pictures from BMP files.
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

} // namespace obrin
