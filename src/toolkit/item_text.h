#pragma once
#include "baselib/gbk.h"
#include "toolkit/platform.h"
#include <commctrl.h>

// The text of an item of a common control, made wide; or the word that the control is to ask for it.
class ItemTextCL
{
public:
    explicit ItemTextCL(const char* text)
        : isAskedFor_(text == LPSTR_TEXTCALLBACKA)
        , wide_(isAskedFor_ ? std::wstring() : slGbkToShown(text))
    {
    }
    wchar_t* PointerM() { return isAskedFor_ ? LPSTR_TEXTCALLBACKW : wide_.data(); } // As long as this lives.

private:
    bool isAskedFor_;
    std::wstring wide_;
};
