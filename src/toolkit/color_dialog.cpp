#include "toolkit/color_dialog.h"
#include <algorithm>
#include <array>

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

CColorDialog::CColorDialog(COLORREF initial, DWORD flags, CWnd* parent)
    : CCommonDialog(parent)
    , m_cc {}
{
    m_cc.lStructSize = sizeof m_cc;
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = flags | CC_ENABLEHOOK;
    m_cc.rgbResult = initial;
    if (initial != 0) {
        m_cc.Flags |= CC_RGBINIT;
    }
}

COLORREF* CColorDialog::GetSavedCustomColors()
{
    static std::array<COLORREF, 16> saved = [] {
        std::array<COLORREF, 16> white;
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    return saved.data();
}

INT_PTR CColorDialog::DoModal()
{
    using CallTP = BOOL(WINAPI*)(CHOOSECOLORW*);
    const auto call = reinterpret_cast<CallTP>(reinterpret_cast<void*>(systemCallM("ChooseColorW")));
    CHOOSECOLORW asked = m_cc;
    asked.hwndOwner = m_cc.hwndOwner != nullptr ? m_cc.hwndOwner : ownerM();
    asked.lCustData = reinterpret_cast<LPARAM>(this);
    asked.lpfnHook = &CColorDialog::hookM;
    if (call == nullptr || !call(&asked)) {
        return IDCANCEL;
    }
    m_cc.rgbResult = asked.rgbResult;
    m_cc.Flags = asked.Flags;
    return IDOK;
}

void CColorDialog::SetCurrentColor(COLORREF color)
{
    static const UINT setColor = ::RegisterWindowMessageW(SETRGBSTRINGW);
    SendMessage(setColor, 0, static_cast<LPARAM>(color));
}

UINT_PTR CALLBACK CColorDialog::hookM(HWND hWnd, UINT message, WPARAM, LPARAM lParam)
{
    static const UINT isColorOk = ::RegisterWindowMessageW(COLOROKSTRINGW);
    const auto* given = reinterpret_cast<const CHOOSECOLORW*>(lParam);
    if (message == WM_INITDIALOG) {
        return adoptM(reinterpret_cast<CColorDialog*>(given->lCustData), hWnd);
    }
    if (message != isColorOk) {
        return 0;
    }
    CColorDialog* dialog = DYNAMIC_DOWNCAST(CColorDialog, FromHandlePermanent(hWnd));
    if (dialog == nullptr) {
        return 0;
    }
    dialog->m_cc.rgbResult = given->rgbResult;
    const BOOL stays = dialog->OnColorOK();
    ::SetWindowLongPtrW(hWnd, DWLP_MSGRESULT, stays); // Where some versions of the system look for it.
    return static_cast<UINT_PTR>(stays);
}
