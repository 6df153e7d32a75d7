// Corvel.dll, the suite's support library: registry texts as strings of bytes in the ANSI code page.
// Both routines are exported undecorated and __stdcall in either bitness, as the suite's programs call them.

#include "platform/WindowsApi.h"

#include <oleauto.h>

#include <cstring>

#define EXPORTED extern "C" __declspec(dllexport)

/// The text of a REG_SZ or REG_EXPAND_SZ value (unexpanded) as a string of bytes that the caller frees with
/// SysFreeString; an empty string when the key or the value is missing or is no text.
EXPORTED BSTR __stdcall GetRegValue(HKEY root, const char* keyPath, const char* valueName) {
    constexpr DWORD flags = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    DWORD size = 0; // bytes, the ending NUL counted
    LONG result = RegGetValueA(root, keyPath, valueName, flags, nullptr, nullptr, &size);
    // Again when another program has stored a longer text between two calls.
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

/// Stores a text as REG_SZ, creating the key when it is missing. Returns the platform's error code.
EXPORTED LONG __stdcall SetRegValue(HKEY root, const char* keyPath, const char* valueName, const char* text) {
    return RegSetKeyValueA(root, keyPath, valueName, REG_SZ, text, static_cast<DWORD>(std::strlen(text) + 1));
}
