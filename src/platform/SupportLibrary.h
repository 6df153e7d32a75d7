// The suite's support library, Corvel.dll: registry text under HKEY_LOCAL_MACHINE.
#pragma once

#include "platform/Handle.h"

#include <string>

namespace obrin {

class SupportLibrary {
public:
    /// Looks for the library in the program's own folder and the system's, nowhere else. Throws RunTimeError
    /// when it or one of its routines is not there.
    SupportLibrary();

    /// The text of a value; empty when there is none.
    std::string GetRegValue(HKEY root, const char* keyPath, const char* valueName) const;

    /// Stores a text. Whether it could be stored is not examined: a standard user may not be allowed to.
    void SetRegValue(HKEY root, const char* keyPath, const char* valueName, const std::string& text) const;

private:
    using GetRoutine = wchar_t*(__stdcall*)(HKEY, const char*, const char*);
    using SetRoutine = LONG(__stdcall*)(HKEY, const char*, const char*, const char*);

    UniqueLibrary library;
    GetRoutine getRegValue;
    SetRoutine setRegValue;
};

} // namespace obrin
