#include "baselib/gbk.h"
#include "toolkit/dc.h"
#include <algorithm>
#include <cstring>
#include <vector>

namespace {

int lengthOfM(LPCWSTR text, int count)
{
    return count < 0 && text != nullptr ? static_cast<int>(std::wcslen(text)) : std::max(count, 0);
}

CSize extentM(HDC dc, LPCWSTR text, int count)
{
    CSize size;
    ::GetTextExtentPoint32W(dc, text, lengthOfM(text, count), &size);
    return size;
}

CSize packedSizeM(DWORD packed)
{
    return CSize(LOWORD(packed), HIWORD(packed));
}

// The advances of characters, from those of their bytes. perByte: numbers for each.
std::vector<INT> characterWidthsM(LPCSTR text, int count, const INT* widths, int perByte)
{
    std::vector<INT> sums;
    for (int at = 0; at < count && text[at] != '\0';) {
        // As the text is converted: also a broken first byte and the one behind it are one character.
        const int bytes = std::min(slGbkIsLead(text[at]) ? 2 : 1, count - at);
        for (int part = 0; part < perByte; ++part) {
            INT sum = 0;
            for (int k = 0; k < bytes && text[at + k] != '\0'; ++k) {
                sum += widths[(at + k) * perByte + part];
            }
            sums.push_back(sum);
        }
        at += bytes;
    }
    return sums;
}

// The wide character of a GBK code.
wchar_t characterM(UINT code)
{
    const char bytes[] = { static_cast<char>(code > 0xFF ? code >> 8 : code),
        static_cast<char>(code > 0xFF ? code & 0xFF : 0), '\0' };
    return GbkToWide(bytes).c_str()[0];
}

BOOL characterWidthsM(HDC dc, UINT first, UINT last, LPINT widths)
{
    BOOL done = first <= last;
    for (UINT code = first; done && code <= last; ++code) {
        const wchar_t character = characterM(code);
        done = ::GetCharWidth32W(dc, character, character, widths + (code - first));
    }
    return done;
}

} // namespace

BOOL CDC::TextOut(int x, int y, LPCSTR text, int count)
{
    return TextOut(x, y, GbkToWide(text, count).c_str());
}

BOOL CDC::TextOut(int x, int y, LPCWSTR text, int count)
{
    return ::TextOutW(m_hDC, x, y, text, lengthOfM(text, count));
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCSTR text, UINT count, const INT* widths)
{
    const std::wstring wide = GbkToWide(text, static_cast<int>(count));
    std::vector<INT> sums;
    if (widths != nullptr && text != nullptr) {
        sums = characterWidthsM(text, static_cast<int>(count), widths, (options & ETO_PDY) != 0 ? 2 : 1);
    }
    return ::ExtTextOutW(m_hDC, x, y, options, rect, wide.c_str(), static_cast<UINT>(wide.size()),
        sums.empty() ? nullptr : sums.data());
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, const INT* widths)
{
    return ExtTextOut(x, y, options, rect, text.GetString(), static_cast<UINT>(text.GetLength()), widths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCSTR text, int count, int stops, const INT* stopAt, int tabOrigin)
{
    return TabbedTextOut(x, y, GbkToWide(text, count).c_str(), -1, stops, stopAt, tabOrigin);
}

CSize CDC::TabbedTextOut(int x, int y, LPCWSTR text, int count, int stops, const INT* stopAt, int tabOrigin)
{
    return packedSizeM(static_cast<DWORD>(
        ::TabbedTextOutW(m_hDC, x, y, text, lengthOfM(text, count), stops, stopAt, tabOrigin)));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& text, int stops, const INT* stopAt, int tabOrigin)
{
    return TabbedTextOut(x, y, text, text.GetLength(), stops, stopAt, tabOrigin);
}

int CDC::DrawText(LPCSTR text, int count, LPRECT rect, UINT format)
{
    return DrawText(GbkToWide(text, count).c_str(), -1, rect, format);
}

int CDC::DrawText(LPCWSTR text, int count, LPRECT rect, UINT format)
{
    return ::DrawTextW(m_hDC, text, lengthOfM(text, count), rect, format & ~DT_MODIFYSTRING);
}

int CDC::DrawTextEx(LPCSTR text, int count, LPRECT rect, UINT format, DRAWTEXTPARAMS* parameters)
{
    return DrawTextEx(GbkToWide(text, count).c_str(), -1, rect, format, parameters);
}

int CDC::DrawTextEx(LPCWSTR text, int count, LPRECT rect, UINT format, DRAWTEXTPARAMS* parameters)
{
    // Without DT_MODIFYSTRING the text is only read.
    return ::DrawTextExW(
        m_hDC, const_cast<LPWSTR>(text), lengthOfM(text, count), rect, format & ~DT_MODIFYSTRING, parameters);
}

int CDC::DrawTextEx(const CString& text, LPRECT rect, UINT format, DRAWTEXTPARAMS* parameters)
{
    return DrawTextEx(text, text.GetLength(), rect, format, parameters);
}

CSize CDC::GetTextExtent(LPCSTR text, int count) const
{
    return extentM(m_hAttribDC, GbkToWide(text, count).c_str(), -1);
}

CSize CDC::GetTextExtent(LPCWSTR text, int count) const
{
    return extentM(m_hAttribDC, text, count);
}

CSize CDC::GetOutputTextExtent(LPCSTR text, int count) const
{
    return extentM(m_hDC, GbkToWide(text, count).c_str(), -1);
}

CSize CDC::GetOutputTextExtent(LPCWSTR text, int count) const
{
    return extentM(m_hDC, text, count);
}

CSize CDC::GetOutputTextExtent(const CString& text) const
{
    return GetOutputTextExtent(text, text.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCSTR text, int count, int stops, const INT* stopAt) const
{
    return GetTabbedTextExtent(GbkToWide(text, count).c_str(), -1, stops, stopAt);
}

CSize CDC::GetTabbedTextExtent(LPCWSTR text, int count, int stops, const INT* stopAt) const
{
    return packedSizeM(::GetTabbedTextExtentW(m_hAttribDC, text, lengthOfM(text, count), stops, stopAt));
}

CSize CDC::GetTabbedTextExtent(const CString& text, int stops, const INT* stopAt) const
{
    return GetTabbedTextExtent(text, text.GetLength(), stops, stopAt);
}

int CDC::GetTextFace(CString& face) const
{
    std::wstring wide(static_cast<size_t>(std::max(::GetTextFaceW(m_hAttribDC, 0, nullptr), 1)), L'\0');
    ::GetTextFaceW(m_hAttribDC, static_cast<int>(wide.size()), wide.data());
    face = wide.c_str();
    return face.GetLength();
}

int CDC::GetTextFace(int size, LPSTR face) const
{
    CString whole;
    GetTextFace(whole);
    return size < 1 || face == nullptr ? whole.GetLength() + 1 : slCopyText(face, size, whole) + 1;
}

BOOL CDC::GetCharWidth(UINT first, UINT last, LPINT widths) const
{
    return characterWidthsM(m_hAttribDC, first, last, widths);
}

BOOL CDC::GetOutputCharWidth(UINT first, UINT last, LPINT widths) const
{
    return characterWidthsM(m_hDC, first, last, widths);
}

BOOL CDC::GetCharABCWidths(UINT first, UINT last, ABC* widths) const
{
    BOOL done = first <= last;
    for (UINT code = first; done && code <= last; ++code) {
        const wchar_t character = characterM(code);
        done = ::GetCharABCWidthsW(m_hAttribDC, character, character, widths + (code - first));
    }
    return done;
}
