#include "dialog/basic_dialog.h"
#include "baselib/gbk.h"
#include "dialog/reading_diagnostics.h"
#include "toolkit/life.h"

namespace {

constexpr UINT StartPeriod = 50; // Milliseconds.

// An empty dialog.
constexpr struct
{
    DLGTEMPLATE header { WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 100, 100 };
    WORD menu { 0 };
    WORD windowClass { 0 };
    WORD title { 0 };
} EmptyTemplate {};

} // namespace

IMPLEMENT_DYNCREATE(DuBasicDialogCL, CDialog)

BEGIN_MESSAGE_MAP(DuBasicDialogCL, CDialog)
ON_WM_PAINT()
ON_WM_TIMER()
END_MESSAGE_MAP()

DuBasicDialogCL::DuBasicDialogCL() = default;

DuBasicDialogCL::DuBasicDialogCL(int templateId, CWnd* parent)
    : CDialog(static_cast<UINT>(templateId), parent)
{
}

int DuBasicDialogCL::SetConfigFileM(const char* path)
{
    if (path == nullptr || *path == '\0') {
        return 0;
    }
    slCopyText(configFile_, TextSize, path);
    return 1;
}

int DuBasicDialogCL::CreateM(CWnd* parent)
{
    return CreateIndirect(&EmptyTemplate.header, parent) ? 1 : 0;
}

int DuBasicDialogCL::DoModalM(CWnd* parent)
{
    InitModalIndirect(&EmptyTemplate.header, parent);
    return static_cast<int>(DoModal());
}

BOOL DuBasicDialogCL::OnInitDialog()
{
    const LifeCL life(this); // The application may delete it, or destroy its window, whenever it is told.
    const auto isThere = [this, &life] { return life.IsAliveM() && m_hWnd != nullptr; };
    DestroyM();
    if (isThere()) {
        stretch_ = {}; // That of a window before.
        InitDlgM(this, 1);
    }
    if (isThere()) {
        CDialog::OnInitDialog(); // The host's data exchange finds the controls.
    }
    if (isThere()) {
        timerId_ = SetTimer(StartTimer, StartPeriod, nullptr);
    }
    return TRUE;
}

void DuBasicDialogCL::EndDialog(int result)
{
    const ValidationPauseCL ending(m_hWnd);
    CDialog::EndDialog(result);
}

int DuBasicDialogCL::DrawBkGroundM(CDC* dc, int x, int y)
{
    if (dc == nullptr) {
        return 0;
    }
    if (background_.GetWidthM() == 0) {
        return 0;
    }
    background_.DrawBitmapM(dc, x, y, nullptr);
    return 1;
}

void DuBasicDialogCL::OnPaint()
{
    CPaintDC dc(this);
    leaveOutOpaqueM(dc.m_hDC);
    DrawBkGroundM(&dc, 0, 0);
}

void DuBasicDialogCL::OnTimer(UINT_PTR id)
{
    const LifeCL life(this);
    const HWND window = m_hWnd;
    const auto isThere = [this, &life, window] { return life.IsAliveM() && m_hWnd == window; };
    if (id == StartTimer) {
        ShowWindow(SW_SHOW);
        if (isThere() && timerId_ != 0) {
            KillTimer(timerId_);
        }
    }
    if (isThere()) {
        CDialog::OnTimer(id);
    }
}
