#pragma once
#include "toolkit/toolkit.h"
#include <vector>

// A dialog template in memory: caption and whatever controls are added. Atoms of the system's classes: 0x80
// button, 0x81 edit, 0x82 static, 0x83 list box, 0x84 scroll bar, 0x85 combo box.
class BareTemplateCL
{
public:
    explicit BareTemplateCL(DWORD style = WS_POPUP)
    {
        const DLGTEMPLATE head = { style, 0, 0, 10, 10, 120, 60 };
        putM(&head, sizeof head);
        textM(L""); // menu
        textM(L""); // class
        textM(L"dialog");
    }
    BareTemplateCL& AddM(WORD id, WORD atom, DWORD style)
    {
        if (words_.size() % 2 != 0) {
            words_.push_back(0);
        }
        const DLGITEMTEMPLATE item = { style | WS_CHILD | WS_VISIBLE, 0, 5, 5, 40, 12, id };
        putM(&item, sizeof item);
        words_.insert(words_.end(), { 0xFFFF, atom, 0, 0 });
        ++reinterpret_cast<DLGTEMPLATE*>(words_.data())->cdit;
        return *this;
    }
    operator LPCDLGTEMPLATE() const { return reinterpret_cast<LPCDLGTEMPLATE>(words_.data()); }

private:
    void putM(const void* from, size_t bytes)
    {
        const WORD* first = static_cast<const WORD*>(from);
        words_.insert(words_.end(), first, first + bytes / sizeof(WORD));
    }
    void textM(const wchar_t* text) { putM(text, (wcslen(text) + 1) * sizeof(wchar_t)); }
    std::vector<WORD> words_;
};

// One edit field (id 100), OK and Cancel.
class TemplateCL : public BareTemplateCL
{
public:
    explicit TemplateCL(DWORD style = WS_POPUP)
        : BareTemplateCL(style)
    {
        AddM(100, 0x81, WS_TABSTOP);
        AddM(IDOK, 0x80, WS_TABSTOP | BS_DEFPUSHBUTTON);
        AddM(IDCANCEL, 0x80, WS_TABSTOP);
    }
};

class OwnerCL : public CWnd
{
public:
    OwnerCL() { CreateEx(0, nullptr, "owner", WS_POPUP | WS_VISIBLE, 0, 0, 200, 200, nullptr, nullptr); }
};
