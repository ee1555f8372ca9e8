#include "toolkit/tool_tip_ctrl.h"
#include "toolkit/module.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace {

// Which tool is meant. Of the size that every version of the platform's library takes.
TOOLINFOW toolM(CWnd* wnd, UINT_PTR id)
{
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    if (id != 0) {
        tool.hwnd = wnd->m_hWnd;
        tool.uId = id;
    } else {
        tool.hwnd = ::GetParent(wnd->m_hWnd);
        tool.uId = reinterpret_cast<UINT_PTR>(wnd->m_hWnd);
        tool.uFlags = TTF_IDISHWND;
    }
    return tool;
}

LPARAM toolPointerM(const TOOLINFOW& tool)
{
    return reinterpret_cast<LPARAM>(&tool);
}

} // namespace

BOOL CToolTipCtrl::Create(CWnd* parent, DWORD style)
{
    NeedCommonControls();
    // Without a size of its own the window takes that of its text.
    return CreateEx(0, "tooltips_class32", nullptr, WS_POPUP | style, CW_USEDEFAULT, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, parent == nullptr ? nullptr : parent->m_hWnd, nullptr);
}

BOOL CToolTipCtrl::addToolM(CWnd* wnd, LPCWSTR text, LPCRECT rect, UINT_PTR id)
{
    TOOLINFOW tool = toolM(wnd, id);
    if (rect != nullptr) {
        tool.rect = *rect;
    }
    tool.lpszText = const_cast<wchar_t*>(text);
    return SendMessage(TTM_ADDTOOLW, 0, toolPointerM(tool)) != 0;
}

BOOL CToolTipCtrl::AddTool(CWnd* wnd, UINT textId, LPCRECT rect, UINT_PTR id)
{
    TOOLINFOW tool = toolM(wnd, id);
    if (rect != nullptr) {
        tool.rect = *rect;
    }
    tool.hinst = AfxGetResourceHandle();
    tool.lpszText = MAKEINTRESOURCEW(textId);
    return SendMessage(TTM_ADDTOOLW, 0, toolPointerM(tool)) != 0;
}

void CToolTipCtrl::DelTool(CWnd* wnd, UINT_PTR id)
{
    SendMessage(TTM_DELTOOLW, 0, toolPointerM(toolM(wnd, id)));
}

void CToolTipCtrl::updateTextM(LPCWSTR text, CWnd* wnd, UINT_PTR id)
{
    TOOLINFOW tool = toolM(wnd, id);
    tool.lpszText = const_cast<wchar_t*>(text);
    SendMessage(TTM_UPDATETIPTEXTW, 0, toolPointerM(tool));
}

void CToolTipCtrl::UpdateTipText(UINT textId, CWnd* wnd, UINT_PTR id)
{
    TOOLINFOW tool = toolM(wnd, id);
    tool.hinst = AfxGetResourceHandle();
    tool.lpszText = MAKEINTRESOURCEW(textId);
    SendMessage(TTM_UPDATETIPTEXTW, 0, toolPointerM(tool));
}

void CToolTipCtrl::GetText(CString& to, CWnd* wnd, UINT_PTR id) const
{
    std::vector<wchar_t> text(INFOTIPSIZE);
    TOOLINFOW tool = toolM(wnd, id);
    tool.lpszText = text.data();
    SendMessage(TTM_GETTEXTW, text.size(), toolPointerM(tool));
    to = WideToGbk(text.data()).c_str();
}

void CToolTipCtrl::SetToolRect(CWnd* wnd, UINT_PTR id, LPCRECT rect)
{
    TOOLINFOW tool = toolM(wnd, id);
    tool.rect = *rect;
    SendMessage(TTM_NEWTOOLRECTW, 0, toolPointerM(tool));
}

BOOL CToolTipCtrl::HitTest(CWnd* wnd, CPoint at, LPTOOLINFOW found) const
{
    TTHITTESTINFOW test = {};
    test.hwnd = wnd->m_hWnd;
    test.pt = at;
    test.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!SendMessage(TTM_HITTESTW, 0, reinterpret_cast<LPARAM>(&test))) {
        return FALSE;
    }
    *found = test.ti;
    return TRUE;
}

BOOL CToolTipCtrl::GetToolInfo(LPTOOLINFOW to, CWnd* wnd, UINT_PTR id) const
{
    TOOLINFOW tool = toolM(wnd, id);
    tool.lpszText = to->lpszText;
    if (!SendMessage(TTM_GETTOOLINFOW, 0, toolPointerM(tool))) {
        return FALSE;
    }
    *to = tool;
    return TRUE;
}

void CToolTipCtrl::SetToolInfo(LPTOOLINFOW tool)
{
    SendMessage(TTM_SETTOOLINFOW, 0, toolPointerM(*tool));
}
