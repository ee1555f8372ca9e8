#include "preview_dialog.h"
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include <algorithm>
#include <vector>

namespace {

constexpr UINT_PTR RepeatTimer = 1;
constexpr UINT RepeatMilliseconds = 200;

// Handles what is queued; false when nothing was. The time of controls stands still.
bool handleQueued(HWND dialog)
{
    MSG message;
    bool any = false;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message != WM_TIMER || message.hwnd == dialog) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
            any = true;
        }
    }
    return any;
}

bool setStatus(DuBmpButtonCL& button, int status)
{
    return status >= ButtonNormal && status <= ButtonDisabled
        && button.SetBtnStatusM(static_cast<BUTTON_STATUS>(status)) == 1;
}

bool setStatus(DuMultiStateButtonCL& button, int status)
{
    return button.SetCurStatusM(status) == 1;
}

bool setStatus(DuNormalAnimateCL& animation, int frame)
{
    constexpr int Manual = 2;
    return animation.SetCtrlModeM(Manual) == 1 && animation.DispBmpM(frame) == 1;
}

bool setStatus(DuNewRotateBtnCL& button, int index)
{
    button.SetCurIndxM(index);
    button.Invalidate(FALSE);
    return true;
}

template <class ControlTP> bool setStatusOf(CWnd* control, int status)
{
    auto* const one = dynamic_cast<ControlTP*>(control);
    return one != nullptr && setStatus(*one, status);
}

} // namespace

BEGIN_MESSAGE_MAP(PreviewDialogCL, DuBasicDialogCL)
ON_WM_TIMER()
ON_MESSAGE(QueryPermissionMsg, &PreviewDialogCL::onPermissionM)
ON_MESSAGE(ButtonDownMsg, &PreviewDialogCL::onButtonDownM)
ON_MESSAGE(ButtonActionMsg, &PreviewDialogCL::onButtonM)
END_MESSAGE_MAP()

PreviewDialogCL::PreviewDialogCL(const std::string& file, const std::string& language)
    : file_(file)
{
    SetConfigFileM(file.c_str());
    if (!language.empty()) {
        SetLanguageM(language.c_str());
    }
}

BOOL PreviewDialogCL::OnInitDialog()
{
    const BOOL result = DuBasicDialogCL::OnInitDialog();
    AfxGetApp()->m_pMainWnd = this; // Is asked for permission.
    addNewRotateButtonsM();
    return result;
}

void PreviewDialogCL::RebuildM()
{
    newRotateButtons_.clear();
    DestroyM();
    SendMessage(DM_SETDEFID, 0); // The button that was default is gone.
    ::SetWindowTextW(m_hWnd, L"");
    InitDlgM(this, 1);
    addNewRotateButtonsM();
}

void PreviewDialogCL::addNewRotateButtonsM()
{
    VrIOCL io;
    io.OpenM(file_.c_str(), "r");
    DVrNewRotateBtnArr records;
    if (records.FmReadInterfaceM(&io) == 1) {
        for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
            DuNewRotateBtnCL& button = newRotateButtons_.emplace_back();
            const ScaleCL scale(ScaleM());
            button.SetPictureScaleM({ scale, records.ElementAtM(i).GetPositionM() });
            slScaleRecord(records.ElementAtM(i), scale);
            records.InitNewRotateBtnM(i, &button);
            newRotateButtons_.back().Create(this);
        }
    }
}

// Those of the application follow when the dialog comes to another monitor.
LRESULT PreviewDialogCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const int before = ScaleM();
    const LRESULT result = DuBasicDialogCL::WindowProc(message, wParam, lParam);
    if (m_hWnd != nullptr && ScaleM() != before && !newRotateButtons_.empty()) {
        std::vector<int> places;
        for (const DuNewRotateBtnCL& button : newRotateButtons_) {
            places.push_back(button.GetCurIndxM());
        }
        newRotateButtons_.clear();
        addNewRotateButtonsM();
        for (size_t i = 0; i < std::min(places.size(), newRotateButtons_.size()); ++i) {
            newRotateButtons_[i].SetCurIndxM(places[i]);
        }
    }
    return result;
}

LRESULT PreviewDialogCL::onPermissionM(WPARAM wParam, LPARAM)
{
    *reinterpret_cast<int*>(wParam) = 1;
    return 0;
}

LRESULT PreviewDialogCL::onButtonDownM(WPARAM, LPARAM)
{
    SetTimer(RepeatTimer, RepeatMilliseconds, nullptr);
    return 0;
}

// A button with the id of OK or Cancel gets what would close the dialog, Esc and the close box too.
LRESULT PreviewDialogCL::onButtonM(WPARAM wParam, LPARAM)
{
    if (wParam == IDOK || wParam == IDCANCEL) {
        EndDialog(static_cast<int>(wParam));
    }
    return 0;
}

void PreviewDialogCL::OnTimer(UINT_PTR id)
{
    if (id == RepeatTimer) {
        // The mouse tells who is held: a release that turns nothing is not reported.
        auto* const held = dynamic_cast<DuNewRotateBtnCL*>(CWnd::FromHandlePermanent(::GetCapture()));
        if (held != nullptr) {
            held->OnTimerM();
        } else {
            KillTimer(RepeatTimer);
        }
    }
    DuBasicDialogCL::OnTimer(id);
}

bool PreviewDialogCL::SetStatusM(int id, int status)
{
    CWnd* const control = CWnd::FromHandlePermanent(::GetDlgItem(m_hWnd, id));
    return setStatusOf<DuBmpButtonCL>(control, status) || setStatusOf<DuMultiStateButtonCL>(control, status)
        || setStatusOf<DuNormalAnimateCL>(control, status) || setStatusOf<DuNewRotateBtnCL>(control, status);
}

bool PreviewDialogCL::WaitUntilShownM()
{
    const DWORD start = ::GetTickCount();
    while (!IsWindowVisible()) {
        if (::GetTickCount() - start > 10000) {
            return false;
        }
        if (!handleQueued(m_hWnd)) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_ALLINPUT);
        }
    }
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    handleQueued(m_hWnd);
    return true;
}
