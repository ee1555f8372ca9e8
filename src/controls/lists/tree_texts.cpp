// The texts of a tree in the reader's language, and as the file has them.
#include "controls/lists/filling.h"
#include "controls/lists/tree.h"

namespace {

std::wstring shownText(HWND tree, HTREEITEM item)
{
    std::wstring text(128, L'\0');
    for (;;) {
        TVITEMW what {};
        what.mask = TVIF_TEXT;
        what.hItem = item;
        what.pszText = text.data();
        what.cchTextMax = static_cast<int>(text.size());
        if (::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&what)) == 0
            || what.pszText == nullptr || what.pszText == LPSTR_TEXTCALLBACKW) {
            return {};
        }
        const std::size_t length = std::wcslen(what.pszText);
        if (what.pszText != text.data() || length + 1 < text.size()) {
            return std::wstring(what.pszText, length);
        }
        text.assign(text.size() * 4, L'\0');
    }
}

// The one behind an item in a walk over all.
HTREEITEM nextItem(const CTreeCtrl& tree, HTREEITEM item)
{
    HTREEITEM next = tree.GetChildItem(item);
    while (next == nullptr && item != nullptr) {
        next = tree.GetNextSiblingItem(item);
        item = tree.GetParentItem(item);
    }
    return next;
}

} // namespace

const ValueTextCL* TreeOriginalsCL::FindM(HTREEITEM item, const std::wstring& shown) const
{
    if (texts_ == nullptr) {
        return nullptr;
    }
    // An item may be gone, and another one have its handle.
    const auto found = texts_->find(item);
    return found != texts_->end() && found->second.shown == shown ? &found->second.original : nullptr;
}

void TreeOriginalsCL::PutM(HTREEITEM item, const std::wstring& shown, const ValueTextCL& original)
{
    if (texts_ == nullptr) {
        texts_ = std::make_unique<std::unordered_map<HTREEITEM, TextCL>>();
    }
    (*texts_)[item] = { shown, original };
}

ValueTextCL DuTreeCL::ItemTextM(HTREEITEM item) const
{
    if (!originals_.EmptyM()) {
        if (const ValueTextCL* const original = originals_.FindM(item, shownText(m_hWnd, item))) {
            return *original;
        }
    }
    return ValueTextCL(GetItemText(item).GetString());
}

void DuTreeCL::TranslateM(const TranslatorTP& translate)
{
    if (m_hWnd == nullptr) {
        return;
    }
    const FillingCL filling(this);
    for (HTREEITEM item = GetRootItem(); item != nullptr; item = nextItem(*this, item)) {
        const ValueTextCL original = ItemTextM(item);
        const ValueTextCL translation = translate(original);
        if (!translation.IsNoneM()) {
            std::wstring shown = translation.WideM();
            TVITEMW what {};
            what.mask = TVIF_TEXT;
            what.hItem = item;
            what.pszText = shown.data();
            if (::SendMessageW(m_hWnd, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&what)) != 0) {
                originals_.PutM(item, shown, original);
            }
        }
    }
}
