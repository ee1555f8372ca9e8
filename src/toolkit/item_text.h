#pragma once
#include "baselib/gbk.h"
#include "toolkit/text.h"
#include <commctrl.h>
#include <cstring>
#include <cwchar>
#include <vector>

// The text of an item of a common control, made wide; or the word that the control is to ask for it.
class ItemTextCL
{
public:
    // From GBK; LPSTR_TEXTCALLBACK is that word.
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

// A structure with a GBK text as its wide counterpart; both have the same layout. textBit: the bit of the
// mask that says that the text counts.
template <class WideTP, UINT textBit> class WideItemCL
{
public:
    // A copy of the structure, which is not written to.
    template <class GbkTP>
    explicit WideItemCL(const GbkTP& item)
        : text_((item.mask & textBit) != 0 ? item.pszText : nullptr)
    {
        static_assert(sizeof(WideTP) == sizeof(GbkTP), "the wide counterpart");
        std::memcpy(&wide_, &item, sizeof wide_);
        wide_.pszText = text_.PointerM();
    }
    WideTP* PointerM() { return &wide_; } // As long as this lives.

private:
    ItemTextCL text_;
    WideTP wide_;
};

// Fills a structure with a GBK text by asking for its wide counterpart. The text is cut between characters to
// cchTextMax bytes. ask(WideTP*): false where there is no such item.
template <class WideTP, UINT textBit, class GbkTP, class AskTP> BOOL AskGbkItem(GbkTP* item, AskTP ask)
{
    static_assert(sizeof(WideTP) == sizeof(GbkTP), "the wide counterpart");
    char* const to = item->pszText;
    const int size = item->cchTextMax;
    const bool hasText = (item->mask & textBit) != 0 && to != nullptr && size > 0;
    // No character takes less than a byte.
    std::vector<wchar_t> text(static_cast<size_t>(hasText ? size : 1));
    WideTP wide;
    std::memcpy(&wide, item, sizeof wide);
    wide.pszText = text.data();
    wide.cchTextMax = static_cast<int>(text.size());
    if (!ask(&wide)) {
        return FALSE;
    }
    const wchar_t* const got = wide.pszText;
    std::memcpy(item, &wide, sizeof wide);
    item->pszText = to;
    item->cchTextMax = size;
    if (hasText) {
        slCopyText(to, size, got == LPSTR_TEXTCALLBACKW ? std::string() : WideToGbk(got));
    }
    return TRUE;
}

// The whole text of an item whose control doesn't tell a length, in GBK. ask(WideTP*): whether there is one;
// mask and index are its own matter.
template <class WideTP, class AskTP> std::string WholeItemText(AskTP ask)
{
    std::vector<wchar_t> text(128);
    for (;;) {
        WideTP item = {};
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        if (!ask(&item) || item.pszText == nullptr || item.pszText == LPSTR_TEXTCALLBACKW) {
            return {};
        }
        if (item.pszText != text.data() || std::wcslen(item.pszText) + 1 < text.size()) {
            return WideToGbk(item.pszText);
        }
        text.assign(text.size() * 4, 0);
    }
}
