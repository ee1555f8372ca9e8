#pragma once
#include "toolkit/wnd.h"

class LifeCL;

// A dialog window, modal or not, from a template of the program's resources or one in memory.
class PANELKIT_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog() = default; // modeless: Create follows; modal: InitModalIndirect
    explicit CDialog(UINT templateId, CWnd* parent = nullptr)
        : templateId_(templateId)
        , parent_(parent)
    {
    }
    explicit CDialog(LPCSTR templateName, CWnd* parent = nullptr)
        : templateName_(templateName)
        , parent_(parent)
    {
    }
    AFX_WIDE_TEXT explicit CDialog(const WideTP* templateName, CWnd* parent = nullptr)
        : wideTemplateName_(templateName)
        , parent_(parent)
    {
    }
    explicit CDialog(int templateId, CWnd* parent = nullptr)
        : CDialog(static_cast<UINT>(templateId), parent)
    {
    }
    ~CDialog() override;

    // Modeless. A null parent stands for the application's main window. Templates in memory stay the
    // caller's.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    BOOL Create(LPCSTR templateName, CWnd* parent = nullptr);
    AFX_WIDE_TEXT BOOL Create(const WideTP* templateName, CWnd* parent = nullptr)
    {
        return CreateIndirect(findTemplateM(templateName), parent);
    }
    BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* init = nullptr);

    // The template for a DoModal to come; it must live until then. FALSE: null.
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr);

    // Shows the dialog and keeps its owner disabled until EndDialog. Result: what EndDialog said; -1: no
    // dialog. An exception out of the message loop passes, when the dialog is gone and the owner enabled.
    virtual INT_PTR DoModal();

    // Ends it, with that result of DoModal.
    virtual void EndDialog(int result);

    void MapDialogRect(LPRECT rect) const { ::MapDialogRect(m_hWnd, rect); }
    void NextDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* control)
    {
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control->m_hWnd), 1);
    }
    // The button that Enter presses.
    void SetDefID(UINT id) { SendMessage(DM_SETDEFID, id); }
    // Its id in the low word, DC_HASDEFID in the high one; 0: none.
    DWORD GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }

    // Shows the members in the controls (UpdateData). TRUE: the focus goes to the first control.
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    virtual void OnOK(); // ends the dialog, if the controls show what the members can hold (UpdateData)
    // Ends the dialog with IDCANCEL.
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    DECLARE_MESSAGE_MAP()

private:
    static INT_PTR CALLBACK dialogProcM(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    LPCDLGTEMPLATE findTemplateM(LPCWSTR name) const;
    BOOL createM(LPCDLGTEMPLATE dialogTemplate, HWND owner);
    HWND modalOwnerM() const;
    LPCDLGTEMPLATE modalTemplateM() const;
    int leaveModalM(HWND disabledOwner, const LifeCL& life);

    UINT templateId_ = 0;
    LPCSTR templateName_ = nullptr;
    LPCWSTR wideTemplateName_ = nullptr;
    LPCDLGTEMPLATE template_ = nullptr;
    CWnd* parent_ = nullptr;
};
