// Calls the suite's support library Corvel.dll, which reads and writes texts in the registry.
#pragma once

#include "platform/Handle.h"

#include <string>

namespace obrin {

class SupportLibrary {
public:
    /// Loads the library from `programFolder` (a full path; if empty, the folder of this program) or from the
    /// system folder of Windows. Throws RunTimeError if it or one of its routines is missing.
    explicit SupportLibrary(const std::string& programFolder = {});

    /// Returns the text of a value; empty if there is no such value.
    std::string GetRegValue(HKEY root, const char* keyPath, const char* valueName) const;

    /// Stores a text. Ignores errors, because a standard user may have no right to write.
    void SetRegValue(HKEY root, const char* keyPath, const char* valueName, const std::string& text) const;

private:
    using GetRoutine = wchar_t*(__stdcall*)(HKEY, const char*, const char*);
    using SetRoutine = LONG(__stdcall*)(HKEY, const char*, const char*, const char*);

    UniqueLibrary library;
    GetRoutine getRegValue;
    SetRoutine setRegValue;
};

} // namespace obrin
