// Corvel.dll, the suite's support library: reads and writes texts in the registry. A BSTR holds bytes of the
// ANSI code page here. Both builds export the routines as __stdcall with undecorated names.

#include "platform/WindowsApi.h"

#include <oleauto.h>

#include <cstring>

#define EXPORTED extern "C" __declspec(dllexport)

/// Returns the text of a REG_SZ or REG_EXPAND_SZ value, not expanded; an empty text if there is none. The
/// caller frees it with SysFreeString.
EXPORTED BSTR __stdcall GetRegValue(HKEY root, const char* keyPath, const char* valueName) {
    constexpr DWORD flags = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    DWORD size = 0; // in bytes, with the final NUL
    LONG result = RegGetValueA(root, keyPath, valueName, flags, nullptr, nullptr, &size);
    // Retries if another program has stored a longer text between the two calls.
    while (result == ERROR_SUCCESS || result == ERROR_MORE_DATA) {
        const BSTR buffer = SysAllocStringByteLen(nullptr, size);
        if (buffer == nullptr)
            break;
        const auto* bytes = reinterpret_cast<const char*>(buffer);
        result = RegGetValueA(root, keyPath, valueName, flags, nullptr, buffer, &size);
        const BSTR text = result == ERROR_SUCCESS
                              ? SysAllocStringByteLen(bytes, static_cast<UINT>(std::strlen(bytes)))
                              : nullptr;
        SysFreeString(buffer);
        if (result == ERROR_SUCCESS)
            return text;
    }
    return SysAllocStringByteLen("", 0);
}

/// Stores a text as REG_SZ. Creates the key if it is missing. Returns the Windows error code.
EXPORTED LONG __stdcall SetRegValue(HKEY root, const char* keyPath, const char* valueName, const char* text) {
    return RegSetKeyValueA(root, keyPath, valueName, REG_SZ, text, static_cast<DWORD>(std::strlen(text) + 1));
}
