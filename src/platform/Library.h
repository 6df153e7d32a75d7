// Loads a DLL while the program runs, and finds its functions.
#pragma once

#include "platform/Handle.h"

namespace obrin {

/// Loads a DLL from the folders that `folders` names (LOAD_LIBRARY_SEARCH_...) and no others. Returns null
/// and sets the last error if it cannot be loaded.
inline UniqueLibrary LoadLibraryFrom(const char* name, DWORD folders) {
    return UniqueLibrary(LoadLibraryExA(name, nullptr, folders));
}

/// Returns null and sets the last error if the library is null or has no function of this name.
template <class Routine>
Routine FindRoutine(const UniqueLibrary& library, const char* name) {
    return reinterpret_cast<Routine>(GetProcAddress(library.get(), name));
}

} // namespace obrin
