#pragma once
#include "toolkit/common_dialog.h"
#include <vector>

struct __POSITION;
// A place in a list; null: none.
typedef __POSITION* POSITION;

// Asks for a file to open, or to save as. The dialog itself works with wide names; of a name that GBK cannot
// say what comes back is its nearest (see WideToGbk), which need not be the file's.
class PANELKIT_API CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)
public:
    // filter: "Text|*.txt|All|*.*||". File name: what the field shows at first. Texts: GBK or wide, or null.
    explicit CFileDialog(BOOL isOpen, AfxGivenText defaultExtension = nullptr,
        AfxGivenText fileName = nullptr, DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
        AfxGivenText filter = nullptr, CWnd* parent = nullptr, DWORD size = 0, BOOL vistaStyle = TRUE);

    // The system's structure with GBK texts, which may be changed before DoModal and holds the outcome after
    // it. A buffer of the caller's for many names goes into lpstrFile with its size in nMaxFile.
    OPENFILENAMEA m_ofn;
    OPENFILENAMEA& GetOFN() { return m_ofn; }
    const OPENFILENAMEA& GetOFN() const { return m_ofn; }
    // IDOK, or IDCANCEL: also when the names don't fit into the buffer. CommDlgExtendedError tells more.
    INT_PTR DoModal() override;

    // After IDOK, or while the dialog is there (from OnInitDone on).
    CString GetPathName() const;
    CString GetFileName() const;   // without the folder
    CString GetFileTitle() const;  // and without the extension
    CString GetFileExt() const;    // without the dot
    CString GetFolderPath() const; // while the dialog is there
    // Whether "read only" was ticked.
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    // All paths of a multiple selection (OFN_ALLOWMULTISELECT).
    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(m_ofn.lpstrFile); }
    CString GetNextPathName(POSITION& at) const; // and moves on; null: that was the last

    // A template of the resources whose controls are added. The first one is that of the old dialog.
    void SetTemplate(UINT old, UINT id);
    // While the dialog is there: of its own controls (edt1, stc2, …).
    void SetControlText(int id, LPCSTR text) { setTextM(id, AfxGivenText(text)); }
    AFX_WIDE_TEXT void SetControlText(int id, const WideTP* text) { setTextM(id, AfxGivenText(text)); }

    // Hides one of them.
    void HideControl(int id);

    // The extension that a name without one gets.
    void SetDefExt(LPCSTR extension) { setExtensionM(AfxGivenText(extension)); }
    AFX_WIDE_TEXT void SetDefExt(const WideTP* extension) { setExtensionM(AfxGivenText(extension)); }

protected:
    // The dialog is there, not shown yet.
    virtual void OnInitDone() { }
    virtual BOOL OnFileNameOK() { return FALSE; } // TRUE: the dialog stays
    // Another program has the file: OFN_SHAREWARN tells the user, OFN_SHAREFALLTHROUGH takes it all the same.
    virtual UINT OnShareViolation(LPCSTR) { return OFN_SHAREWARN; }
    // The selected file, the folder or the filter has changed.
    virtual void OnFileNameChange() { }
    virtual void OnFolderChange() { }
    virtual void OnTypeChange() { }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    static UINT_PTR CALLBACK hookM(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    CString askedM(UINT message) const;
    bool isShownM() const { return m_hWnd != nullptr && (m_ofn.Flags & OFN_EXPLORER) != 0; }
    void setTextM(int id, const AfxGivenText& text);
    void setExtensionM(const AfxGivenText& extension);
    bool takeNamesM(const OPENFILENAMEW& wide);

    bool isOpen_;
    std::vector<char> file_;
    std::vector<char> title_;
    std::string filter_;
    std::string extension_;
};
