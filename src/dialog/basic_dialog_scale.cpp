// Other scales than the file's: lengths, the window, fonts, and a dialog that changes its scale while it is
// used.
#include "dialog/basic_dialog.h"
#include "dialog/dialog_font.h"
#include "dialog/fitting_font.h"
#include "dialog/monitor_scale.h"
#include "pictures/picture_sharing.h"
#include <algorithm>
#include <vector>

namespace {

int percentOf(int dpi)
{
    return std::clamp(::MulDiv(dpi, 100, PlainDpi), DuBasicDialogCL::LeastScale, DuBasicDialogCL::MostScale);
}

// Where something is that was at that place of a scale.
RECT movedRect(const RECT& rect, int from, int to)
{
    const auto at = [from, to](LONG place) { return static_cast<LONG>(::MulDiv(place, to, from)); };
    return { at(rect.left), at(rect.top), at(rect.right), at(rect.bottom) };
}

// The described place of a control as a window can have it.
CRect placeOf(const DControlCommonCL& control)
{
    int corner[2] {};
    int size[2] {};
    control.GetPosM(corner);
    control.GetSizeM(size);
    return { CPoint(slWindowLength(corner[0]), slWindowLength(corner[1])),
        CSize(slWindowLength(size[0]), slWindowLength(size[1])) };
}

} // namespace

int DuBasicDialogCL::SetScaleM(int percent)
{
    if (percent != AutomaticScale && (percent < LeastScale || percent > MostScale)) {
        return 0;
    }
    askedScale_ = percent;
    if (hasControlsM()) {
        isFileSized_ = hasFileSizeM(parentM());
        rescaleM(wantedScaleM(), nullptr);
    }
    return 1;
}

int DuBasicDialogCL::wantedScaleM() const
{
    return askedScale_ == NoScale       ? 100
        : askedScale_ == AutomaticScale ? percentOf(slDpiOf(parentM()))
                                        : askedScale_;
}

// The window's size at a scale: what its frame leaves of the file's size where pixels are the file's, scaled,
// and the frame that it has. dpi: of its monitor.
CSize DuBasicDialogCL::windowSizeM(HWND window, const ScaleCL& scale, int dpi) const
{
    const CSize frame = slFrameOf(window, dpi);
    if (bound_.isOwn) { // The frame is not the file's.
        return { slWindowLength(stretch_.OfM(0, scale.PlaceM(bound_.plainSize[0])) + frame.cx),
            slWindowLength(stretch_.OfM(1, scale.PlaceM(bound_.plainSize[1])) + frame.cy) };
    }
    const CSize plain = slFrameOf(window, PlainDpi);
    return { slWindowLength(scale.PlaceM(header_.size[0] - plain.cx) + frame.cx),
        slWindowLength(scale.PlaceM(header_.size[1] - plain.cy) + frame.cy) };
}

// The frame of a window is known once it has one, and may take more lines when it is narrow.
void DuBasicDialogCL::sizeWindowM(HWND window)
{
    const CSize size = windowSizeM(window, scale_, slDpiOf(window));
    ::SetWindowPos(window, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DuBasicDialogCL::noteSizeM(HWND window)
{
    CRect now;
    ::GetWindowRect(window, &now);
    builtSize_ = now.Size();
}

void DuBasicDialogCL::makeFontM()
{
    std::vector<CaptionPlaceCL> captions;
    if (scale_.PercentM() != 100) {
        const int dpi = slDpiOf(parentM());
        eachControlsM([&captions, dpi](auto row, auto& controls) {
            using RowTP = decltype(row);
            if constexpr (RowTP::CanM(HasCaption)) {
                constexpr int Box = 18;  // Of a check box or radio button, with the gap behind it.
                constexpr int Frame = 6; // Of a button.
                const bool hasBox = RowTP::Code == RadioBoxCode || RowTP::Code == CheckBoxCode;
                const int taken = RowTP::Code == LabelCode ? 0 : hasBox ? Box : Frame;
                for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                    captions.push_back({ controls.ControlAtM(i).GetSafeHwnd(), ::MulDiv(taken, dpi, PlainDpi),
                        RowTP::Code == LabelCode });
                }
            }
        });
    }
    const LOGFONTA font = slDialogFont(slFittingFontOption(header_.fontOption, scale_, captions));
    font_.DeleteObject();
    font_.CreateFontIndirect(&font);
}

// Trees keep the font that the system gives them; here it grows like that of the others.
void DuBasicDialogCL::giveTreeFontsM(const TurnCL& turn)
{
    const bool hadFont = treeFont_.GetSafeHandle() != nullptr;
    if (scale_.PercentM() == 100 && !hadFont) {
        return;
    }
    CFont font;
    LOGFONTW system {};
    const int dpi = slDpiOf(nullptr);
    if (!::SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof system, &system, 0)) {
        return;
    }
    system.lfHeight = scale_.SizeM(::MulDiv(static_cast<int>(system.lfHeight), PlainDpi, dpi));
    font.CreateFontIndirect(&system);
    eachControlsM([&font](auto row, auto& controls) {
        if constexpr (decltype(row)::Code == TreeCode) {
            for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                ::SendMessageW(controls.ControlAtM(i).GetSafeHwnd(), WM_SETFONT,
                    reinterpret_cast<WPARAM>(font.GetSafeHandle()), TRUE);
            }
        }
    });
    if (!turn.IsOverM()) {
        treeFont_.DeleteObject();
        treeFont_.Attach(font.Detach());
    }
}

// A control that the application has moved stays there, in proportion. All others get the edges that they
// have in a dialog which is built at this scale.
template <class ControlTP, class RecordTP>
void DuBasicDialogCL::rescaleControlM(ControlTP& control, RecordTP* record, int from)
{
    if (control.GetSafeHwnd() == nullptr) {
        return;
    }
    const int to = scale_.PercentM();
    const CRect described = placeOf(control);
    RECT now {};
    ::GetWindowRect(control.m_hWnd, &now);
    ::MapWindowPoints(nullptr, ::GetParent(control.m_hWnd), reinterpret_cast<POINT*>(&now), 2);
    if (record != nullptr && record->GetFuncIDM() == control.GetFunctionIDM()) {
        control.SetPictureScaleM({ scale_, record->GetPositionM() });
        slScaleRecord(*record, scale_);
        record->GiveLengthsM(&control);
    } else { // The file has changed.
        const CRect moved = movedRect(described, from, to);
        const int corner[2] = { static_cast<int>(moved.left), static_cast<int>(moved.top) };
        const int size[2] = { moved.Width(), moved.Height() };
        control.SetPositionM(corner);
        control.SetSizeM(size);
        control.SetPictureScaleM({ scale_, corner });
    }
    CRect place = placeOf(control);
    if (now.left != described.left || now.top != described.top) {
        const CRect there(CPoint(now.left, now.top), described.Size());
        place = movedRect(there, from, to);
    }
    ::SetWindowPos(control.m_hWnd, nullptr, place.left, place.top, place.Width(), place.Height(),
        SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    control.RescaledM(from, to);
}

template <class RowTP> void DuBasicDialogCL::rescaleKindM(VrIOCL& io, int from, const TurnCL& turn)
{
    auto& controls = membersM<RowTP>().controls;
    typename RowTP::Records records;
    int count = 0;
    slReadSection(io, records, &count);
    for (int i = controls.GetFirstIdxM(); i >= 0 && !turn.IsOverM(); i = controls.GetNextIdxM(i)) {
        rescaleControlM(
            controls.ControlAtM(i), records.CheckAvailableM(i) == 1 ? &records.ElementAtM(i) : nullptr, from);
    }
}

// Every window stays, with what the user has done in it. suggested: where the system wants the window of the
// dialog; null: it keeps its corner.
void DuBasicDialogCL::rescaleM(int percent, const RECT* suggested)
{
    const HWND window = parentM();
    const int from = scale_.PercentM();
    if (percent == from && suggested == nullptr) {
        return;
    }
    const bool isShown = ::IsWindowVisible(window) != FALSE;
    const ValidationPauseCL rescaling(window); // No field is left by that.
    {
        const TurnCL turn(this, window);
        if (isShown) {
            ::SendMessageW(window, WM_SETREDRAW, FALSE, 0);
        }
        if (!turn.IsOverM()) {
            changeScaleM(percent, suggested, turn);
        }
    }
    if (isShown && ::IsWindow(window)) {
        ::SendMessageW(window, WM_SETREDRAW, TRUE, 0);
        ::RedrawWindow(window, nullptr, nullptr,
            RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
}

void DuBasicDialogCL::changeScaleM(int percent, const RECT* suggested, const TurnCL& turn)
{
    const HWND window = parentM();
    const int from = scale_.PercentM();
    const DialogStretchCL stretch = stretch_;
    const bool wasBound = unbindM(turn);
    if (turn.IsOverM()) {
        return;
    }
    stretch_ = stretch;
    scale_ = ScaleCL(percent);
    if (mode_ == 1) {
        if (suggested != nullptr) {
            ::SetWindowPos(window, nullptr, suggested->left, suggested->top,
                suggested->right - suggested->left, suggested->bottom - suggested->top,
                SWP_NOZORDER | SWP_NOACTIVATE);
        }
        if (!turn.IsOverM() && isFileSized_ && !::IsZoomed(window)) {
            sizeWindowM(window);
        }
        if (!turn.IsOverM() && isFileSized_ && !::IsZoomed(window)) {
            noteSizeM(window);
        }
    }
    if (turn.IsOverM()) {
        return;
    }
    {
        const PictureSharingCL sharing;
        background_.RescaleM(PictureScaleCL(scale_, { 0, 0 }));
        VrIOCL io;
        io.OpenM(configFile_, "r");
        slEachKindAsBuilt([this, &io, from, &turn](auto row) {
            if (!turn.IsOverM()) {
                rescaleKindM<decltype(row)>(io, from, turn);
            }
        });
    }
    if (!turn.IsOverM()) {
        setItemFontM(CWnd::FromHandle(window), false, turn);
    }
    if (!turn.IsOverM()) {
        setTxtLstBoxItemHeightM();
    }
    if (wasBound && !turn.IsOverM()) {
        bindAgainM(stretch);
    }
}

// Whether the window has the size that its description means, at the scale until now.
bool DuBasicDialogCL::hasFileSizeM(HWND window) const
{
    CRect now;
    ::GetWindowRect(window, &now);
    return bound_.isOwn || now.Size() == builtSize_; // What is bound goes on having it in proportion.
}

// The system asks how large the window wants to be on another monitor, and says when it is there.
bool DuBasicDialogCL::answerDpiM(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const bool isOurs = askedScale_ == AutomaticScale && hasControlsM() && parentM() == m_hWnd && mode_ == 1;
    if (!isOurs) {
        return false;
    }
    isFileSized_ = hasFileSizeM(m_hWnd);
    if (message == GetDpiScaledSizeMsg) {
        const int dpi = static_cast<int>(wParam);
        *reinterpret_cast<SIZE*>(lParam) = windowSizeM(m_hWnd, ScaleCL(percentOf(dpi)), dpi);
        *result = isFileSized_ ? TRUE : FALSE;
        return isFileSized_;
    }
    rescaleM(percentOf(LOWORD(wParam)), reinterpret_cast<const RECT*>(lParam));
    *result = 0;
    return true;
}
