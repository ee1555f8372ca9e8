#include "toolkit/font_dialog.h"
#include "baselib/gbk.h"
#include "toolkit/text.h"
#include <cstddef>
#include <cstring>

IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

namespace {

// Both have the same members before the name of the face.
constexpr size_t CommonBytes = offsetof(LOGFONTW, lfFaceName);
static_assert(CommonBytes == offsetof(LOGFONTA, lfFaceName), "what a font has before its face");

LOGFONTW wideLogFontM(const LOGFONTA& font)
{
    LOGFONTW wide = {};
    std::memcpy(&wide, &font, CommonBytes);
    char face[LF_FACESIZE + 1] = {};
    std::memcpy(face, font.lfFaceName, LF_FACESIZE);
    ::lstrcpynW(wide.lfFaceName, slGbkToShown(face).c_str(), LF_FACESIZE);
    return wide;
}

LOGFONTA gbkLogFontM(const LOGFONTW& font)
{
    LOGFONTA gbk = {};
    std::memcpy(&gbk, &font, CommonBytes);
    slCopyText(gbk.lfFaceName, LF_FACESIZE, WideToGbk(font.lfFaceName));
    return gbk;
}

} // namespace

CFontDialog::CFontDialog(const LOGFONTA* initial, DWORD flags, CDC* printer, CWnd* parent)
    : CCommonDialog(parent)
    , m_cf {}
    , m_lf {}
    , style_ {}
{
    m_cf.lStructSize = sizeof m_cf;
    m_cf.Flags = flags | CF_ENABLEHOOK;
    if (initial != nullptr) {
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
        m_lf = *initial;
    }
    if (printer != nullptr) {
        m_cf.Flags |= CF_PRINTERFONTS;
        m_cf.hDC = printer->m_hDC;
    }
}

void CFontDialog::initializeM(const LOGFONTW* font)
{
    if (font != nullptr) {
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
        m_lf = gbkLogFontM(*font);
    }
}

INT_PTR CFontDialog::DoModal()
{
    LOGFONTW font = wideLogFontM(m_lf);
    wchar_t style[LF_FACESIZE] = {};
    CHOOSEFONTW wide = {};
    wide.lStructSize = sizeof wide;
    wide.hwndOwner = m_cf.hwndOwner != nullptr ? m_cf.hwndOwner : ownerM();
    wide.hDC = m_cf.hDC;
    wide.lpLogFont = &font;
    wide.iPointSize = m_cf.iPointSize;
    wide.Flags = m_cf.Flags;
    wide.rgbColors = m_cf.rgbColors;
    wide.lCustData = reinterpret_cast<LPARAM>(this);
    wide.lpfnHook = &CFontDialog::hookM;
    wide.hInstance = m_cf.hInstance;
    wide.lpszStyle = style;
    wide.nSizeMin = m_cf.nSizeMin;
    wide.nSizeMax = m_cf.nSizeMax;
    using CallTP = BOOL(WINAPI*)(CHOOSEFONTW*);
    const auto call = reinterpret_cast<CallTP>(reinterpret_cast<void*>(systemCallM("ChooseFontW")));
    if (call == nullptr || !call(&wide)) {
        return IDCANCEL;
    }
    m_lf = gbkLogFontM(font);
    slCopyText(style_, static_cast<int>(sizeof style_), WideToGbk(style));
    m_cf.iPointSize = wide.iPointSize;
    m_cf.rgbColors = wide.rgbColors;
    m_cf.nFontType = wide.nFontType;
    m_cf.Flags = wide.Flags;
    return IDOK;
}

UINT_PTR CALLBACK CFontDialog::hookM(HWND hWnd, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG) {
        return 0;
    }
    const auto* given = reinterpret_cast<const CHOOSEFONTW*>(lParam);
    return adoptM(reinterpret_cast<CFontDialog*>(given->lCustData), hWnd);
}

LOGFONTW CFontDialog::fontM() const
{
    LOGFONTW font = wideLogFontM(m_lf);
    if (m_hWnd != nullptr) {
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(&font));
    }
    return font;
}

void CFontDialog::GetCurrentFont(LOGFONTA* to) const
{
    *to = gbkLogFontM(fontM());
}

void CFontDialog::GetCurrentFont(LOGFONTW* to) const
{
    *to = fontM();
}

CString CFontDialog::GetFaceName() const
{
    return CString(gbkLogFontM(fontM()).lfFaceName);
}

CString CFontDialog::GetStyleName() const
{
    return CString(style_);
}
