#include "checker/FolderCheck.h"

#include "checker/Access.h"
#include "checker/FileChecks.h"
#include "controls/Picture.h"
#include "menu/MenuCommands.h"
#include "menu/MenuDefinition.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "startup/UserRecords.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <set>

namespace obrin {

namespace {

constexpr const char* atEveryStart = ": the menu ends with an error at every start; ";
constexpr int mostWsid = 99;

class Installation {
public:
    explicit Installation(const std::string& folder)
        : base(folder.empty() ? folder : EnsureTrailingBackslash(folder, CodePageLeadByteTest()))
        , shownBase(folder.empty() ? "." : folder) {}

    FolderCheck Check() {
        FindMenuFiles(); // without a listing there is nothing to say
        for (const auto step :
             {&Installation::CheckSystemCodes, &Installation::CheckHelp, &Installation::CheckConfiguration,
              &Installation::CheckFolders, &Installation::CheckLibrary, &Installation::CheckPicture,
              &Installation::CheckSharedFiles})
            (this->*step)();
        return std::move(check);
    }

private:
    std::string PathOf(const std::string& name) const { return base + name; }

    void Add(Finding::Kind kind, const std::string& path, std::string text) {
        check.findings.push_back({.kind = kind, .line = 0, .text = std::move(text), .file = path});
    }
    void Error(const std::string& path, std::string text) {
        Add(Finding::Kind::Error, path, std::move(text));
    }
    void Warn(const std::string& path, std::string text) {
        Add(Finding::Kind::Warning, path, std::move(text));
    }
    void AddFor(const std::string& path, std::vector<Finding> findings) {
        for (auto& finding : findings) {
            finding.file = path;
            check.findings.push_back(std::move(finding));
        }
    }

    void FindMenuFiles() {
        for (const FolderEntry& file : ListFolder(shownBase)) {
            const std::string& name = file.name;
            const std::string path = PathOf(name);
            listed.insert(UpperCase(name));
            if (file.isFolder || (!IsMenuFileName(name) && !IsMistakenMenuFileName(name)))
                continue;
            if (const auto reason = WhyNotListed(file); reason.empty())
                names.push_back(name);
            else
                Warn(path, reason);
            // Listed or not: it is shown where it is the system remembered.
            check.menuFiles.push_back(path);
        }
        if (names.empty())
            Error(shownBase,
                  std::string("there is no menu file (*.mnu) here") + atEveryStart +
                      "start the menu in the host's folder, and put the systems' menu files there");
        if (names.size() > SYSTEMS_TEMPLATE)
            Error(PathOf(names[SYSTEMS_TEMPLATE]), std::string("the hundredth menu file") + atEveryStart +
                                                       "99 are the most; remove those that nobody uses");
        std::ranges::sort(names);
    }

    void CheckSystemCodes() {
        std::map<std::string, std::string> nameOfCode;
        for (const auto& name : names) {
            const std::string code(SystemCode(name, isLeadByte));
            // As the host is told it.
            if (const auto [first, isNew] = nameOfCode.try_emplace(UpperCase(code), name); !isNew)
                Warn(PathOf(name), "the system code " + code + " is that of " + first->second +
                                       " too: the host starts the same system for both; rename one file");
        }
    }

    void CheckHelp() {
        struct Item {
            int id;
            const char* caption;
        };
        constexpr std::array<Item, 5> items{{
            {ID_CORE_HELP, "Core Help"},
            {ID_SYSTEM_HELP, "System Help"},
            {ID_WEBSITE, "Obrin Website"},
            {ID_USER_SITE, "Obrin User Website"},
            {IDC_LABEL5, "E-Mail us!"},
        }};
        std::map<std::string, const char*> captionOf; // by document: most are the same for every system
        for (const auto& [id, caption] : items) {
            for (const auto& name : names)
                captionOf.emplace(DocumentOf(id, name, isLeadByte).value_or(""), caption);
        }
        for (const auto& [document, caption] : captionOf) {
            const std::string path = PathOf(document);
            const std::string consequence = std::string(": ") + caption + " opens nothing; ";
            try {
                if (!FileExists(path))
                    Warn(path, "missing" + consequence + "put the document there");
            } catch (const RunTimeError& error) {
                Warn(path, "cannot be read (" + PlatformText(error.Code()) + ")" + consequence +
                               "give the operators the right to read it");
            }
        }
    }

    void CheckConfiguration() {
        const std::string path = PathOf("FennConfig.Sys");
        Look(path, atEveryStart, [&] {
            if (ReadFileIfThere(path))
                CheckRewriting(path);
            else
                Error(path, "missing: the menu ends at every start with \"Config File Not found!\"; restore "
                            "the file, or start the menu in the host's folder");
        });
    }

    void CheckFolders() {
        const std::string core = PathOf("Core");
        if (FolderExists(core))
            ErrorIfNot("used for new files", core, WhyNoFilesIn(core), atEveryStart);
        else
            Error(core, std::string("this folder is missing") + atEveryStart +
                            "restore it from the host's installation");
        ErrorIfNot("used for new files", shownBase, WhyNoFilesIn(shownBase), atEveryStart);
    }

    // A read-only file is not touched, whatever the rights to it.
    void CheckRewriting(const std::string& path) {
        const std::string reason =
            IsReadOnly(path) ? PlatformText(ERROR_ACCESS_DENIED) : WhyNotWritable(path);
        ErrorIfNot("written", path, reason,
                   ": the menu ends with an error at a start that finds another folder in it; ");
        if (const auto kept = WhyNotDeletable(path); reason.empty() && !kept.empty())
            Warn(
                path,
                "cannot be replaced (" + kept +
                    "): the menu writes over it, which a lost connection may cut off in the middle; give the "
                    "operators the right to modify it");
    }

    // The menu looks for it in its own folder and in that of Windows. That may be another than the host's:
    // then this program lies there, too.
    void CheckLibrary() {
        constexpr const char* menu = "ObrinMenu.exe";
        const bool elsewhere = !MayBeThere(PathOf(menu)) && MayBeThere(OwnFolder() + menu);
        const auto beside = [&](const char* name) { return elsewhere ? OwnFolder() + name : PathOf(name); };
        std::string image;
        try {
            image = ReadFileBytes(beside(menu));
        } catch (const RunTimeError&) {
            image.clear(); // the menu never reads it, either
        }
        const std::string path = beside("Corvel.dll");
        for (const auto& library : {path, SystemFolder(ImageMachine(image) == machine32) + "\\Corvel.dll"}) {
            if (!MayBeThere(library))
                continue;
            const auto look = [&] { AddFor(library, CheckSupportLibrary(ReadFileBytes(library), image)); };
            Look(library, atEveryStart, look, "read");
            return;
        }
        Error(path, std::string("missing") + atEveryStart + "put the library there that came with the menu");
    }

    // What cannot be told is left to a look at the file itself.
    static bool MayBeThere(const std::string& path) {
        try {
            return FileExists(path);
        } catch (const RunTimeError&) {
            return true;
        }
    }

    void CheckPicture() {
        const std::string path = PathOf("Startup.bmp");
        if (!NormalFileExists(path))
            return;
        try {
            ScalePicture(LoadPicture(FullPath(path)).get(), USER_DEFAULT_SCREEN_DPI);
        } catch (const RunTimeError& error) {
            Error(path, "no picture that can be shown (" + PlatformText(error.Code()) + ")" + atEveryStart +
                            "save the picture as a BMP file, or remove it");
        }
    }

    void CheckSharedFiles() {
        CheckSharedFile("Core\\TempOut.tmp", atEveryStart);
        CheckSharedFile("UserWSID.sys", atEveryStart,
                        [this](std::string_view bytes) { return CheckUserRecords(bytes, isLeadByte); });
        CheckSharedFile("Updated.txt", ": the menu ends with an error when an operator runs a program; ",
                        CheckUpdateRegister);
        for (int wsid = 1; wsid <= mostWsid; ++wsid) {
            // Of the listing: to ask a share for each would take long.
            if (const auto name = MarkerFileName(wsid); listed.contains(UpperCase(name)))
                CheckSharedFile(name, ": the menu of this workstation ends with an error at every start; ");
        }
    }

    void CheckSharedFile(const std::string& name, const char* consequence,
                         const std::function<std::vector<Finding>(std::string_view)>& checkContents = {}) {
        const std::string path = PathOf(name);
        Look(path, consequence, [&] {
            if (FolderExists(path))
                Error(path, "cannot be written (a folder of this name is there)" + std::string(consequence) +
                                "remove it");
            if (!FileExists(path))
                return; // made when it is needed
            if (checkContents)
                AddFor(path, checkContents(ReadFileBytes(path)));
            ErrorIfNot("written", path, WhyNotWritable(path), consequence);
        });
    }

    // What cannot be looked at keeps nothing else from being looked at.
    void Look(const std::string& path, const char* consequence, const std::function<void()>& look,
              const char* right = "modify") {
        try {
            look();
        } catch (const RunTimeError& error) {
            ErrorIfNot("read", path, PlatformText(error.Code()), consequence, right);
        }
    }

    void ErrorIfNot(const char* done, const std::string& path, const std::string& reason,
                    const char* consequence, const char* right = "modify") {
        if (!reason.empty())
            Error(path, std::string("cannot be ") + done + " (" + reason + ")" + consequence +
                            "close what keeps it open, or give the operators the right to " + right + " it");
    }

    std::string base;      // in front of the names of files
    std::string shownBase; // the folder itself
    LeadByteTest isLeadByte = CodePageLeadByteTest();
    std::set<std::string> listed;   // names of everything in the folder, in capitals
    std::vector<std::string> names; // of menu files, sorted
    FolderCheck check;
};

} // namespace

std::string WhyNotListed(const FolderEntry& file) {
    if (!IsMenuFileName(file.name))
        return "the name does not end in .mnu in small letters: the menu does not list this system; rename "
               "the file";
    return file.isHidden ? "hidden or a system file: the menu does not list this system; take the attribute "
                           "away (attrib -h -s)"
                         : "";
}

FolderCheck CheckFolder(const std::string& folder) {
    return Installation(folder).Check();
}

} // namespace obrin
