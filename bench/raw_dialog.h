#pragma once
#include "dialog/dialog_font.h"
#include "mixed_dialog.h"
#include <algorithm>

// The windows of a mixed dialog by plain calls, as a program would make them that knows nothing but the
// window system.
namespace mixed {

// Both dialogs are made from this: hidden, without an owner.
inline constexpr struct
{
    DLGTEMPLATE header { WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 100, 100 };
    WORD menu { 0 };
    WORD windowClass { 0 };
    WORD title { 0 };
} EmptyTemplate {};

// A dialog of the library that builds only when it is told to, and never shows itself.
class HostCL : public DuBasicDialogCL
{
public:
    explicit HostCL(const char* file)
    {
        SetConfigFileM(file);
        CreateIndirect(&EmptyTemplate.header, nullptr);
    }
    BOOL OnInitDialog() override { return FALSE; } // It takes no focus.
    void BuildM() { InitDlgM(this, 1); }
};

class RawDialogCL
{
public:
    // isInOrder: the windows are created in their final order, so that none is moved.
    explicit RawDialogCL(int count, bool isInOrder = false)
        : parts_(parts(count))
        , isInOrder_(isInOrder)
    {
        if (isInOrder) {
            std::sort(parts_.begin(), parts_.end(), isAbove);
        }
        for (const PartCL& part : parts_) {
            texts_.push_back(slGbkToWide(part.TextM().c_str()));
        }
        for (int line = 0; line < Lines; ++line) {
            lines_.push_back(slGbkToWide(lineText(line).c_str()));
        }
        window_ = ::CreateDialogIndirectParamW(
            ::GetModuleHandleW(nullptr), &EmptyTemplate.header, nullptr, &procM, 0);
    }
    RawDialogCL(const RawDialogCL&) = delete;
    RawDialogCL& operator=(const RawDialogCL&) = delete;
    ~RawDialogCL() { DestroyM(); }

    HWND HandleM() const { return window_; }
    void DestroyM()
    {
        ::DestroyWindow(window_);
        window_ = nullptr;
        ::DeleteObject(font_);
        font_ = nullptr;
    }

    void BuildM()
    {
        ::SetWindowLongW(
            window_, GWL_STYLE, static_cast<LONG>(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_DLGFRAME));
        ::SetWindowTextW(window_, L"\u53C2\u6570\u8BBE\u7F6E");
        ::SetWindowPos(window_, nullptr, 100, 80, 420, 260, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        struct MadeCL
        {
            PartCL part;
            HWND window;
        };
        std::vector<MadeCL> made;
        made.reserve(parts_.size());
        for (size_t i = 0; i < parts_.size(); ++i) {
            made.push_back({ parts_[i], createM(parts_[i], texts_[i].c_str()) });
        }
        LOGFONTA gbk = slDialogFont(FontOption);
        LOGFONTW look {};
        look.lfHeight = gbk.lfHeight;
        look.lfWeight = gbk.lfWeight;
        look.lfCharSet = gbk.lfCharSet;
        look.lfPitchAndFamily = gbk.lfPitchAndFamily;
        slGbkToWide(gbk.lfFaceName).copy(look.lfFaceName, LF_FACESIZE - 1);
        font_ = ::CreateFontIndirectW(&look);
        if (!isInOrder_) {
            std::sort(made.begin(), made.end(),
                [](const MadeCL& a, const MadeCL& b) { return isAbove(a.part, b.part); });
            HWND above = HWND_TOP;
            for (const MadeCL& one : made) {
                ::SetWindowPos(one.window, above, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
                above = one.window;
            }
        }
        for (const MadeCL& one : made) {
            ::SendMessageW(one.window, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
            if (one.part.kind == ListBox) {
                ::SendMessageW(one.window, LB_SETITEMHEIGHT, 0, ItemHeight);
            }
        }
    }

private:
    static INT_PTR CALLBACK procM(HWND, UINT, WPARAM, LPARAM) { return FALSE; }
    static bool isAbove(const PartCL& a, const PartCL& b) { return a.place < b.place; }

    HWND createM(const PartCL& part, const wchar_t* text) const
    {
        struct LookCL
        {
            const wchar_t* name;
            DWORD style;
            DWORD exStyle;
        };
        static const LookCL looks[] = {
            { L"Static", WS_GROUP | SS_NOTIFY, 0 },
            { L"Edit", WS_GROUP | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE },
            { L"ListBox", WS_VSCROLL | WS_TABSTOP | LBS_NOINTEGRALHEIGHT | LBS_NOTIFY, WS_EX_CLIENTEDGE },
            { L"ComboBox", WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWNLIST, 0 },
            { L"Button", WS_TABSTOP | BS_AUTOCHECKBOX, 0 },
            { L"Button", WS_TABSTOP | BS_PUSHBUTTON, 0 },
        };
        const LookCL& look = looks[part.kind];
        // An edit is given its text as a change, of which its parent is told.
        const HWND window = ::CreateWindowExW(look.exStyle, look.name, part.kind == Edit ? L"" : text,
            look.style | ChildStyle, part.rect.left, part.rect.top, part.rect.right, part.rect.bottom,
            window_, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(part.IdM())), ::GetModuleHandleW(nullptr),
            nullptr);
        if (part.kind == Edit) {
            ::SetWindowTextW(window, text);
        } else if (part.kind == ListBox || part.kind == ComboBox) {
            const bool isCombo = part.kind == ComboBox;
            for (size_t line = 0; line < lines_.size(); ++line) {
                const LRESULT at = ::SendMessageW(window, isCombo ? CB_ADDSTRING : LB_ADDSTRING, 0,
                    reinterpret_cast<LPARAM>(lines_[line].c_str()));
                ::SendMessageW(window, isCombo ? CB_SETITEMDATA : LB_SETITEMDATA, static_cast<WPARAM>(at),
                    static_cast<LPARAM>(line));
            }
        }
        return window;
    }

    std::vector<PartCL> parts_;
    std::vector<std::wstring> texts_;
    std::vector<std::wstring> lines_;
    bool isInOrder_;
    HWND window_ { nullptr };
    HFONT font_ { nullptr };
};

} // namespace mixed
