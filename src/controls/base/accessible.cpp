#include "controls/base/accessible.h"
#include <atomic>
#include <cstring>
#include <oleacc.h>

namespace {

// As constants, so that no program needs the library that has them.
constexpr IID AccessibleIid
    = { 0x618736E0, 0x3C3D, 0x11CF, { 0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71 } };
constexpr IID DispatchIid
    = { 0x00020400, 0x0000, 0x0000, { 0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46 } };
constexpr IID UnknownIid = { 0x00000000, 0x0000, 0x0000, { 0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46 } };

bool isSame(REFIID a, const IID& b)
{
    return std::memcmp(&a, &b, sizeof b) == 0;
}

// The functions of the system's accessibility, loaded when a screen reader first asks.
struct AccessibilityCL
{
    template <class FunctionTP> static FunctionTP FindM(const wchar_t* library, const char* name)
    {
        const HMODULE module = ::LoadLibraryW(library);
        return module != nullptr ? reinterpret_cast<FunctionTP>(::GetProcAddress(module, name)) : nullptr;
    }
    LRESULT(WINAPI* answer)
    (REFIID, WPARAM, IUnknown*)
        = FindM<LRESULT(WINAPI*)(REFIID, WPARAM, IUnknown*)>(L"oleacc.dll", "LresultFromObject");
    HRESULT(WINAPI* standard)
    (HWND, LONG, REFIID, void**)
        = FindM<HRESULT(WINAPI*)(HWND, LONG, REFIID, void**)>(L"oleacc.dll", "CreateStdAccessibleObject");
    BSTR(WINAPI* text)
    (const OLECHAR*, UINT) = FindM<BSTR(WINAPI*)(const OLECHAR*, UINT)>(L"oleaut32.dll", "SysAllocStringLen");
    bool IsThereM() const { return answer != nullptr && standard != nullptr && text != nullptr; }
};

const AccessibilityCL& accessibility()
{
    static const AccessibilityCL found;
    return found;
}

#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // Of the interface, which Release() destroys as ours.
#endif

// The system's object for a window with another name and perhaps another role. It lives as long as its
// clients keep it, the control's object or not.
class NamedAccessibleCL : public IAccessible
{
public:
    NamedAccessibleCL(HWND window, IAccessible* standard, const std::wstring& name, long role)
        : window_(window)
        , standard_(standard)
        , name_(name)
        , role_(role)
    {
    }
    virtual ~NamedAccessibleCL() { standard_->Release(); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override
    {
        if (found == nullptr) {
            return E_POINTER;
        }
        const bool isOwn = isSame(iid, AccessibleIid) || isSame(iid, DispatchIid) || isSame(iid, UnknownIid);
        *found = isOwn ? static_cast<IAccessible*>(this) : nullptr;
        if (isOwn) {
            AddRef();
        }
        return isOwn ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++uses_; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --uses_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override
    {
        return standard_->GetTypeInfoCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT at, LCID locale, ITypeInfo** info) override
    {
        return standard_->GetTypeInfo(at, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(
        REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override
    {
        return standard_->GetIDsOfNames(iid, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters,
        VARIANT* result, EXCEPINFO* exception, UINT* argument) override
    {
        return standard_->Invoke(id, iid, locale, flags, parameters, result, exception, argument);
    }

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override
    {
        return isSelf(child) ? give(name_, name) : standard_->get_accName(child, name);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override
    {
        if (role_ == 0 || !isSelf(child)) {
            return standard_->get_accRole(child, role);
        }
        if (role == nullptr) {
            return E_INVALIDARG;
        }
        role->vt = VT_I4;
        role->lVal = role_;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override
    {
        return isPressed(child) ? give(L"Press", action) : standard_->get_accDefaultAction(child, action);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override
    {
        if (!isPressed(child)) {
            return standard_->accDoDefaultAction(child);
        }
        if (!::IsWindowEnabled(window_)) {
            return DISP_E_MEMBERNOTFOUND; // As a button of the system.
        }
        RECT client {};
        ::GetClientRect(window_, &client);
        const LPARAM middle = MAKELPARAM(client.right / 2, client.bottom / 2);
        // Who asks must not wait for what the press does, such as a message box.
        ::PostMessageW(window_, WM_LBUTTONDOWN, MK_LBUTTON, middle);
        ::PostMessageW(window_, WM_LBUTTONUP, 0, middle);
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override
    {
        return standard_->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override
    {
        return standard_->get_accChildCount(count);
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** found) override
    {
        return standard_->get_accChild(child, found);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override
    {
        return standard_->get_accValue(child, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override
    {
        return standard_->get_accDescription(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override
    {
        return standard_->get_accState(child, state);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override
    {
        return standard_->get_accHelp(child, help);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override
    {
        return standard_->get_accHelpTopic(file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* key) override
    {
        return standard_->get_accKeyboardShortcut(child, key);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override { return standard_->get_accFocus(child); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override
    {
        return standard_->get_accSelection(children);
    }
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override
    {
        return standard_->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(
        long* left, long* top, long* width, long* height, VARIANT child) override
    {
        return standard_->accLocation(left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override
    {
        return standard_->accNavigate(direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override
    {
        return standard_->accHitTest(x, y, child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override
    {
        return standard_->put_accName(child, name);
    }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override
    {
        return standard_->put_accValue(child, value);
    }

private:
    static bool isSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }
    bool isPressed(const VARIANT& child) const { return role_ == ROLE_SYSTEM_PUSHBUTTON && isSelf(child); }
    static HRESULT give(const std::wstring& text, BSTR* to)
    {
        if (to == nullptr) {
            return E_INVALIDARG;
        }
        *to = accessibility().text(text.data(), static_cast<UINT>(text.size()));
        return *to != nullptr ? S_OK : E_OUTOFMEMORY;
    }

    const HWND window_;
    IAccessible* const standard_;
    const std::wstring name_;
    const long role_;
    std::atomic<ULONG> uses_ { 1 };
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

} // namespace

LRESULT slAnswerAccessible(HWND window, WPARAM wParam, const std::wstring& name, long role)
{
    const AccessibilityCL& system = accessibility();
    void* standard = nullptr;
    if (!system.IsThereM() || FAILED(system.standard(window, OBJID_CLIENT, AccessibleIid, &standard))) {
        return 0;
    }
    auto* const object = new NamedAccessibleCL(window, static_cast<IAccessible*>(standard), name, role);
    const LRESULT answer = system.answer(AccessibleIid, wParam, object);
    object->Release();
    return answer;
}
