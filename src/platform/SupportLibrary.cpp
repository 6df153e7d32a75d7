#include "platform/SupportLibrary.h"

#include "platform/Failure.h"

namespace obrin {

namespace {

constexpr const char* libraryName = "Corvel.dll";

HMODULE Load() {
    const HMODULE module = LoadLibraryExA(libraryName, nullptr,
                                          LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (module != nullptr)
        return module;
    if (GetLastError() == ERROR_BAD_EXE_FORMAT) // whose text has a gap in the place of the name
        throw RunTimeError(PlatformError::InvalidData,
                           std::string(libraryName) + " is no library for a program of " +
                               std::to_string(8 * sizeof(void*)) +
                               " bits. Beside ObrinMenu.exe belongs the one that was delivered with it");
    ThrowLastError(std::string("Loading ") + libraryName);
}

template <class Routine>
Routine Find(HMODULE module, const char* name) {
    const FARPROC routine = GetProcAddress(module, name);
    if (routine == nullptr)
        ThrowLastError(std::string("Looking for ") + name + " in " + libraryName);
    return reinterpret_cast<Routine>(routine);
}

} // namespace

SupportLibrary::SupportLibrary()
    : library(Load())
    , getRegValue(Find<GetRoutine>(library.get(), "GetRegValue"))
    , setRegValue(Find<SetRoutine>(library.get(), "SetRegValue")) {}

std::string SupportLibrary::GetRegValue(HKEY root, const char* keyPath, const char* valueName) const {
    // The library's strings hold bytes of the code page, not wide characters.
    const UniqueString text(getRegValue(root, keyPath, valueName));
    return {reinterpret_cast<const char*>(text.get()), SysStringByteLen(text.get())};
}

void SupportLibrary::SetRegValue(HKEY root, const char* keyPath, const char* valueName,
                                 const std::string& text) const {
    setRegValue(root, keyPath, valueName, text.c_str());
}

} // namespace obrin
