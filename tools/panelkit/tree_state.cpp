#include "tree_state.h"
#include "toolkit/toolkit.h"
#include <map>
#include <set>

namespace {

HTREEITEM itemAfter(HWND tree, UINT which, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(
        ::SendMessageW(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

std::wstring itemText(HWND tree, HTREEITEM item)
{
    wchar_t text[600] = L"";
    TVITEMW asked {};
    asked.mask = TVIF_TEXT;
    asked.hItem = item;
    asked.pszText = text;
    asked.cchTextMax = 600;
    ::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return text;
}

// Calls see(item, name) for every item, parents first: a loop, as a tree may be deeper than the stack.
template <class SeeTP> void eachItem(HWND tree, SeeTP&& see)
{
    std::map<HTREEITEM, std::wstring> names;
    std::map<std::wstring, int> twins;
    HTREEITEM parent = nullptr;
    HTREEITEM item = itemAfter(tree, TVGN_ROOT, nullptr);
    while (item != nullptr) {
        std::wstring name = names[parent] + L'\n' + itemText(tree, item);
        const int twin = twins[name]++;
        if (twin > 0) {
            name += L'\t' + std::to_wstring(twin);
        }
        names[item] = name;
        see(item, name);
        HTREEITEM next = itemAfter(tree, TVGN_CHILD, item);
        if (next != nullptr) {
            parent = item;
        }
        for (HTREEITEM above = item; next == nullptr && above != nullptr;
             above = itemAfter(tree, TVGN_PARENT, above)) {
            next = itemAfter(tree, TVGN_NEXT, above);
            parent = itemAfter(tree, TVGN_PARENT, above);
        }
        item = next;
    }
}

bool isOpen(HWND tree, HTREEITEM item)
{
    return (::SendMessageW(tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_EXPANDED)
               & TVIS_EXPANDED)
        != 0;
}

} // namespace

void noteTree(HWND tree, ControlStateCL* state)
{
    const HTREEITEM selected = itemAfter(tree, TVGN_CARET, nullptr);
    eachItem(tree, [&](HTREEITEM item, const std::wstring& name) {
        if (item == selected) {
            state->selected.push_back({ 0, name });
        }
        if (isOpen(tree, item)) {
            state->open.push_back(name);
        }
    });
}

void giveTree(HWND tree, const ControlStateCL& state)
{
    const std::set<std::wstring> open(state.open.begin(), state.open.end());
    HTREEITEM selected = nullptr;
    eachItem(tree, [&](HTREEITEM item, const std::wstring& name) {
        if (isOpen(tree, item) != (open.count(name) > 0)) {
            ::SendMessageW(tree, TVM_EXPAND, open.count(name) > 0 ? TVE_EXPAND : TVE_COLLAPSE,
                reinterpret_cast<LPARAM>(item));
        }
        if (!state.selected.empty() && state.selected[0].text == name) {
            selected = item;
        }
    });
    if (selected != nullptr) {
        ::SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(selected));
    }
}
