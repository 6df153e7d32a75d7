#include "menu/MenuFiles.h"

#include "common/Installation.h"
#include "common/RunTimeError.h"
#include "menu/MenuDefinition.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"

namespace obrin {

std::vector<MenuFile> EnumerateMenuFiles() {
    const LeadByteTest isLeadByte = CodePageLeadByteTest();
    std::vector<MenuFile> files;
    for (const auto& [name, isFolder, isHidden] : ListFolder(CurrentFolder())) {
        if (isFolder || isHidden || !IsMenuFileName(name))
            continue;
        const std::string header = ReadFirstLine(name);
        if (files.size() == maxSystems)
            throw RunTimeError(PlatformError::InvalidIndex, "Adding " + name + ": at most " +
                                                                std::to_string(maxSystems) +
                                                                " menu files (*.mnu) are allowed");
        files.push_back({.name = name, .title = std::string(HeaderTitle(header, isLeadByte))});
    }
    return files;
}

void FillSystemList(HMENU bar, const std::vector<MenuFile>& systems) {
    if (systems.empty()) {
        DeleteMenu(bar, 0, MF_BYPOSITION);
        return;
    }
    const HMENU list = GetSubMenu(bar, 0);
    for (std::size_t i = 0; i < systems.size(); ++i)
        AppendMenuA(list, MF_STRING, ID_SYSTEMS + i, systems[i].title.c_str());
    DeleteMenu(list, ID_SYSTEMS_TEMPLATE, MF_BYCOMMAND);
}

} // namespace obrin
