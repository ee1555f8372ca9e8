#include "toolkit/edit.h"
#include "toolkit/edit_text.h"
#include <algorithm>
#include <cstring>
#include <vector>

IMPLEMENT_DYNAMIC(CEdit, CWnd)

namespace {

int sentM(const CEdit& edit, UINT message, int at)
{
    return static_cast<int>(edit.SendMessage(message, AfxWordOf(at)));
}

} // namespace

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Edit", nullptr, style, rect, parent, id);
}

void CEdit::SetSel(int first, int end, BOOL noScroll)
{
    const EditTextCL text(m_hWnd);
    SendMessage(EM_SETSEL, AfxWordOf(text.UnitsM(first)), text.UnitsM(end));
    if (!noScroll) {
        SendMessage(EM_SCROLLCARET);
    }
}

void CEdit::GetSel(int& first, int& end) const
{
    DWORD from = 0;
    DWORD to = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    const EditTextCL text(m_hWnd);
    first = text.BytesM(static_cast<int>(from));
    end = text.BytesM(static_cast<int>(to));
}

DWORD CEdit::GetSel() const
{
    int first = 0;
    int end = 0;
    GetSel(first, end);
    return first > 0xFFFF || end > 0xFFFF ? ~0u : static_cast<DWORD>(MAKELONG(first, end));
}

void CEdit::SetLimitText(UINT bytes)
{
    LimitEditText(m_hWnd, bytes);
}

UINT CEdit::GetLimitText() const
{
    const UINT bytes = EditTextLimit(m_hWnd);
    return bytes != 0 ? bytes : static_cast<UINT>(SendMessage(EM_GETLIMITTEXT));
}

int CEdit::GetLine(int index, LPSTR to, int size) const
{
    const int begin = sentM(*this, EM_LINEINDEX, index);
    if (begin < 0 || to == nullptr || size <= 0) {
        return 0;
    }
    const int length = sentM(*this, EM_LINELENGTH, begin);
    std::vector<wchar_t> line(static_cast<size_t>(length) + 2);
    // The window reads the room there is from the first word and adds no zero.
    line[0] = static_cast<wchar_t>(std::min(length + 1, 0xFFFF));
    const int used
        = static_cast<int>(SendMessage(EM_GETLINE, AfxWordOf(index), reinterpret_cast<LPARAM>(line.data())));
    const std::string gbk = WideToGbk(line.data(), used);
    const size_t copied = slGbkCutLength(gbk.c_str(), gbk.size(), static_cast<size_t>(size));
    std::memcpy(to, gbk.c_str(), copied);
    if (copied < static_cast<size_t>(size)) {
        to[copied] = 0;
    }
    return static_cast<int>(copied);
}

int CEdit::GetLine(int index, LPSTR to) const
{
    WORD size = 0;
    std::memcpy(&size, to, sizeof size);
    return GetLine(index, to, size);
}

int CEdit::LineIndex(int line) const
{
    return EditTextCL(m_hWnd).BytesM(sentM(*this, EM_LINEINDEX, line));
}

int CEdit::LineLength(int at) const
{
    const EditTextCL text(m_hWnd);
    const auto lineBegin
        = [this](int unit) { return sentM(*this, EM_LINEINDEX, sentM(*this, EM_LINEFROMCHAR, unit)); };
    const auto lineEnd
        = [this, &lineBegin](int unit) { return lineBegin(unit) + sentM(*this, EM_LINELENGTH, unit); };
    const int unit = text.UnitsM(at);
    if (unit >= 0) {
        return text.BytesM(lineEnd(unit)) - text.BytesM(lineBegin(unit));
    }
    DWORD first = 0;
    DWORD end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    const int from = static_cast<int>(first);
    const int to = static_cast<int>(end);
    return text.BytesM(from) - text.BytesM(lineBegin(from)) + text.BytesM(std::max(lineEnd(to), to))
        - text.BytesM(to);
}

int CEdit::LineFromChar(int at) const
{
    return sentM(*this, EM_LINEFROMCHAR, EditTextCL(m_hWnd).UnitsM(at));
}

void CEdit::LineScroll(int lines, int characters)
{
    SendMessage(EM_LINESCROLL, AfxWordOf(characters), lines);
}

int CEdit::CharFromPos(CPoint point) const
{
    const LRESULT found = SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y));
    if (found == -1) {
        return -1;
    }
    return static_cast<int>(MAKELONG(EditTextCL(m_hWnd).BytesM(LOWORD(found)), HIWORD(found)));
}

CPoint CEdit::PosFromChar(UINT at) const
{
    return CPoint(SendMessage(EM_POSFROMCHAR, AfxWordOf(EditTextCL(m_hWnd).UnitsM(static_cast<int>(at)))));
}

void CEdit::SetPasswordChar(char character)
{
    SendMessage(EM_SETPASSWORDCHAR, static_cast<unsigned char>(character));
}

void CEdit::SetMargins(UINT left, UINT right)
{
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(left, right));
}

BOOL CEdit::SetTabStops(int count, LPINT stops)
{
    return SendMessage(EM_SETTABSTOPS, AfxWordOf(count), reinterpret_cast<LPARAM>(stops)) != 0;
}

CString CEdit::GetCueBanner() const
{
    wchar_t text[1024] = {};
    const int size = static_cast<int>(sizeof text / sizeof *text);
    SendMessage(EM_GETCUEBANNER, reinterpret_cast<WPARAM>(text), size);
    return CString(WideToGbk(text).c_str());
}

LRESULT CEdit::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return LimitedEditMessage(m_hWnd, message, wParam, lParam,
        [this](UINT next, WPARAM w, LPARAM l) { return CWnd::DefWindowProc(next, w, l); });
}
