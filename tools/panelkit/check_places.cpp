// Where controls stand: in the dialog, and before one another.
#include "control_list.h"
#include <algorithm>
#include <climits>

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

// small and large: the least and the most that frame and caption take.
void checkOutside(const DialogHeaderCL& dialog, const FrameCL& small, const FrameCL& large,
    const CheckedControlCL& control, FindingsCL& findings)
{
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
    explicit CoversCL(const StackTP& stack)
        : stack_(stack)
    {
    }
    // Controls are meant by their places in the stack.
    const CheckedControlCL* FindM(std::size_t place)
    {
        const CheckedControlCL& control = *stack_[place];
        const BoxCL box(control, place);
        const CheckedControlCL* const found = findM(squareM(control.x >> Bits, control.y >> Bits), box);
        return found != nullptr ? found : findM(large_, box);
    }
    void AddM(std::size_t place)
    {
        const CheckedControlCL& control = *stack_[place];
        constexpr std::int64_t MostSquares = 64;
        constexpr std::size_t MostLarge = 256;
        const std::int64_t right = (control.RightM() - 1) >> Bits;
        const std::int64_t bottom = (control.BottomM() - 1) >> Bits;
        const std::int64_t left = control.x >> Bits;
        const std::int64_t top = control.y >> Bits;
        if ((right - left + 1) * (bottom - top + 1) > MostSquares) {
            if (large_.size() < MostLarge) {
                large_.emplace_back(control, place);
            }
            return;
        }
        for (std::int64_t x = left; x <= right; ++x) {
            for (std::int64_t y = top; y <= bottom; ++y) {
                BoxesTP& square = squareM(x, y);
                if (square.size() < MostLarge) {
                    square.emplace_back(control, place);
                }
            }
        }
    }

private:
    static constexpr int Bits = 8;
    // Its sides, so that most controls need not be looked at; those beyond any int are moved there.
    struct BoxCL
    {
        BoxCL(const CheckedControlCL& one, std::size_t at)
            : left(one.x)
            , top(one.y)
            , right(static_cast<int>(std::min<std::int64_t>(one.RightM(), INT_MAX)))
            , bottom(static_cast<int>(std::min<std::int64_t>(one.BottomM(), INT_MAX)))
            , place(static_cast<std::uint32_t>(at))
        {
        }
        bool MayCoverM(const BoxCL& other) const
        {
            // What stands in front mostly ends above, or to the left.
            return bottom >= other.bottom && right >= other.right && left <= other.left && top <= other.top;
        }
        int left, top, right, bottom;
        std::uint32_t place;
    };
    using BoxesTP = std::vector<BoxCL>;

    const CheckedControlCL* findM(const BoxesTP& boxes, const BoxCL& box) const
    {
        const CheckedControlCL& control = *stack_[box.place];
        for (const BoxCL& other : boxes) {
            if (!other.MayCoverM(box)) {
                continue;
            }
            const CheckedControlCL& cover = *stack_[other.place];
            if (cover.RightM() >= control.RightM() && cover.BottomM() >= control.BottomM()) {
                return &cover;
            }
        }
        return nullptr;
    }
    BoxesTP& squareM(std::int64_t x, std::int64_t y)
    {
        const auto place
            = static_cast<std::uint64_t>(static_cast<std::uint32_t>(x)) << 32 | static_cast<std::uint32_t>(y);
        if (last_ == nullptr || last_->first != place) {
            last_ = &*squares_.try_emplace(place).first;
        }
        return last_->second;
    }

    const StackTP& stack_;
    std::unordered_map<std::uint64_t, BoxesTP> squares_;
    std::pair<const std::uint64_t, BoxesTP>* last_ { nullptr }; // Of those.
    BoxesTP large_;
};

} // namespace

void checkPlaces(FileReadingCL& file, const StackTP& stack, FindingsCL& findings)
{
    const bool isPlaced = file.HasDialogM() && file.SectionM(DialogGrammar).soundRecords > 0;
    const DialogHeaderCL& dialog = file.DialogM();
    const FrameCL classic = frameOf(dialog, 4, 3, 1, 19);
    const FrameCL modern = frameOf(dialog, 8, 8, 1, 23); // Windows 10 and 11.
    CoversCL covers(stack);
    for (std::size_t place = 0; place < stack.size(); ++place) {
        const CheckedControlCL* const control = stack[place];
        if (control->w <= 0 || control->h <= 0) {
            findings.AddM(Says::NeverShown, control->positionAt,
                { std::to_string(control->w), std::to_string(control->h) });
            continue;
        }
        if (isPlaced) {
            checkOutside(dialog, classic, modern, *control, findings);
        }
        if (control->kind == 0) {
            continue;
        }
        const CheckedControlCL* const cover = covers.FindM(place);
        if (cover != nullptr) {
            findings.AddM(
                Says::HiddenBehind, control->positionAt, { std::to_string(file.LineM(cover->idAt) + 1) });
        } else if (control->kind != GroupBoxCode) {
            covers.AddM(place);
        }
    }
}
