#include "findings_bar.h"
#include "baselib/gbk.h"
#include <algorithm>

namespace {

constexpr std::size_t MostLines = 6;
constexpr int Margin = 6;
constexpr int LeastWidth = 320;
constexpr UINT BarFormat = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX;

std::wstring fromUtf8(const std::string& text)
{
    const int length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::wstring barText(const FindingsCL& findings, Language language)
{
    std::string text;
    std::size_t errors = 0;
    for (const FindingCL& finding : findings.ListM()) {
        const MessageCL& message = messageOf(finding.says);
        if (message.severity == Severity::Error && ++errors <= MostLines) {
            const PlaceCL place = findings.PlaceM(finding);
            text += (text.empty() ? "" : "\r\n") + std::to_string(place.line) + ":"
                + std::to_string(place.column) + ": " + finding.TextM(language) + " [" + message.code + "]";
        }
    }
    if (errors > MostLines) {
        const std::string more = std::to_string(errors - MostLines);
        text += language == Language::Chinese ? "\r\n还有 " + more + " 条" : "\r\nand " + more + " more";
    }
    return fromUtf8(text);
}

// The font of message boxes, within a device context.
class BarFontCL
{
public:
    explicit BarFontCL(HDC dc)
        : dc_(dc)
    {
        NONCLIENTMETRICSW metrics {};
        metrics.cbSize = sizeof metrics;
        ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        font_ = ::CreateFontIndirectW(&metrics.lfMessageFont);
        before_ = ::SelectObject(dc_, font_);
    }
    BarFontCL(const BarFontCL&) = delete;
    BarFontCL& operator=(const BarFontCL&) = delete;
    ~BarFontCL()
    {
        ::SelectObject(dc_, before_);
        ::DeleteObject(font_);
    }

private:
    HDC dc_;
    HFONT font_;
    HGDIOBJ before_;
};

std::wstring shownText(HWND bar)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(bar)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(bar, text.data(), static_cast<int>(text.size()))));
    return text;
}

int heightOf(HWND bar, int width)
{
    const std::wstring text = shownText(bar);
    RECT rect { 0, 0, width - 2 * Margin - 2, 0 };
    const HDC dc = ::GetDC(bar);
    {
        const BarFontCL font(dc);
        ::DrawTextW(dc, text.c_str(), -1, &rect, BarFormat | DT_CALCRECT);
    }
    ::ReleaseDC(bar, dc);
    return rect.bottom + 2 * Margin + 2;
}

} // namespace

void FindingsBarCL::ShowM(HWND dialog, const FindingsCL& findings, Language language)
{
    if (createM(dialog, WS_BORDER)) {
        ::SetWindowTextW(HandleM(), barText(findings, language).c_str());
        ::ShowWindow(HandleM(), SW_SHOWNA);
        DockM(dialog);
        ::RedrawWindow(HandleM(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
}

// Below it; where the screen ends, above it; else at the screen's edge over it.
void FindingsBarCL::DockM(HWND dialog)
{
    if (HandleM() == nullptr || !::IsWindowVisible(HandleM())) {
        return;
    }
    RECT place {};
    ::GetWindowRect(dialog, &place);
    MONITORINFO monitor {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(dialog, MONITOR_DEFAULTTONEAREST), &monitor);
    const int width = std::max<int>(place.right - place.left, LeastWidth);
    const int height = heightOf(HandleM(), width);
    int top = place.bottom;
    if (top + height > monitor.rcWork.bottom) {
        top = place.top - height >= monitor.rcWork.top ? place.top - height : monitor.rcWork.bottom - height;
    }
    ::SetWindowPos(HandleM(), nullptr, place.left, top, width, height, SWP_NOACTIVATE | SWP_NOZORDER);
}

void FindingsBarCL::paintM(HDC dc, const RECT& client)
{
    const HBRUSH ground = ::CreateSolidBrush(RGB(255, 232, 224));
    ::FillRect(dc, &client, ground);
    ::DeleteObject(ground);
    const BarFontCL font(dc);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, RGB(128, 0, 0));
    RECT text { Margin, Margin, client.right - Margin, client.bottom };
    ::DrawTextW(dc, shownText(HandleM()).c_str(), -1, &text, BarFormat);
}
