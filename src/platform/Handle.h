// Smart pointers that own handles of Windows.
#pragma once

#include "platform/WindowsApi.h"

#include <oleauto.h>

#include <memory>
#include <type_traits>

namespace obrin {

/// Closes the handle of a file, a process or another kernel object. Do not use it for INVALID_HANDLE_VALUE.
struct CloseKernelObject {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
struct DestroyMenuHandle {
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};
struct CloseSearch {
    void operator()(HANDLE search) const { FindClose(search); }
};
struct DeleteGdiObject {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
struct DestroyIconHandle {
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
struct UnloadLibrary {
    void operator()(HMODULE library) const { FreeLibrary(library); }
};
struct FreeString {
    void operator()(OLECHAR* text) const { SysFreeString(text); }
};
struct ReleaseObject {
    void operator()(IUnknown* object) const { object->Release(); }
};
struct DeleteMemoryDc {
    void operator()(HDC context) const { DeleteDC(context); }
};

using UniqueHandle = std::unique_ptr<void, CloseKernelObject>;
using UniqueFile = UniqueHandle;
using UniqueSearch = std::unique_ptr<void, CloseSearch>;
using UniqueMenu = std::unique_ptr<std::remove_pointer_t<HMENU>, DestroyMenuHandle>;
using UniqueFont = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteGdiObject>;
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;
using UniqueIcon = std::unique_ptr<std::remove_pointer_t<HICON>, DestroyIconHandle>;
using UniqueDc = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteMemoryDc>;
using UniqueLibrary = std::unique_ptr<std::remove_pointer_t<HMODULE>, UnloadLibrary>;
using UniqueString = std::unique_ptr<OLECHAR, FreeString>; // a BSTR
template <class Interface>
using UniqueObject = std::unique_ptr<Interface, ReleaseObject>; // a COM object

} // namespace obrin
