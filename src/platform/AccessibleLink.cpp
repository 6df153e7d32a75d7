#include "platform/AccessibleLink.h"

#include "platform/Handle.h"

#include <oleacc.h>

namespace obrin {

namespace {

const IID accessibleId = __uuidof(IAccessible); // MinGW's libraries have another one for IID_IAccessible

// Loaded from the system's folder when a screen reader first asks; all null without the library.
struct Accessibility {
    HMODULE library = LoadLibraryExA("oleacc.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32); // stays
    decltype(&CreateStdAccessibleObject) create = reinterpret_cast<decltype(create)>(
        reinterpret_cast<void*>(GetProcAddress(library, "CreateStdAccessibleObject")));
    decltype(&LresultFromObject) handOut = reinterpret_cast<decltype(handOut)>(
        reinterpret_cast<void*>(GetProcAddress(library, "LresultFromObject")));
};

const Accessibility& Loaded() {
    static const Accessibility accessibility;
    return accessibility;
}

// An interface of the platform's object model has no virtual destructor: objects count their references.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// The platform's own account of the label, but for what makes it a link.
class AccessibleLink final : public IAccessible {
public:
    AccessibleLink(HWND linkLabel, IAccessible* standardObject)
        : label(linkLabel)
        , standard(standardObject) {}
    AccessibleLink(const AccessibleLink&) = delete;
    AccessibleLink& operator=(const AccessibleLink&) = delete;

    STDMETHOD(get_accRole)(VARIANT, VARIANT* role) override {
        role->vt = VT_I4;
        role->lVal = ROLE_SYSTEM_LINK;
        return S_OK;
    }
    STDMETHOD(get_accState)(VARIANT child, VARIANT* state) override {
        const HRESULT result = standard->get_accState(child, state);
        if (SUCCEEDED(result) && state->vt == VT_I4)
            state->lVal = (state->lVal & ~STATE_SYSTEM_READONLY) | STATE_SYSTEM_LINKED |
                          STATE_SYSTEM_FOCUSABLE | (GetFocus() == label ? STATE_SYSTEM_FOCUSED : 0);
        return result;
    }
    STDMETHOD(get_accDefaultAction)(VARIANT, BSTR* action) override {
        *action = SysAllocString(L"Jump");
        return S_OK;
    }
    STDMETHOD(accDoDefaultAction)(VARIANT) override {
        PostMessageA(label, WM_KEYDOWN, VK_RETURN, 0); // whoever asks does not wait for what is opened
        return S_OK;
    }

    STDMETHOD(QueryInterface)(REFIID id, void** object) override {
        if (id != IID_IUnknown && id != IID_IDispatch && id != accessibleId) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IAccessible*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHOD_(ULONG, AddRef)() override { return ++references; }
    STDMETHOD_(ULONG, Release)() override {
        const ULONG left = --references;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHOD(GetTypeInfoCount)(UINT* count) override { return standard->GetTypeInfoCount(count); }
    STDMETHOD(GetTypeInfo)(UINT index, LCID locale, ITypeInfo** info) override {
        return standard->GetTypeInfo(index, locale, info);
    }
    STDMETHOD(GetIDsOfNames)(REFIID id, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return standard->GetIDsOfNames(id, names, count, locale, ids);
    }
    STDMETHOD(Invoke)
    (DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
     EXCEPINFO* exception, UINT* argument) override {
        return standard->Invoke(member, id, locale, flags, parameters, result, exception, argument);
    }
    STDMETHOD(get_accParent)(IDispatch** parent) override { return standard->get_accParent(parent); }
    STDMETHOD(get_accChildCount)(LONG* count) override { return standard->get_accChildCount(count); }
    STDMETHOD(get_accChild)(VARIANT child, IDispatch** object) override {
        return standard->get_accChild(child, object);
    }
    STDMETHOD(get_accName)(VARIANT child, BSTR* name) override { return standard->get_accName(child, name); }
    STDMETHOD(get_accValue)(VARIANT child, BSTR* value) override {
        return standard->get_accValue(child, value);
    }
    STDMETHOD(get_accDescription)(VARIANT child, BSTR* text) override {
        return standard->get_accDescription(child, text);
    }
    STDMETHOD(get_accHelp)(VARIANT child, BSTR* help) override { return standard->get_accHelp(child, help); }
    STDMETHOD(get_accHelpTopic)(BSTR* file, VARIANT child, LONG* topic) override {
        return standard->get_accHelpTopic(file, child, topic);
    }
    STDMETHOD(get_accKeyboardShortcut)(VARIANT child, BSTR* keys) override {
        return standard->get_accKeyboardShortcut(child, keys);
    }
    STDMETHOD(get_accFocus)(VARIANT* child) override { return standard->get_accFocus(child); }
    STDMETHOD(get_accSelection)(VARIANT* children) override { return standard->get_accSelection(children); }
    STDMETHOD(accSelect)(LONG flags, VARIANT child) override {
        if (flags != SELFLAG_TAKEFOCUS)
            return standard->accSelect(flags, child);
        SetFocus(label); // which a label by itself refuses
        return S_OK;
    }
    STDMETHOD(accLocation)(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override {
        return standard->accLocation(left, top, width, height, child);
    }
    STDMETHOD(accNavigate)(LONG direction, VARIANT start, VARIANT* end) override {
        return standard->accNavigate(direction, start, end);
    }
    STDMETHOD(accHitTest)(LONG left, LONG top, VARIANT* child) override {
        return standard->accHitTest(left, top, child);
    }
    STDMETHOD(put_accName)(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHOD(put_accValue)(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~AccessibleLink() = default;

    HWND label;
    UniqueObject<IAccessible> standard;
    ULONG references = 1; // used by the window's thread alone
};

} // namespace

LRESULT AnswerAsLink(HWND label, WPARAM flags, LONG object) {
    const Accessibility& accessibility = Loaded();
    void* standard = nullptr;
    if (accessibility.create == nullptr || accessibility.handOut == nullptr ||
        FAILED(accessibility.create(label, object, accessibleId, &standard)))
        return 0;
    auto* link = new AccessibleLink(label, static_cast<IAccessible*>(standard));
    const LRESULT answer = accessibility.handOut(accessibleId, flags, link);
    link->Release(); // whoever was answered holds it
    return answer;
}

} // namespace obrin
