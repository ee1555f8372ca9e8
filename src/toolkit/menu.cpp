#include "toolkit/menu.h"
#include "baselib/gbk.h"
#include "toolkit/module.h"
#include "toolkit/text.h"
#include "toolkit/thread_state.h"
#include <utility>
#include <vector>

IMPLEMENT_DYNAMIC(CMenu, CObject)

namespace {

// With these flags the text is no text but a value of the caller's, or nothing.
bool hasTextM(UINT flags)
{
    return (flags & (MF_BITMAP | MF_OWNERDRAW | MF_SEPARATOR)) == 0;
}

// The text of an item, made wide; what is no text stays as it is.
class ItemWordCL
{
public:
    ItemWordCL(UINT flags, LPCSTR text)
        : isText_(text != nullptr && hasTextM(flags))
        , word_(reinterpret_cast<LPCWSTR>(text))
        , wide_(isText_ ? slGbkToShown(text) : std::wstring())
    {
    }
    operator LPCWSTR() const { return isText_ ? wide_.c_str() : word_; }

private:
    bool isText_;
    LPCWSTR word_;
    std::wstring wide_;
};

HBITMAP bitmapOfM(const CBitmap* bitmap)
{
    return bitmap == nullptr ? nullptr : static_cast<HBITMAP>(*bitmap);
}

LPCWSTR pictureWordM(const CBitmap* bitmap)
{
    return reinterpret_cast<LPCWSTR>(bitmapOfM(bitmap));
}

} // namespace

HMENU CMenu::GetSafeHmenu() const
{
    const CMenu* const volatile self = this; // may be null, as the compiler does not know
    return self == nullptr ? nullptr : self->m_hMenu;
}

BOOL CMenu::Attach(HMENU menu)
{
    if (menu == nullptr) {
        return FALSE;
    }
    m_hMenu = menu;
    ThreadStateCL::ThisM().permanentMenus[menu] = this;
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU menu = std::exchange(m_hMenu, nullptr);
    if (ThreadStateCL* state = menu == nullptr ? nullptr : ThreadStateCL::KnownM()) {
        const auto found = state->permanentMenus.find(menu);
        if (found != state->permanentMenus.end() && found->second == this) {
            state->permanentMenus.erase(found);
        }
    }
    return menu;
}

BOOL CMenu::DestroyMenu()
{
    return m_hMenu != nullptr && ::DestroyMenu(Detach());
}

CMenu* CMenu::FromHandle(HMENU menu)
{
    CMenu* permanent = FromHandlePermanent(menu);
    return permanent != nullptr ? permanent : ThreadStateCL::ThisM().menus.GetM<CMenu, &CMenu::m_hMenu>(menu);
}

CMenu* CMenu::FromHandlePermanent(HMENU menu)
{
    const auto& permanent = ThreadStateCL::ThisM().permanentMenus;
    const auto found = permanent.find(menu);
    return found == permanent.end() ? nullptr : found->second;
}

BOOL CMenu::loadM(LPCWSTR name)
{
    return m_hMenu == nullptr && Attach(::LoadMenuW(AfxGetResourceHandle(), name));
}

BOOL CMenu::LoadMenu(LPCSTR name)
{
    return loadM(slGbkToShown(name).c_str());
}

BOOL CMenu::LoadMenuIndirect(const void* menuTemplate)
{
    return m_hMenu == nullptr && Attach(::LoadMenuIndirectW(menuTemplate));
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, LPCSTR text)
{
    return ::AppendMenuW(m_hMenu, flags, id, ItemWordCL(flags, text));
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, const CBitmap* bitmap)
{
    return ::AppendMenuW(m_hMenu, flags | MF_BITMAP, id, pictureWordM(bitmap));
}

BOOL CMenu::InsertMenu(UINT before, UINT flags, UINT_PTR id, LPCSTR text)
{
    return ::InsertMenuW(m_hMenu, before, flags, id, ItemWordCL(flags, text));
}

BOOL CMenu::InsertMenu(UINT before, UINT flags, UINT_PTR id, const CBitmap* bitmap)
{
    return ::InsertMenuW(m_hMenu, before, flags | MF_BITMAP, id, pictureWordM(bitmap));
}

BOOL CMenu::ModifyMenu(UINT item, UINT flags, UINT_PTR id, LPCSTR text)
{
    return ::ModifyMenuW(m_hMenu, item, flags, id, ItemWordCL(flags, text));
}

BOOL CMenu::ModifyMenu(UINT item, UINT flags, UINT_PTR id, const CBitmap* bitmap)
{
    return ::ModifyMenuW(m_hMenu, item, flags | MF_BITMAP, id, pictureWordM(bitmap));
}

BOOL CMenu::SetMenuItemBitmaps(
    UINT item, UINT flags, const CBitmap* uncheckedBitmap, const CBitmap* checkedBitmap)
{
    return ::SetMenuItemBitmaps(m_hMenu, item, flags, bitmapOfM(uncheckedBitmap), bitmapOfM(checkedBitmap));
}

int CMenu::GetMenuString(UINT item, CString& to, UINT flags) const
{
    std::vector<wchar_t> text(static_cast<size_t>(::GetMenuStringW(m_hMenu, item, nullptr, 0, flags)) + 1);
    const int used = ::GetMenuStringW(m_hMenu, item, text.data(), static_cast<int>(text.size()), flags);
    to = WideToGbk(text.data(), used).c_str();
    return to.GetLength();
}

int CMenu::GetMenuString(UINT item, LPSTR to, int size, UINT flags) const
{
    CString text;
    GetMenuString(item, text, flags);
    return slCopyText(to, size, std::string(text.GetString()));
}
