#include "menu/MenuFiles.h"

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
    for (const std::string& name : ListNormalFiles(CurrentFolder())) {
        if (!IsMenuFileName(name))
            continue;
        const std::string header = ReadFirstLine(name);
        if (files.size() == SYSTEMS_TEMPLATE)
            throw RunTimeError(PlatformError::InvalidIndex,
                               "Adding " + name + " to the system list as item 99");
        files.push_back({.name = name, .title = std::string(HeaderTitle(header, isLeadByte))});
    }
    return files;
}

} // namespace obrin
