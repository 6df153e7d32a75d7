#include "menu/MenuCommands.h"

#include "menu/MenuDefinition.h"
#include "resources/Ids.h"

#include <algorithm>
#include <array>

namespace obrin {

namespace {

struct Item {
    int id;
    std::string_view target;
};

constexpr std::array<Item, 8> hostPrograms{{
    {ID_BACKUP, "Core\\Programs\\CSBackup"},
    {ID_RESTORE, "Core\\Programs\\CSRestore"},
    {ID_SELECT_CO, "Core\\Programs\\SelCNo"},
    {ID_COPY_CO, "Core\\Programs\\CopyCNo"},
    {ID_ERASE_CO, "Core\\Programs\\EraseCNo"},
    {ID_REDIRECT_PRINT, "Core\\Programs\\RePrint"},
    {ID_UPDATE, "Core\\Programs\\Update\\File"},
    {ID_PRINT_TEST, "Core\\Programs\\PrintTest"},
}};

constexpr char systemCodePlaceholder = '*'; // no file name can contain it

constexpr std::array<Item, 5> documents{{
    {ID_CORE_HELP, "Help\\Index.html"},
    {ID_SYSTEM_HELP, "Help\\*\\Index.html"},
    {ID_WEBSITE, "Help\\Obrin-Web.url"},
    {ID_USER_SITE, "Obrin-User.url"}, // in the installation folder, not in the help folder
    {IDC_LABEL5, "Help\\BetterIdea.url"},
}};

template <class Table>
std::optional<std::string_view> Find(const Table& table, int id) {
    const auto item = std::ranges::find(table, id, &Item::id);
    return item == table.end() ? std::nullopt : std::optional(item->target);
}

} // namespace

std::optional<std::string_view> HostProgramOf(int item) {
    return Find(hostPrograms, item);
}

std::optional<std::string> DocumentOf(int item, std::string_view menuFileName, LeadByteTest isLeadByte) {
    const auto document = Find(documents, item);
    if (!document)
        return std::nullopt;
    std::string path(*document);
    if (const auto position = path.find(systemCodePlaceholder); position != std::string::npos)
        path.replace(position, 1, SystemCode(menuFileName, isLeadByte));
    return path;
}

} // namespace obrin
