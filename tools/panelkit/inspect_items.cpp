#include "inspect_items.h"
#include "application.h"
#include <commctrl.h>

namespace {

// The messages of the two classes that hold a list of texts with data.
struct ItemMessagesCL
{
    UINT count;
    UINT length;
    UINT text;
    UINT data;
};
constexpr ItemMessagesCL ListBoxMessages { LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_GETITEMDATA };
constexpr ItemMessagesCL ComboBoxMessages { CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_GETITEMDATA };

JsonTP itemsOf(HWND window, const ItemMessagesCL& messages, bool hasTexts)
{
    JsonTP items = JsonTP::array();
    const LRESULT count = ::SendMessageW(window, messages.count, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const WPARAM index = static_cast<WPARAM>(i);
        std::wstring text;
        if (hasTexts) {
            text.resize(static_cast<size_t>(::SendMessageW(window, messages.length, index, 0)) + 1);
            text.resize(static_cast<size_t>(
                ::SendMessageW(window, messages.text, index, reinterpret_cast<LPARAM>(text.data()))));
        }
        const auto data = static_cast<int>(::SendMessageW(window, messages.data, index, 0));
        items.push_back({ { "text", printedOf(text) }, { "data", data } });
    }
    return items;
}

std::string cellOf(HWND window, int row, int column)
{
    wchar_t text[520] = L"";
    LVITEMW item {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 520;
    ::SendMessageW(window, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return printedOf(text);
}

void addTable(HWND window, JsonTP& control)
{
    JsonTP columns = JsonTP::array();
    JsonTP rows = JsonTP::array();
    wchar_t text[520] = L"";
    LVCOLUMNW column {};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = text;
    column.cchTextMax = 520;
    int columnCount = 0;
    while (::SendMessageW(
               window, LVM_GETCOLUMNW, static_cast<WPARAM>(columnCount), reinterpret_cast<LPARAM>(&column))
        != 0) {
        columns.push_back({ { "text", printedOf(text) }, { "width", column.cx } });
        ++columnCount;
    }
    const auto rowCount = static_cast<int>(::SendMessageW(window, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < rowCount; ++row) {
        JsonTP texts = JsonTP::array();
        for (int i = 0; i < columnCount; ++i) {
            texts.push_back(cellOf(window, row, i));
        }
        rows.push_back(std::move(texts));
    }
    control["columns"] = std::move(columns);
    control["rows"] = std::move(rows);
}

HTREEITEM nextItem(HWND window, UINT which, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(
        ::SendMessageW(window, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

JsonTP treeItem(HWND window, HTREEITEM handle)
{
    wchar_t text[520] = L"";
    TVITEMW item {};
    item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_HANDLE;
    item.hItem = handle;
    item.pszText = text;
    item.cchTextMax = 520;
    ::SendMessageW(window, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return { { "text", printedOf(text) }, { "data", static_cast<int>(item.lParam) },
        { "children", JsonTP::array() } };
}

// Items from a first one on, with all below them. No recursion on the window's side: a chain may be as deep
// as its author likes, so the open levels are kept here.
JsonTP treeOf(HWND window)
{
    struct LevelCL
    {
        JsonTP items = JsonTP::array();
        HTREEITEM next;
    };
    std::vector<LevelCL> levels;
    levels.push_back({ JsonTP::array(), nextItem(window, TVGN_ROOT, nullptr) });
    for (;;) {
        LevelCL& level = levels.back();
        if (level.next != nullptr) {
            HTREEITEM item = level.next;
            level.items.push_back(treeItem(window, item));
            level.next = nextItem(window, TVGN_NEXT, item);
            levels.push_back({ JsonTP::array(), nextItem(window, TVGN_CHILD, item) });
        } else if (levels.size() > 1) {
            JsonTP children = std::move(level.items);
            levels.pop_back();
            levels.back().items.back()["children"] = std::move(children);
        } else {
            return std::move(level.items);
        }
    }
}

} // namespace

void addItems(HWND window, const wchar_t* windowClass, JsonTP& control)
{
    const std::wstring name = windowClass;
    const LONG style = ::GetWindowLongW(window, GWL_STYLE);
    if (name == L"ListBox") {
        const bool ownerDrawn = (style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0;
        control["items"] = itemsOf(window, ListBoxMessages, !ownerDrawn || (style & LBS_HASSTRINGS) != 0);
    } else if (name == L"ComboBox") {
        control["items"] = itemsOf(window, ComboBoxMessages, true);
    } else if (name == L"Button") {
        const LONG type = style & BS_TYPEMASK;
        if (type == BS_AUTORADIOBUTTON || type == BS_RADIOBUTTON || type == BS_AUTOCHECKBOX
            || type == BS_CHECKBOX) {
            control["checked"] = ::SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
        }
    } else if (name == L"SysListView32") {
        addTable(window, control);
    } else if (name == L"SysTreeView32") {
        control["tree"] = treeOf(window);
    }
}
