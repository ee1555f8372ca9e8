// Captions that their windows cut, measured as the platform's controls draw them.
#include "control_list.h"
#include "dialog/dialog_font.h"
#include <algorithm>

namespace {

// How large captions are in the font of a dialog.
class CaptionMeasureCL
{
public:
    explicit CaptionMeasureCL(int fontOption)
    {
        const LOGFONTA font = slDialogFont(fontOption);
        font_.CreateFontIndirect(&font);
        dc_.CreateCompatibleDC(nullptr);
        dc_.SelectObject(&font_);
        lineHeight_ = std::max(1L, MeasureM("0", DT_SINGLELINE, 0).cy);
    }
    SIZE MeasureM(const ValueTextCL& text, UINT format, int width)
    {
        RECT rect { 0, 0, width, 0 };
        ::DrawTextW(dc_.m_hDC, text.WideM().c_str(), -1, &rect, format | DT_CALCRECT);
        return { rect.right, rect.bottom };
    }
    int LineHeightM() const { return lineHeight_; }
    int SlackM() const { return lineHeight_ / 8; } // Blank pixels of the last character.

private:
    CFont font_;
    CDC dc_;
    int lineHeight_ { 1 };
};

constexpr int SunkenEdge = 3; // Of a label, with its border, on each side.

// Pixels of a control's width that are not for its caption.
int besideCaption(const CheckedControlCL& control, int lineHeight)
{
    constexpr int ButtonEdge = 2; // On each side.
    constexpr int Mark = 13;      // Of a check box or radio button; then comes half a digit.
    constexpr int Corner = 7;     // Of a group box's frame, where the caption begins.
    switch (control.kind) {
    case StandardButtonCode:
        return 2 * ButtonEdge;
    case CheckBoxCode:
    case RadioBoxCode:
        return Mark + lineHeight / 4;
    case GroupBoxCode:
        return Corner;
    default:
        return control.isSunken ? 2 * SunkenEdge : 0;
    }
}

void checkCaption(
    CaptionMeasureCL& measure, const CheckedControlCL& control, const ValueTextCL& text, FindingsCL& findings)
{
    const int line = measure.LineHeightM();
    const int width = std::max(0, control.w - besideCaption(control, line));
    // Labels alone break lines, at blanks.
    const UINT format = control.kind == LabelCode ? DT_WORDBREAK | DT_EXPANDTABS : DT_SINGLELINE;
    const SIZE size = measure.MeasureM(text, format, width);
    const int lines = size.cy / line;
    // A line counts as shown when most of it is.
    const int shown = std::max(1, (control.h - (control.isSunken ? 2 * SunkenEdge : 0) + line / 2) / line);
    if (lines > shown) {
        findings.AddM(Says::LinesCut, control.captionAt, { std::to_string(lines), std::to_string(shown) });
    } else if (size.cx > width + measure.SlackM()) {
        findings.AddM(
            Says::CaptionCut, control.captionAt, { std::to_string(size.cx), std::to_string(width) });
    }
}

} // namespace

void checkCaptions(FileReadingCL& file, const CheckedControlsTP& controls, const TranslationCL& translation,
    FindingsCL& findings)
{
    if (!file.HasDialogM() || file.SectionM(DialogGrammar).soundRecords == 0) {
        return; // Without a font.
    }
    CaptionMeasureCL measure(file.DialogM().fontOption);
    for (const CheckedControlCL& control : controls) {
        if (!control.caption.EmptyM() && control.w > 0 && control.h > 0) {
            const ValueTextCL own = control.caption.TextM();
            const ValueTextCL shown = translation.FindM(own, control.kindName, control.id);
            checkCaption(measure, control, shown.IsNoneM() ? own : shown, findings);
        }
    }
}
