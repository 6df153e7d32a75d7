// A library of the platform or the suite that is loaded while the program runs, and its routines.
#pragma once

#include "platform/Handle.h"

namespace obrin {

/// Looks for the library only in the folders that `where` names (LOAD_LIBRARY_SEARCH_...). Null with the last
/// error when it cannot be loaded.
inline UniqueLibrary LoadLibraryFrom(const char* name, DWORD where) {
    return UniqueLibrary(LoadLibraryExA(name, nullptr, where));
}

/// Null with the last error when the library was not loaded or has no routine of this name.
template <class Routine>
Routine FindRoutine(const UniqueLibrary& library, const char* name) {
    return reinterpret_cast<Routine>(GetProcAddress(library.get(), name));
}

} // namespace obrin
