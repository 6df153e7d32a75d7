#include "platform/SupportLibrary.h"

#include "common/Installation.h"
#include "platform/Failure.h"
#include "platform/Library.h"

namespace obrin {

namespace {

UniqueLibrary Load() {
    UniqueLibrary library = LoadLibraryFrom(supportLibraryFile, LOAD_LIBRARY_SEARCH_APPLICATION_DIR |
                                                                    LOAD_LIBRARY_SEARCH_SYSTEM32);
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

SupportLibrary::SupportLibrary()
    : library(Load())
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
