// The walk along a path in the workstation's own file system.
#pragma once

#include <string>

namespace obrin {

/// See FrameWork.h. Throws RunTimeError when a folder cannot be made.
bool EnsurePath(const std::string& path, bool create);

} // namespace obrin
