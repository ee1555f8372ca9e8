#include "toolkit/dialog.h"
#include "baselib/gbk.h"
#include "toolkit/app.h"
#include "toolkit/cmd_ui.h"
#include "toolkit/creation_hook.h"
#include "toolkit/life.h"
#include "toolkit/module.h"
#include "toolkit/thread_state.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

CDialog::~CDialog()
{
    CWnd::DestroyWindow(); // while it is still a dialog
}

LPCDLGTEMPLATE CDialog::findTemplateM(LPCWSTR name) const
{
    HINSTANCE module = AfxGetResourceHandle();
    HRSRC found = ::FindResourceW(module, name, RT_DIALOG);
    HGLOBAL loaded = found == nullptr ? nullptr : ::LoadResource(module, found);
    if (loaded == nullptr) {
        AfxLogFailure("FindResource of a dialog template", templateName_);
        return nullptr;
    }
    return static_cast<LPCDLGTEMPLATE>(::LockResource(loaded));
}

BOOL CDialog::createM(LPCDLGTEMPLATE dialogTemplate, HWND owner)
{
    if (dialogTemplate == nullptr || !letGoOfWindowM()) {
        return FALSE;
    }
    LifeCL life(this);
    CreationHookCL hook(this, &CDialog::takeMadeM);
    HWND made = ::CreateDialogIndirectParamW(AfxGetInstanceHandle(), dialogTemplate, owner, &dialogProcM, 0);
    if (made == nullptr) {
        AfxLogFailure("CreateDialogIndirectParam", nullptr);
        if (!hook.HasCaughtM() && life.IsAliveM()) {
            PostNcDestroy();
        }
    }
    return made != nullptr;
}

INT_PTR CALLBACK CDialog::dialogProcM(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_INITDIALOG) {
        return FALSE; // the message map has had its turn before
    }
    CDialog* dialog = DYNAMIC_DOWNCAST(CDialog, FromHandlePermanent(hWnd));
    try {
        return dialog == nullptr || dialog->OnInitDialog();
    } catch (...) {
        AfxAnswerException({ hWnd, message, wParam, lParam, 0, {} });
        return TRUE;
    }
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return CreateIndirect(findTemplateM(MAKEINTRESOURCEW(templateId)), parent);
}

BOOL CDialog::Create(LPCSTR templateName, CWnd* parent)
{
    if (IS_INTRESOURCE(templateName)) {
        return Create(static_cast<UINT>(reinterpret_cast<UINT_PTR>(templateName)), parent);
    }
    return CreateIndirect(findTemplateM(slGbkToShown(templateName).c_str()), parent);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void*)
{
    CWnd* owner = parent == nullptr ? AfxGetMainWnd() : parent;
    return createM(dialogTemplate, owner == nullptr ? nullptr : owner->m_hWnd);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent)
{
    template_ = dialogTemplate;
    if (parent != nullptr) {
        parent_ = parent;
    }
    return dialogTemplate != nullptr;
}

HWND CDialog::modalOwnerM() const
{
    CWnd* wanted = parent_ == nullptr ? AfxGetMainWnd() : parent_;
    HWND owner = wanted == nullptr || wanted == this ? nullptr : wanted->m_hWnd;
    if (owner == nullptr) {
        return nullptr;
    }
    owner = ::GetAncestor(owner, GA_ROOT);
    return parent_ == nullptr ? ::GetLastActivePopup(owner) : owner;
}

LPCDLGTEMPLATE CDialog::modalTemplateM() const
{
    if (template_ != nullptr) {
        return template_;
    }
    if (wideTemplateName_ != nullptr) {
        return findTemplateM(wideTemplateName_);
    }
    if (templateName_ != nullptr && !IS_INTRESOURCE(templateName_)) {
        return findTemplateM(slGbkToShown(templateName_).c_str());
    }
    return findTemplateM(
        templateName_ != nullptr ? reinterpret_cast<LPCWSTR>(templateName_) : MAKEINTRESOURCEW(templateId_));
}

INT_PTR CDialog::DoModal()
{
    LPCDLGTEMPLATE dialogTemplate = modalTemplateM();
    if (dialogTemplate == nullptr) {
        return -1;
    }
    HWND owner = modalOwnerM();
    HWND disabledOwner = owner != nullptr && ::IsWindowEnabled(owner) ? owner : nullptr;
    if (disabledOwner != nullptr) {
        ::EnableWindow(disabledOwner, FALSE);
    }
    beginModalM();
    LifeCL life(this);
    try {
        // While it is made the application may have destroyed the window again: nothing is left to wait for.
        if (createM(dialogTemplate, owner) && life.IsAliveM() && m_hWnd != nullptr) {
            RunModalLoop(MLF_SHOWONIDLE);
        }
    } catch (...) {
        leaveModalM(disabledOwner, life);
        throw;
    }
    return leaveModalM(disabledOwner, life);
}

int CDialog::leaveModalM(HWND disabledOwner, const LifeCL& life)
{
    if (life.IsAliveM() && m_hWnd != nullptr) {
        SetWindowPos(
            nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    // Before the dialog goes: else the system would activate some other program's window.
    if (disabledOwner != nullptr) {
        ::EnableWindow(disabledOwner, TRUE);
        if (life.IsAliveM() && m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd) {
            ::SetActiveWindow(disabledOwner);
        }
    }
    if (!life.IsAliveM()) {
        return -1;
    }
    int result = endModalM();
    DestroyWindow();
    return result;
}

void CDialog::EndDialog(int result)
{
    if (isModalM()) {
        EndModalLoop(result);
    } else {
        ::EndDialog(m_hWnd, result);
    }
}

BOOL CDialog::OnInitDialog()
{
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    return IsDialogMessage(message);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* extra, AFX_CMDHANDLERINFO* info)
{
    LifeCL life(this);
    if (CWnd::OnCmdMsg(nID, nCode, extra, info)) {
        return TRUE;
    }
    // Commands of menus and such go on to the owner, then the application; control ids lie below them.
    bool isMenuCommand
        = (nCode == CN_COMMAND || nCode == CN_UPDATE_COMMAND_UI) && nID >= 0x8000 && nID < 0xF000;
    if (!life.IsAliveM() || !isMenuCommand || (GetStyle() & WS_CHILD)) {
        return FALSE;
    }
    CWnd* owner = FromHandlePermanent(::GetParent(m_hWnd));
    if (owner != nullptr && owner->OnCmdMsg(nID, nCode, extra, info)) {
        return TRUE;
    }
    return AfxGetThread()->OnCmdMsg(nID, nCode, extra, info);
}
