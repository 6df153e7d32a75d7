#include "platform/SupportLibrary.h"

#include "common/Installation.h"
#include "platform/Failure.h"
#include "platform/Library.h"

namespace obrin {

namespace {

UniqueLibrary LoadFromFolder(const std::string& folder) {
    std::wstring wide(folder.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, folder.data(),
                                                             static_cast<int>(folder.size()), wide.data(),
                                                             static_cast<int>(wide.size()))));
    const auto added = AddDllDirectory(wide.c_str());
    UniqueLibrary library =
        LoadLibraryFrom(supportLibraryFile, LOAD_LIBRARY_SEARCH_USER_DIRS | LOAD_LIBRARY_SEARCH_SYSTEM32);
    const DWORD error = GetLastError();
    RemoveDllDirectory(added);
    SetLastError(error);
    return library;
}

UniqueLibrary Load(const std::string& folder) {
    UniqueLibrary library = folder.empty()
                                ? LoadLibraryFrom(supportLibraryFile, LOAD_LIBRARY_SEARCH_APPLICATION_DIR |
                                                                          LOAD_LIBRARY_SEARCH_SYSTEM32)
                                : LoadFromFolder(folder);
    if (library)
        return library;
    if (GetLastError() == ERROR_BAD_EXE_FORMAT) // the text of Windows for it does not name the library
        throw RunTimeError(PlatformError::InvalidData, std::string(supportLibraryFile) + " is not a " +
                                                           std::to_string(8 * sizeof(void*)) +
                                                           "-bit library. Use the one that came with " +
                                                           menuProgram);
    ThrowLastError(std::string("Loading ") + supportLibraryFile);
}

template <class Routine>
Routine Find(const UniqueLibrary& library, const char* name) {
    const auto routine = FindRoutine<Routine>(library, name);
    if (routine == nullptr)
        ThrowLastError(std::string("Looking for ") + name + " in " + supportLibraryFile);
    return routine;
}

} // namespace

SupportLibrary::SupportLibrary(const std::string& programFolder)
    : library(Load(programFolder))
    , getRegValue(Find<GetRoutine>(library, "GetRegValue"))
    , setRegValue(Find<SetRoutine>(library, "SetRegValue")) {}

std::string SupportLibrary::GetRegValue(HKEY root, const char* keyPath, const char* valueName) const {
    // The library returns a BSTR that holds bytes of the code page, not wide characters.
    const UniqueString text(getRegValue(root, keyPath, valueName));
    return {reinterpret_cast<const char*>(text.get()), SysStringByteLen(text.get())};
}

void SupportLibrary::SetRegValue(HKEY root, const char* keyPath, const char* valueName,
                                 const std::string& text) const {
    setRegValue(root, keyPath, valueName, text.c_str());
}

} // namespace obrin
