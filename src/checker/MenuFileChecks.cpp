#include "checker/MenuFileChecks.h"

#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Workstation.h"

namespace obrin {

namespace {

MenuCheck Unreadable(const std::string& reason) {
    MenuCheck check;
    check.findings.push_back(
        {.kind = Finding::Kind::Error,
         .line = 0,
         .text = "cannot be read (" + reason +
                 "): the menu ends with an error at every start; close what keeps the file "
                 "open, or give the operators the right to read it"});
    return check;
}

MenuCheck ReadAndCheck(const std::string& path, const CodePage& codePage, MenuWishes wishes) {
    try {
        return CheckMenuFile(ReadFileBytes(path), codePage, wishes);
    } catch (const RunTimeError& error) {
        return Unreadable(PlatformText(error.Code()));
    }
}

} // namespace

std::vector<MenuCheck> CheckMenuFiles(const std::vector<std::string>& paths, MenuWishes wishes,
                                      CheckProgress& progress) {
    const CodePage codePage{.isLeadByte = CodePageLeadByteTest(), .isUtf8 = GetACP() == CP_UTF8};
    std::vector<MenuCheck> checks;
    for (const std::string& path : paths) {
        checks.push_back(ReadAndCheck(path, codePage, wishes));
        ++progress.done;
    }
    return checks;
}

} // namespace obrin
