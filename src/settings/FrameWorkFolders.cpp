#include "settings/FrameWorkFolders.h"

#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "settings/FrameWork.h"

namespace obrin {

bool EnsurePath(const std::string& path, bool create) {
    return EnsurePath(path, create,
                      {.exists = FolderExists, .create = CreateFolder, .isLeadByte = CodePageLeadByteTest()});
}

} // namespace obrin
