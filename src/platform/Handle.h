// Smart pointers that own handles of Windows.
#pragma once

#include "platform/WindowsApi.h"

#include <oleauto.h>

#include <memory>
#include <type_traits>

namespace obrin {

/// Closes a handle with a function of Windows.
template <auto Close>
struct Closer {
    template <class Handle>
    void operator()(Handle handle) const {
        Close(handle);
    }
};
struct ReleaseObject {
    void operator()(IUnknown* object) const { object->Release(); }
};

/// A file, a process or another kernel object. Must not hold INVALID_HANDLE_VALUE.
using UniqueHandle = std::unique_ptr<void, Closer<CloseHandle>>;
using UniqueSearch = std::unique_ptr<void, Closer<FindClose>>;
using UniqueMenu = std::unique_ptr<std::remove_pointer_t<HMENU>, Closer<DestroyMenu>>;
using UniqueFont = std::unique_ptr<std::remove_pointer_t<HFONT>, Closer<DeleteObject>>;
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, Closer<DeleteObject>>;
using UniqueIcon = std::unique_ptr<std::remove_pointer_t<HICON>, Closer<DestroyIcon>>;
using UniqueDc = std::unique_ptr<std::remove_pointer_t<HDC>, Closer<DeleteDC>>;
using UniqueLibrary = std::unique_ptr<std::remove_pointer_t<HMODULE>, Closer<FreeLibrary>>;
using UniqueString = std::unique_ptr<OLECHAR, Closer<SysFreeString>>; // a BSTR
template <class Interface>
using UniqueObject = std::unique_ptr<Interface, ReleaseObject>; // a COM object

} // namespace obrin
