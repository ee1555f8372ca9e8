#include "controls/text/tool_tip.h"
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"

namespace {

constexpr char ClassName[] = "MyToolTipCtrl";
constexpr wchar_t WideClassName[] = L"MyToolTipCtrl";
constexpr DWORD Style = WS_POPUP | WS_VISIBLE | WS_CLIPSIBLINGS | WS_BORDER | 1;
constexpr UINT_PTR TimerId = 55430;
constexpr UINT TimerPeriod = 300; // Milliseconds.
constexpr unsigned Lifetime = 1500;
constexpr COLORREF TextBackground = 0xDFFFFF;
constexpr int TextOrigin = 1;

} // namespace

BEGIN_MESSAGE_MAP(uToolTipCtrl, CWnd)
ON_WM_TIMER()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

int uToolTipCtrl::InitialM()
{
    static ATOM registered = 0;
    if (registered == 0) {
        WNDCLASSW description {};
        description.style = CS_HREDRAW | CS_VREDRAW;
        description.lpfnWndProc = ::DefWindowProcW;
        description.hInstance = AfxGetInstanceHandle();
        // A module without these resources gives none.
        description.hIcon = ::LoadIconW(description.hInstance, MAKEINTRESOURCEW(32513));
        description.hCursor = ::LoadCursorW(description.hInstance, MAKEINTRESOURCEW(32512));
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        description.lpszClassName = WideClassName;
        registered = ::RegisterClassW(&description);
    }
    return registered != 0 ? 1 : 0;
}

int uToolTipCtrl::ShowHelpM(CWnd* owner, const CRect& rect, const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    if (m_hWnd != nullptr && owner != owner_) {
        DestroyWindow();
    }
    const CString newText(text);
    int result = 1;
    if (m_hWnd == nullptr) {
        // Created visible it would take the focus from the field that the user is typing in.
        result = CreateEx(WS_EX_TOOLWINDOW, ClassName, ClassName, Style & ~WS_VISIBLE, rect, owner, 0);
        if (result == 1) {
            ShowWindow(SW_SHOWNA);
            ownerWindow_ = owner != nullptr ? owner->GetSafeHwnd() : nullptr;
        }
    } else if (newText != text_) {
        MoveWindow(&rect, TRUE);
        Invalidate(TRUE); // A longer text before this one.
    }
    text_ = newText;
    if (result != 1) {
        return result;
    }
    owner_ = owner;
    SetTimer(TimerId, TimerPeriod);
    shownAt_ = ::GetTickCount();
    Invalidate(FALSE);
    return 1;
}

void uToolTipCtrl::initFontM(CDC* dc)
{
    if (dc == nullptr) {
        return;
    }
    dc->GetCurrentFont()->GetLogFont(&font_);
    font_.lfCharSet = GB2312_CHARSET;
    slCopyText(font_.lfFaceName, LF_FACESIZE, DialogFontFace);
}

void uToolTipCtrl::OnTimer(UINT_PTR id)
{
    if (id == TimerId && ::GetTickCount() - shownAt_ >= Lifetime) {
        PostMessage(WM_CLOSE);
    }
    CWnd::OnTimer(id);
}

void uToolTipCtrl::OnPaint()
{
    CPaintDC dc(this);
    const COLORREF before = dc.SetBkColor(TextBackground);
    dc.TextOut(TextOrigin, TextOrigin, text_);
    dc.SetBkColor(before);
}

void uToolTipCtrl::OnLButtonDown(UINT flags, CPoint at)
{
    PostMessage(WM_CLOSE);
    CWnd::OnLButtonDown(flags, at);
}

int uToolTipCtrl::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE; // The user goes on typing where he was.
}
