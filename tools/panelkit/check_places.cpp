// Where controls stand: in the dialog, and before one another.
#include "control_list.h"
#include <algorithm>

namespace {

// Pixels that frame and caption take of a dialog in all.
struct FrameCL
{
    int width;
    int height;
};

FrameCL frameOf(const DialogHeaderCL& dialog, int sizing, int fixed, int thin, int caption)
{
    if (dialog.borderKind == 1) {
        return { 0, 0 };
    }
    const int edge = dialog.borderKind == 3               ? sizing
        : dialog.borderKind == 4 || dialog.titleFlag == 1 ? fixed
        : dialog.borderKind == 2                          ? thin
                                                          : 0;
    return { 2 * edge, 2 * edge + (dialog.titleFlag == 1 ? caption : 0) };
}

void checkOutside(FileReadingCL& file, const CheckedControlCL& control, FindingsCL& findings)
{
    const DialogHeaderCL& dialog = file.DialogM();
    const FrameCL small = frameOf(dialog, 4, 3, 1, 19); // The classic look.
    const FrameCL large = frameOf(dialog, 8, 8, 1, 23); // Windows 10 and 11.
    const auto fits = [&](const FrameCL& frame) {
        return control.RightM() + frame.width <= dialog.size[0]
            && control.BottomM() + frame.height <= dialog.size[1];
    };
    const auto say = [&](Says says, const FrameCL& frame) {
        const auto pixels = [](std::int64_t total, int framed) { return std::to_string(total - framed); };
        const std::string place = std::to_string(control.x) + " " + std::to_string(control.y) + " "
            + std::to_string(control.w) + " " + std::to_string(control.h);
        findings.AddM(says, control.positionAt,
            { place, pixels(dialog.size[0], frame.width), pixels(dialog.size[1], frame.height) });
    };
    if (control.x < 0 || control.y < 0 || !fits(small)) {
        say(Says::OutsideDialog, small);
    } else if (!fits(large)) {
        say(Says::OutsideOtherFrame, large);
    }
}

// The controls that may hide others, found by the place of those: each is listed in the squares that it
// covers, very large ones in a list of their own. What is hidden itself hides nothing more.
class CoversCL
{
public:
    const CheckedControlCL* FindM(const CheckedControlCL& control) const
    {
        const auto covers = [&control](const CheckedControlCL* other) {
            return other->x <= control.x && other->y <= control.y && other->RightM() >= control.RightM()
                && other->BottomM() >= control.BottomM();
        };
        const auto square = squares_.find(squareM(control.x >> Bits, control.y >> Bits));
        if (square != squares_.end()) {
            const auto found = std::find_if(square->second.begin(), square->second.end(), covers);
            if (found != square->second.end()) {
                return *found;
            }
        }
        const auto found = std::find_if(large_.begin(), large_.end(), covers);
        return found != large_.end() ? *found : nullptr;
    }
    void AddM(const CheckedControlCL& control)
    {
        constexpr std::int64_t MostSquares = 64;
        constexpr std::size_t MostLarge = 256;
        const std::int64_t right = (control.RightM() - 1) >> Bits;
        const std::int64_t bottom = (control.BottomM() - 1) >> Bits;
        const std::int64_t left = control.x >> Bits;
        const std::int64_t top = control.y >> Bits;
        if ((right - left + 1) * (bottom - top + 1) > MostSquares) {
            if (large_.size() < MostLarge) {
                large_.push_back(&control);
            }
            return;
        }
        for (std::int64_t x = left; x <= right; ++x) {
            for (std::int64_t y = top; y <= bottom; ++y) {
                std::vector<const CheckedControlCL*>& square = squares_[squareM(x, y)];
                if (square.size() < MostLarge) {
                    square.push_back(&control);
                }
            }
        }
    }

private:
    static constexpr int Bits = 8;
    static std::uint64_t squareM(std::int64_t x, std::int64_t y)
    {
        return static_cast<std::uint64_t>(static_cast<std::uint32_t>(x)) << 32
            | static_cast<std::uint32_t>(y);
    }

    std::unordered_map<std::uint64_t, std::vector<const CheckedControlCL*>> squares_;
    std::vector<const CheckedControlCL*> large_;
};

} // namespace

void checkPlaces(FileReadingCL& file, const StackTP& stack, FindingsCL& findings)
{
    const bool isPlaced = file.HasDialogM() && file.SectionM(DialogGrammar).soundRecords > 0;
    CoversCL covers;
    for (const CheckedControlCL* const control : stack) {
        if (control->w <= 0 || control->h <= 0) {
            findings.AddM(Says::NeverShown, control->positionAt,
                { std::to_string(control->w), std::to_string(control->h) });
            continue;
        }
        if (isPlaced) {
            checkOutside(file, *control, findings);
        }
        if (control->kind == 0) {
            continue;
        }
        const CheckedControlCL* const cover = covers.FindM(*control);
        if (cover != nullptr) {
            findings.AddM(
                Says::HiddenBehind, control->positionAt, { std::to_string(file.LineM(cover->idAt) + 1) });
        } else if (control->kind != GroupBoxCode) {
            covers.AddM(*control);
        }
    }
}
