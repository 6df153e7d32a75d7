#include "checker/MenuFileChecks.h"

#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Workstation.h"

#include <atomic>
#include <cstring>
#include <future>
#include <span>

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

// A file's text, a part at a time: what is at work stays in the processor's cache, however large the file is.
class FileText {
public:
    FileText(const std::string& path, std::string& memory)
        : file(path, File::Use::Read)
        , buffer(memory) {}

    std::string_view ReadOn(std::string_view rest) {
        std::memmove(buffer.data(), rest.data(), rest.size());
        if (rest.size() > buffer.size() / 2)
            buffer.resize(2 * buffer.size()); // for a very long line
        const auto room = std::span(buffer).subspan(rest.size());
        return std::string_view(buffer).substr(0, rest.size() + file.Read(room));
    }

private:
    File file;
    std::string& buffer;
};

MenuCheck CheckMenuFile(const std::string& path, std::string& memory, const CodePage& codePage,
                        MenuWishes wishes) {
    try {
        FileText text(path, memory);
        return CheckMenuFile([&](std::string_view rest) { return text.ReadOn(rest); }, codePage, wishes);
    } catch (const RunTimeError& error) {
        return Unreadable(PlatformText(error.Code()));
    }
}

} // namespace

std::vector<MenuCheck> CheckMenuFiles(const std::vector<std::string>& paths, MenuWishes wishes,
                                      CheckProgress& progress) {
    const CodePage codePage{.isLeadByte = CodePageLeadByteTest(), .isUtf8 = GetACP() == CP_UTF8};
    std::vector<MenuCheck> checks(paths.size());
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        std::string memory(1 << 20, '\0'); // the same for all: new memory takes longer than reading into it
        for (auto file = next++; file < paths.size(); file = next++) {
            checks[file] = CheckMenuFile(paths[file], memory, codePage, wishes);
            ++progress.done;
        }
    };
    // Two at a time: while one file is waited for, the bytes of the other are looked at.
    auto others = std::async(std::launch::async, work);
    work();
    others.get();
    return checks;
}

} // namespace obrin
