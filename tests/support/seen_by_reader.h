#pragma once
#include <oleacc.h>
#include <string>
#include <windows.h>

// A window as a screen reader in this process meets it.
class SeenByReaderCL
{
public:
    explicit SeenByReaderCL(HWND window)
    {
        ::CoInitialize(nullptr);
        // {618736E0-3C3D-11CF-810C-00AA00389B71}
        const IID accessible
            = { 0x618736E0, 0x3C3D, 0x11CF, { 0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71 } };
        using FindTP = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
        const auto find = reinterpret_cast<FindTP>(
            ::GetProcAddress(::LoadLibraryW(L"oleacc.dll"), "AccessibleObjectFromWindow"));
        void* found = nullptr;
        if (find != nullptr
            && SUCCEEDED(find(window, static_cast<DWORD>(OBJID_CLIENT), accessible, &found))) {
            object_ = static_cast<IAccessible*>(found);
        }
        self_.vt = VT_I4;
        self_.lVal = CHILDID_SELF;
    }
    SeenByReaderCL(const SeenByReaderCL&) = delete;
    SeenByReaderCL& operator=(const SeenByReaderCL&) = delete;
    ~SeenByReaderCL()
    {
        if (object_ != nullptr) {
            object_->Release();
        }
        ::CoUninitialize();
    }

    IAccessible* ObjectM() const { return object_; }
    std::wstring NameM() const { return textM(&IAccessible::get_accName); }
    std::wstring ActionM() const { return textM(&IAccessible::get_accDefaultAction); }
    long RoleM() const { return numberM(&IAccessible::get_accRole); }
    long StateM() const { return numberM(&IAccessible::get_accState); }
    RECT PlaceM() const
    {
        long left = 0;
        long top = 0;
        long width = 0;
        long height = 0;
        if (object_ != nullptr) {
            object_->accLocation(&left, &top, &width, &height, self_);
        }
        return { left, top, left + width, top + height };
    }
    bool PressM() const { return object_ != nullptr && object_->accDoDefaultAction(self_) == S_OK; }

private:
    template <class GetterTP> std::wstring textM(GetterTP get) const
    {
        BSTR text = nullptr;
        if (object_ == nullptr || (object_->*get)(self_, &text) != S_OK || text == nullptr) {
            return L"none";
        }
        const std::wstring found = text;
        ::SysFreeString(text);
        return found;
    }
    template <class GetterTP> long numberM(GetterTP get) const
    {
        VARIANT number {};
        return object_ != nullptr && (object_->*get)(self_, &number) == S_OK && number.vt == VT_I4
            ? number.lVal
            : -1;
    }

    IAccessible* object_ { nullptr };
    VARIANT self_ {};
};
