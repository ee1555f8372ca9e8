#include "dialog/fitting_font.h"
#include "controls/base/window_text.h"
#include "dialog/dialog_font.h"
#include <algorithm>

namespace {

// Says how much room texts take in the dialog font.
class TextRuler
{
public:
    explicit TextRuler(int fontOption)
    {
        const LOGFONTA font = slDialogFont(fontOption);
        font_.CreateFontIndirect(&font);
        before_ = ::SelectObject(dc_, font_.GetSafeHandle());
    }
    TextRuler(const TextRuler&) = delete;
    TextRuler& operator=(const TextRuler&) = delete;
    ~TextRuler()
    {
        ::SelectObject(dc_, before_);
        ::DeleteDC(dc_);
    }

    bool fits(const std::wstring& text, CSize room, bool wraps) const
    {
        RECT needed { 0, 0, room.cx, 0 };
        ::DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &needed,
            DT_CALCRECT | (wraps ? DT_WORDBREAK | DT_EXPANDTABS : DT_SINGLELINE));
        return needed.right <= room.cx && needed.bottom <= room.cy;
    }
    int characterHeight() const
    {
        TEXTMETRICW metrics {};
        ::GetTextMetricsW(dc_, &metrics);
        return static_cast<int>(metrics.tmHeight - metrics.tmInternalLeading);
    }

private:
    HDC dc_ { ::CreateCompatibleDC(nullptr) };
    CFont font_;
    HGDIOBJ before_;
};

struct MeasuredCaption
{
    std::wstring text;
    CSize room;
    bool wraps;
};

} // namespace

int slFittingFontOption(int fontOption, const ScaleCL& scale, const std::vector<CaptionPlaceCL>& captions)
{
    if (scale.PercentM() == 100) {
        return fontOption;
    }
    const TextRuler plain(fontOption);
    // 0 is the height that the system takes when nothing is said.
    const int option = std::clamp(
        scale.SizeM(fontOption != 0 ? fontOption : plain.characterHeight()), -MostFontHeight, MostFontHeight);
    if (scale.PercentM() < 100) {
        return option;
    }
    const auto atFile
        = [&scale](int length) { return (length * 100 + scale.PercentM() - 1) / scale.PercentM(); };
    std::vector<MeasuredCaption> whole;
    for (const CaptionPlaceCL& caption : captions) {
        RECT client {};
        ::GetClientRect(caption.window, &client);
        const std::wstring text = slTextOfWindow(caption.window).WideM();
        const CSize room(client.right - caption.taken, client.bottom);
        const CSize fileRoom(atFile(client.right) - caption.taken, atFile(client.bottom));
        if (!text.empty() && plain.fits(text, fileRoom, caption.wraps)) {
            whole.push_back({ text, room, caption.wraps });
        }
    }
    constexpr int MostSmaller = 5; // Parts of the height.
    const int step = option > 0 ? 1 : -1;
    for (int tried = option; tried * step > option * step - option * step / MostSmaller; tried -= step) {
        const TextRuler ruler(tried);
        const bool fit = std::all_of(whole.begin(), whole.end(), [&ruler](const MeasuredCaption& caption) {
            return ruler.fits(caption.text, caption.room, caption.wraps);
        });
        if (fit) {
            return tried;
        }
    }
    return option;
}
