#pragma once
#include "toolkit/common_dialog.h"

// Asks for a font.
class PANELKIT_API CFontDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFontDialog)
public:
    // initial: what is selected at first, null: nothing. flags: CF_ numbers. printer: fonts of it too.
    explicit CFontDialog(const LOGFONTA* initial = nullptr, DWORD flags = CF_EFFECTS | CF_SCREENFONTS,
        CDC* printer = nullptr, CWnd* parent = nullptr);
    template <class FontTP,
        std::enable_if_t<std::is_same<std::remove_const_t<FontTP>, LOGFONTW>::value, int> = 0>
    explicit CFontDialog(FontTP* initial, DWORD flags = CF_EFFECTS | CF_SCREENFONTS, CDC* printer = nullptr,
        CWnd* parent = nullptr)
        : CFontDialog(static_cast<const LOGFONTA*>(nullptr), flags, printer, parent)
    {
        initializeM(initial);
    }

    CHOOSEFONTA m_cf; // may be changed before DoModal; holds the outcome after it. Its font is m_lf
    LOGFONTA m_lf;
    INT_PTR DoModal() override; // IDOK or IDCANCEL

    // After IDOK, or of what is selected while the dialog is there.
    void GetCurrentFont(LOGFONTA* to) const;
    void GetCurrentFont(LOGFONTW* to) const;
    CString GetFaceName() const;
    CString GetStyleName() const;                   // after IDOK
    int GetSize() const { return m_cf.iPointSize; } // in tenths of a point, after IDOK

    // Of that font: the colour of the text, its weight (FW_ numbers), and how it is drawn.
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return static_cast<int>(fontM().lfWeight); }
    BOOL IsStrikeOut() const { return fontM().lfStrikeOut != 0; }
    BOOL IsUnderline() const { return fontM().lfUnderline != 0; }
    BOOL IsItalic() const { return fontM().lfItalic != 0; }
    BOOL IsBold() const { return GetWeight() > FW_NORMAL; }

private:
    static UINT_PTR CALLBACK hookM(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    void initializeM(const LOGFONTW* font);
    LOGFONTW fontM() const;
    char style_[LF_FACESIZE * 2];
};
