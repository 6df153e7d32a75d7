#include "menu/SystemList.h"

#include "resources/Ids.h"

namespace obrin {

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
