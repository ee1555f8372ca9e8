#pragma once
#include "toolkit/wnd.h"

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
    explicit CDialog(int templateId, CWnd* parent = nullptr)
        : CDialog(static_cast<UINT>(templateId), parent)
    {
    }
    ~CDialog() override;

    // Modeless. A null parent stands for the application's main window. Templates in memory stay the
    // caller's.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    BOOL Create(LPCSTR templateName, CWnd* parent = nullptr);
    BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* init = nullptr);
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr);

    // Shows the dialog and keeps its owner disabled until EndDialog. Result: what EndDialog said; -1: no
    // dialog.
    virtual int DoModal();
    virtual void EndDialog(int result);

    void MapDialogRect(LPRECT rect) const { ::MapDialogRect(m_hWnd, rect); }
    void NextDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* control)
    {
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control->m_hWnd), 1);
    }
    void SetDefID(UINT id) { SendMessage(DM_SETDEFID, id); }
    DWORD GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }

    virtual BOOL OnInitDialog() { return TRUE; } // TRUE: the focus goes to the first control
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    virtual void OnOK() { EndDialog(IDOK); }
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    DECLARE_MESSAGE_MAP()

private:
    static INT_PTR CALLBACK dialogProcM(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    LPCDLGTEMPLATE findTemplateM(LPCWSTR name) const;
    BOOL createM(LPCDLGTEMPLATE dialogTemplate, HWND owner);
    HWND modalOwnerM() const;
    void runModalM();

    UINT templateId_ = 0;
    LPCSTR templateName_ = nullptr;
    LPCDLGTEMPLATE template_ = nullptr;
    CWnd* parent_ = nullptr;
    int modalResult_ = -1;
    bool isModal_ = false;
    bool isEnded_ = false;
};
