#include "checker/FolderWalk.h"

#include "checker/Access.h"
#include "checker/MenuFileRules.h"
#include "checker/OtherFileRules.h"
#include "common/Installation.h"
#include "controls/Picture.h"
#include "maintenance/UpdateFiles.h"
#include "menu/MenuCommands.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/SupportLibrary.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "startup/HostConfiguration.h"
#include "startup/UserRecords.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace obrin {

namespace {

class Walk {
public:
    explicit Walk(const std::string& path)
        : base(path.empty() ? path : EnsureTrailingBackslash(path, CodePageLeadByteTest()))
        , folder(path.empty() ? "." : path) {}

    FolderFindings Check() {
        FindMenuFiles(); // throws if the folder cannot be listed
        CheckSystemCodes();
        CheckHelp();
        CheckFolders();
        CheckConfiguration();
        CheckPrograms();
        CheckPicture();
        CheckSharedFiles();
        CheckUpdateFiles();
        return {std::move(findings), std::move(menuFiles)};
    }

private:
    void FindMenuFiles() {
        for (const FolderEntry& entry : ListFolder(folder)) {
            present.insert(UpperCase(entry.name));
            if (!IsMenuFileNameInAnyCase(entry.name))
                continue;
            const std::string path = base + entry.name;
            const auto trouble = FindListingTrouble(entry);
            if (trouble)
                Add(findings, Effect::None, {path}, *trouble, "the menu does not list this system");
            else
                names.push_back(entry.name);
            if (!entry.isFolder)
                menuFiles.push_back({path, !trouble});
        }
        if (names.empty())
            Add(findings, Effect::EndsEveryStart, {folder},
                {"there is no menu file (*.mnu) here",
                 "start the menu in the host's folder, and put the systems' menu files there"});
        if (names.size() > maxSystems)
            Add(findings, Effect::EndsEveryStart, {base + names[maxSystems]},
                {"at most 99 menu files are allowed, and this is one more", "remove those that nobody uses"});
        std::ranges::sort(names);
    }

    static std::optional<Trouble> FindListingTrouble(const FolderEntry& entry) {
        if (entry.isFolder)
            return Trouble{"a folder", "remove it, or put the menu file in its place"};
        if (entry.isHidden)
            return Trouble{"hidden or a system file", "take the attribute away (attrib -h -s)"};
        if (!IsMenuFileName(entry.name))
            return Trouble{"the name does not end in .mnu in small letters", "rename the file"};
        return std::nullopt;
    }

    void CheckSystemCodes() {
        std::map<std::string, std::string> nameOfCode;
        for (const auto& name : names) {
            const std::string code(SystemCode(name, isLeadByte));
            // The menu types the code into the host in capitals: case makes no difference.
            if (const auto [first, isNew] = nameOfCode.try_emplace(UpperCase(code), name); !isNew)
                Add(findings, Effect::None, {base + name},
                    {"the same system code (" + code + ") as " + first->second, "rename one file"},
                    "the host starts the same system for both");
        }
    }

    void CheckHelp() {
        constexpr std::array<std::pair<int, const char*>, 5> items{{
            {ID_CORE_HELP, "Core Help"},
            {ID_SYSTEM_HELP, "System Help"},
            {ID_WEBSITE, "Obrin Website"},
            {ID_USER_SITE, "Obrin User Website"},
            {IDC_LABEL5, "E-Mail us!"},
        }};
        std::set<std::string> documents; // most are the same for every system
        for (const auto& name : names) {
            for (const auto& [id, caption] : items) {
                const std::string document = base + DocumentOf(id, name, isLeadByte).value_or("");
                const bool isNew = documents.insert(document).second;
                if (const auto trouble = isNew ? FindReadTrouble(document) : std::nullopt)
                    Add(findings, Effect::None, {document}, *trouble,
                        std::string(caption) + " does not open the document");
            }
        }
    }

    void CheckFolders() {
        const std::string core = base + coreFolder, temporary = base + temporaryConfigurationFile;
        if (const auto trouble = FindFolderTrouble(core))
            Add(findings, Effect::EndsEveryStart, {core}, *trouble);
        if (const auto trouble = FindFolderTrouble(folder))
            Add(findings, Effect::EndsEveryStart, {folder}, *trouble);
        if (const auto trouble = FindWriteTrouble(temporary))
            Add(findings, Effect::EndsEveryStart, {temporary}, *trouble);
    }

    void CheckConfiguration() {
        const std::string shortFolder = ShortPath(FullPath(folder));
        if (shortFolder.empty() || shortFolder.find_first_of(" ,") != std::string::npos)
            Add(findings, Effect::None, {folder},
                {"this folder has no short form without blanks and commas",
                 "move the installation to a short path without them"},
                "the host may not find it by the drive line of FennConfig.Sys");

        const std::string path = base + hostConfigurationFile;
        if (!MayBeFile(path)) {
            const Trouble missing{"missing", "restore the file, or start the menu in the host's folder"};
            Add(findings, Effect::EndsEveryStart, {path},
                FolderExists(path) ? Trouble{"a folder has this name", "remove the folder"} : missing,
                "the menu ends at every start with \"Config File Not found!\"");
            return;
        }
        const auto bytes = ReadOrAddFinding(findings, Effect::EndsEveryStart, path);
        if (!bytes)
            return;
        const bool needsNoChange = AddDriveLine(shortFolder, BlankDriveLines(*bytes, UpperCase)) == *bytes;
        if (const auto trouble = FindReplaceTrouble(path))
            Add(findings, needsNoChange ? Effect::None : Effect::EndsEveryStart, {path}, *trouble,
                "the menu ends with an error at a start that has to change the drive line");
        else if (const auto noReplacement = FindDeleteTrouble(path))
            Add(findings, Effect::None, {path}, *noReplacement,
                "the menu writes it in place, and a lost connection can leave it half written");
    }

    void CheckPrograms() {
        if (const auto trouble = FindStartTrouble(base + hostProgram))
            Add(findings, Effect::WaitsForEver, {base + hostProgram}, *trouble,
                "the menu waits for the host for ever");
        // The menu may lie in another folder than the host. Then this program lies beside the menu.
        const bool isBesideChecker = !MayBeFile(base + menuProgram) && MayBeFile(OwnFolder() + menuProgram);
        const std::string programFolder = isBesideChecker ? OwnFolder() : base;
        const std::string menu = programFolder + menuProgram;
        if (const auto trouble = IsMissing(menu) ? std::nullopt : FindStartTrouble(menu))
            Add(findings, Effect::WaitsForEver, {menu}, *trouble, "the menu does not start");
        if (HasOtherBitness(menu))
            Add(findings, Effect::None, {menu},
                {"not from the same archive as this ObrinCheck (32 or 64 bits)",
                 "use the ObrinCheck that came with ObrinMenu.exe"},
                "Corvel.dll has not been checked");
        else
            CheckLibrary(programFolder);
    }

    void CheckLibrary(const std::string& programFolder) {
        const std::string path = programFolder + supportLibraryFile;
        try {
            const SupportLibrary library(FullPath(programFolder.empty() ? "." : programFolder));
            AddRememberedSystem(library.GetRegValue(HKEY_LOCAL_MACHINE, menuRegistryKey, lastSystemValue));
        } catch (const RunTimeError& error) {
            const std::string reason = std::string(error.what()) + ": " + PlatformText(error.Code());
            const char* remedy = "put the library there that came with ObrinMenu.exe";
            const Trouble unusable{"cannot be used (" + reason + ")", remedy};
            Add(findings, Effect::EndsEveryStart, {path},
                IsMissing(path) ? Trouble{"missing", remedy} : FindReadTrouble(path).value_or(unusable));
        }
    }

    // The menu shows the remembered system first, even if it does not list it.
    void AddRememberedSystem(std::string_view lastSystem) {
        const std::string path = base + std::string(TrimBlanks(lastSystem));
        if (TrimBlanks(lastSystem).empty() || !MayBeFile(path))
            return;
        const auto same =
            std::ranges::find(menuFiles, UpperCase(path), [](auto& file) { return UpperCase(file.path); });
        if (same != menuFiles.end())
            same->isShown = true;
        else
            menuFiles.push_back({path, true});
    }

    void CheckPicture() {
        const std::string path = base + startupPictureFile;
        if (!NormalFileExists(path) || !ReadOrAddFinding(findings, Effect::EndsEveryStart, path))
            return;
        try {
            ScalePicture(LoadPicture(FullPath(path)).get(), USER_DEFAULT_SCREEN_DPI);
        } catch (const RunTimeError& error) {
            Add(findings, Effect::EndsEveryStart, {path},
                {"no picture that can be shown (" + PlatformText(error.Code()) + ")",
                 "save the picture as a BMP file, or remove it"});
        }
    }

    void CheckSharedFiles() {
        const std::string users = base + userRecordsFile, updated = base + updateRegisterFile;
        const std::string records = CheckSharedFile(users, Effect::EndsEveryStart);
        Add(findings, CheckUserRecords(users, records, LoginName()));
        Add(findings, CheckUpdateRegister(updated, CheckSharedFile(updated, Effect::EndsProgramRun)));
        const int ownWsid = ScanUserRecords(records, LoginName()).wsid;
        for (int wsid = 1; wsid <= maxWsid; ++wsid) {
            const std::string name = MarkerFileName(wsid);
            if (!present.contains(UpperCase(name)))
                continue; // asking a share for each name would take long
            if (const auto trouble = FindWriteTrouble(base + name))
                Add(findings, wsid == ownWsid ? Effect::EndsEveryStart : Effect::FailsForOthers,
                    {base + name}, *trouble,
                    "the menu of workstation " + std::to_string(wsid) + " ends with an error at every start");
        }
    }

    // Returns the bytes of a file that the menu reads and writes. A missing one is no fault: the menu makes
    // it.
    std::string CheckSharedFile(const std::string& path, Effect effect) {
        if (IsMissing(path))
            return "";
        auto bytes = ReadOrAddFinding(findings, effect, path);
        if (const auto trouble = bytes ? FindWriteTrouble(path) : std::nullopt)
            Add(findings, effect, {path}, *trouble);
        return bytes.value_or("");
    }

    void CheckUpdateFiles() {
        const std::string noCopy = "the update of a workstation says \"Complete\" although it does not copy ";
        const std::string sources = base + updateFolder;
        if (!FolderExists(sources))
            Add(findings, Effect::None, {sources}, *FindFolderTrouble(sources), noCopy + "anything");
        for (const auto& [source, destination] : updateFiles) {
            if (const auto trouble = FolderExists(sources) ? FindReadTrouble(base + source) : std::nullopt)
                Add(findings, Effect::None, {base + source}, *trouble, noCopy + "this program");
        }
        const std::string local = EnvironmentVariable(localHostVariable);
        if (local.empty())
            Add(findings, Effect::None, {localHostVariable},
                {"this variable is not set here", "set it on every workstation"},
                "the update of a workstation copies to the root of the current drive");
        else if (const auto trouble = FindFolderTrouble(local))
            Add(findings, Effect::None, {localHostVariable}, MakeVariableTrouble(local, *trouble),
                noCopy + "anything");
    }

    std::string base;   // the prefix of file names: empty, or ends with "\"
    std::string folder; // the same folder, "." if the prefix is empty
    LeadByteTest isLeadByte = CodePageLeadByteTest();
    std::set<std::string> present;  // names of everything in the folder, in capitals
    std::vector<std::string> names; // of the menu files that the menu lists
    std::vector<FoundMenuFile> menuFiles;
    Findings findings;
};

} // namespace

FolderFindings WalkFolder(const std::string& folder) {
    return Walk(folder).Check();
}

} // namespace obrin
