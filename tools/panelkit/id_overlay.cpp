#include "id_overlay.h"
#include "controls/base/control_common.h"
#include <algorithm>
#include <map>

namespace {

constexpr COLORREF LabelGround = RGB(255, 255, 170);
constexpr COLORREF LabelInk = RGB(0, 0, 0);
constexpr COLORREF LabelFrame = RGB(216, 0, 64);
constexpr int LabelPadding = 2;
constexpr UINT LabelFormat = DT_LEFT | DT_NOPREFIX;

// Small letters, within a device context.
class LabelFontCL
{
public:
    explicit LabelFontCL(HDC dc)
        : dc_(dc)
        , font_(::CreateFontW(-11, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
              DEFAULT_QUALITY, VARIABLE_PITCH | FF_SWISS, L"Tahoma"))
        , before_(::SelectObject(dc, font_))
    {
    }
    LabelFontCL(const LabelFontCL&) = delete;
    LabelFontCL& operator=(const LabelFontCL&) = delete;
    ~LabelFontCL()
    {
        ::SelectObject(dc_, before_);
        ::DeleteObject(font_);
    }

private:
    HDC dc_;
    HFONT font_;
    HGDIOBJ before_;
};

// Where Tab stops, in its order.
std::map<HWND, int> tabNumbers(HWND dialog)
{
    std::map<HWND, int> numbers;
    HWND stop = ::GetNextDlgTabItem(dialog, nullptr, FALSE);
    while (stop != nullptr && (::GetWindowLongW(stop, GWL_STYLE) & WS_TABSTOP) != 0
        && numbers.emplace(stop, static_cast<int>(numbers.size()) + 1).second) {
        stop = ::GetNextDlgTabItem(dialog, stop, FALSE);
    }
    return numbers;
}

std::wstring placeInFile(HWND control, const RECT& shown)
{
    int position[2] = { static_cast<int>(shown.left), static_cast<int>(shown.top) };
    int size[2] = { static_cast<int>(shown.right - shown.left), static_cast<int>(shown.bottom - shown.top) };
    const auto* const described = dynamic_cast<const DControlCommonCL*>(CWnd::FromHandlePermanent(control));
    int given[2] {};
    if (described != nullptr && described->GetSizeM(given) == 1 && given[0] != 0) { // Not arrows.
        described->GetPosM(position);
        described->GetSizeM(size);
    }
    return std::to_wstring(position[0]) + L"," + std::to_wstring(position[1]) + L","
        + std::to_wstring(size[0]) + L"," + std::to_wstring(size[1]);
}

bool isFree(const RECT& box, const RECT& client, const std::vector<RECT>& placed)
{
    RECT common {};
    return box.left >= 0 && box.top >= 0 && box.right <= client.right && box.bottom <= client.bottom
        && std::none_of(placed.begin(), placed.end(),
            [&](const RECT& other) { return ::IntersectRect(&common, &box, &other) != FALSE; });
}

// Steps away from a place, the nearest first.
const std::vector<POINT>& stepsAway()
{
    static const std::vector<POINT> steps = [] {
        std::vector<POINT> all;
        for (LONG y = -72; y <= 72; y += 3) {
            for (LONG x = -120; x <= 120; x += 6) {
                all.push_back({ x, y });
            }
        }
        std::stable_sort(all.begin(), all.end(),
            [](const POINT& a, const POINT& b) { return a.x * a.x + a.y * a.y < b.x * b.x + b.y * b.y; });
        return all;
    }();
    return steps;
}

// The first free place: in the corners of the control, else ever further away.
RECT placeFor(SIZE size, const RECT& control, const RECT& client, const std::vector<RECT>& placed)
{
    const auto at = [size](LONG x, LONG y) { return RECT { x, y, x + size.cx, y + size.cy }; };
    const LONG right = control.right - size.cx;
    const LONG bottom = control.bottom - size.cy;
    for (const RECT& box : { at(control.left, control.top), at(right, control.top), at(control.left, bottom),
             at(right, bottom) }) {
        if (isFree(box, client, placed)) {
            return box;
        }
    }
    constexpr std::size_t MostPlaced = 200; // Among more nobody reads them, and looking takes long.
    for (const POINT& step : stepsAway()) {
        const RECT box = at(control.left + step.x, control.top + step.y);
        if (placed.size() < MostPlaced && isFree(box, client, placed)) {
            return box;
        }
    }
    return at(control.left, control.top);
}

SIZE sizeOf(HDC dc, const std::wstring& words)
{
    RECT rect {};
    ::DrawTextW(dc, words.c_str(), -1, &rect, LabelFormat | DT_CALCRECT);
    return { rect.right + 2 * LabelPadding, rect.bottom + 1 };
}

// Not yet placed: its box is at the origin.
IdLabelCL labelOf(HDC dc, HWND dialog, HWND control, const std::wstring& tabNumber)
{
    RECT frame {};
    ::GetWindowRect(control, &frame);
    ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&frame), 2);
    const std::wstring first = std::to_wstring(::GetDlgCtrlID(control)) + L" #" + tabNumber;
    const std::wstring second = placeInFile(control, frame);
    // In one line where the control has room for it, else in two.
    std::wstring words = first + L"  " + second;
    SIZE size = sizeOf(dc, words);
    if (size.cx > frame.right - frame.left) {
        words = first + L"\n" + second;
        size = sizeOf(dc, words);
    }
    return { frame, { 0, 0, size.cx, size.cy }, words };
}

// Small controls first: large ones have other corners.
void placeLabels(HWND dialog, std::vector<IdLabelCL>& labels)
{
    RECT client {};
    ::GetClientRect(dialog, &client);
    std::vector<IdLabelCL*> order;
    for (IdLabelCL& label : labels) {
        order.push_back(&label);
    }
    const auto area = [](const RECT& rect) {
        return static_cast<long long>(rect.right - rect.left) * (rect.bottom - rect.top);
    };
    std::stable_sort(order.begin(), order.end(),
        [&area](const IdLabelCL* a, const IdLabelCL* b) { return area(a->control) < area(b->control); });
    std::vector<RECT> placed;
    for (IdLabelCL* const label : order) {
        label->box = placeFor({ label->box.right, label->box.bottom }, label->control, client, placed);
        placed.push_back(label->box);
    }
}

void drawLabels(HDC dc, const std::vector<IdLabelCL>& labels)
{
    const LabelFontCL font(dc);
    const HBRUSH frame = ::CreateSolidBrush(LabelFrame);
    const HBRUSH ground = ::CreateSolidBrush(LabelGround);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, LabelInk);
    for (const IdLabelCL& label : labels) {
        ::FrameRect(dc, &label.control, frame);
    }
    for (const IdLabelCL& label : labels) {
        RECT words = label.box;
        ::FillRect(dc, &words, ground);
        words.left += LabelPadding;
        ::DrawTextW(dc, label.words.c_str(), -1, &words, LabelFormat);
    }
    ::DeleteObject(ground);
    ::DeleteObject(frame);
}

// What drawLabels draws on.
HRGN regionOf(const std::vector<IdLabelCL>& labels)
{
    const HRGN all = ::CreateRectRgn(0, 0, 0, 0);
    const HRGN part = ::CreateRectRgn(0, 0, 0, 0);
    for (const IdLabelCL& label : labels) {
        const RECT& frame = label.control;
        ::SetRectRgn(part, frame.left, frame.top, frame.right, frame.bottom);
        const HRGN inner = ::CreateRectRgn(frame.left + 1, frame.top + 1, frame.right - 1, frame.bottom - 1);
        ::CombineRgn(part, part, inner, RGN_DIFF);
        ::DeleteObject(inner);
        ::CombineRgn(all, all, part, RGN_OR);
        ::SetRectRgn(part, label.box.left, label.box.top, label.box.right, label.box.bottom);
        ::CombineRgn(all, all, part, RGN_OR);
    }
    ::DeleteObject(part);
    return all;
}

} // namespace

std::vector<IdLabelCL> idLabels(HWND dialog, const int* only)
{
    std::vector<IdLabelCL> labels;
    const std::map<HWND, int> numbers = tabNumbers(dialog);
    const HDC dc = ::GetDC(dialog);
    {
        const LabelFontCL font(dc);
        for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            if (::IsWindowVisible(child) && (only == nullptr || ::GetDlgCtrlID(child) == *only)) {
                const auto number = numbers.find(child);
                labels.push_back(labelOf(
                    dc, dialog, child, number != numbers.end() ? std::to_wstring(number->second) : L"-"));
            }
        }
    }
    ::ReleaseDC(dialog, dc);
    placeLabels(dialog, labels);
    return labels;
}

void drawIds(HWND dialog)
{
    const HDC dc = ::GetDCEx(dialog, nullptr, DCX_CACHE); // Over the controls too.
    drawLabels(dc, idLabels(dialog));
    ::ReleaseDC(dialog, dc);
}

void IdOverlayCL::FollowM(HWND dialog, const int* only)
{
    if (!::IsWindowVisible(dialog) || ::IsIconic(dialog) || !createM(dialog, 0)) {
        HideM();
        return;
    }
    RECT place {};
    ::GetClientRect(dialog, &place);
    ::MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&place), 2);
    RECT before {};
    ::GetWindowRect(HandleM(), &before);
    if (!::EqualRect(&place, &before)) {
        ::SetWindowPos(HandleM(), nullptr, place.left, place.top, place.right - place.left,
            place.bottom - place.top, SWP_NOACTIVATE | SWP_NOZORDER);
    }
    std::vector<IdLabelCL> labels = idLabels(dialog, only);
    if (!(labels == labels_)) {
        labels_ = std::move(labels);
        ::SetWindowRgn(HandleM(), regionOf(labels_), TRUE); // The window keeps it.
        ::InvalidateRect(HandleM(), nullptr, FALSE);
    }
    if (!::IsWindowVisible(HandleM())) {
        ::ShowWindow(HandleM(), SW_SHOWNA);
    }
}

void IdOverlayCL::paintM(HDC dc, const RECT&)
{
    drawLabels(dc, labels_);
}
