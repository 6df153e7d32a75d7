// Calls the suite's support library Corvel.dll, which reads and writes texts in the registry.
#pragma once

#include "platform/Handle.h"

#include <string>

namespace obrin {

class SupportLibrary {
public:
    /// Loads the library from the folder of the program or the system folder of Windows; as a program in
    /// another folder would, if that is given as a full path. Throws RunTimeError if it or one of its
    /// routines is missing.
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
