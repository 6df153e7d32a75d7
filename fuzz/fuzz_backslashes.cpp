#include "Fuzz.h"

#include "settings/FrameWork.h"
#include "startup/HostKeys.h"

// A "\" that is the second byte of a character ends no folder and is no key of its own.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string text(Text(data, size));
    std::erase(text, '\r'); // of CR LF no key is the LF
    std::vector<bool> isSecond(text.size() + 1);
    for (std::size_t i = 0; i < text.size(); ++i)
        isSecond[i + 1] = !isSecond[i] && IsLeadByte(text[i]);

    const auto codes = obrin::HostKeyCodes(
        text, [](std::string same) { return same; }, IsLeadByte);
    Require(codes.size() == text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        Require(codes[i] == (text[i] == '\\' && !isSecond[i] ? 220 : static_cast<std::uint8_t>(text[i])));

    std::size_t walked = 0;
    const auto walk = [&](const std::string& folder) {
        Require(text.starts_with(folder) ? folder.ends_with('\\') && !isSecond[folder.size() - 1]
                                         : folder == text + '\\');
        Require(folder.size() > walked);
        walked = folder.size();
        return true;
    };
    obrin::EnsurePath(text, false, {.exists = walk, .create = {}, .isLeadByte = IsLeadByte});
    return 0;
}
