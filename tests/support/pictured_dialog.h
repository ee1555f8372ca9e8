#pragma once
#include "support/all.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"

constexpr std::uint32_t Red = 0xFF0000;
constexpr std::uint32_t Green = 0x00FF00;
constexpr std::uint32_t Blue = 0x0000FF;

inline COLORREF asShown(std::uint32_t colour)
{
    return RGB(colour >> 16 & 0xFF, colour >> 8 & 0xFF, colour & 0xFF);
}

// The dialog of a description, shown and in the foreground, and what it gets from its controls.
class PicturedDialogCL : public TestDialogCL
{
public:
    explicit PicturedDialogCL(const std::string& sections)
        : TestDialogCL(HeaderSections + sections)
    {
        ShowWindow(SW_SHOW);
        testing_support::ActivateM(m_hWnd);
    }

    template <class ControlTP> ControlTP* ControlM(int id) const
    {
        return dynamic_cast<ControlTP*>(CWnd::FromHandlePermanent(ItemM(id)));
    }
    // The pixel as on the screen, painting brought up to date before.
    COLORREF PixelM(int id, int x, int y) const
    {
        testing_support::PumpPending();
        return testing_support::Pixels(ItemM(id)).AtM(x, y);
    }
};

using MessageListTP = std::vector<std::string>;
