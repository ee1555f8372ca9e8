// Dialogs of picture controls: built again, shown again with another file, enabled and disabled.
#include "support/pictured_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// A dialog with one of each picture control, of any size, each of one colour.
struct PictureControlsCL
{
    std::string SectionsM(int width, int height) const
    {
        const std::string size = std::to_string(width) + " " + std::to_string(height);
        const std::string name = std::string(red.path()) + "\n";
        return "[位图按钮]\n1\n0\n1 11 10 10 " + size + "\n" + name + name + name + name + shape.path()
            + "\n[多态按钮]\n1\n0\n2 12 130 10 " + size + " 1\n" + shape.path()
            + "\n[多态按钮数据]\n2\n0\n12 1 " + name + "12 2 " + name + "[旋转按钮]\n1\n0\n3 13 250 10 "
            + size + " 0 0 5 5 1 -1 1 -1 30 1 90 0 0 0\n" + name + name
            + "NULL\n[普通动画控件]\n1\n0\n4 14 10 110 " + size + " 1 0 0 1\n[普通动画控件位图]\n1\n0\n14 "
            + name + "[特殊动画控件]\n1\n0\n5 15 130 110 " + size + " 0 0\n[特殊动画控件位图]\n1\n0\n15 "
            + name;
    }
    SmallPictureCL red { Red, 100, 80 };
    SmallPictureCL shape { 0x000000, 21, 11 };
};

std::string boxOfWindowRegion(HWND window)
{
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    RECT box {};
    ::GetWindowRgn(window, region);
    ::GetRgnBox(region, &box);
    ::DeleteObject(region);
    return std::to_string(box.right) + " " + std::to_string(box.bottom);
}

} // namespace

TEST(PictureControls, BuildsLeaveNoGdiObjectBehind)
{
    const PictureControlsCL controls;
    TestDialogCL dialog(HeaderSections + controls.SectionsM(40, 30));
    dialog.ShowWindow(SW_SHOW);
    const auto round = [&dialog] {
        dialog.DestroyM();
        dialog.InitDlgM(&dialog, 0); // Mode 1 would hide the dialog.
        dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    };
    for (int i = 0; i < 50; ++i) {
        round();
    }
    const int objects = LiveGdiObjectsM();
    for (int i = 0; i < 200; ++i) {
        round();
    }
    EXPECT_EQ(LiveGdiObjectsM(), objects);
}

TEST(PictureControls, DestroyedOnesHoldNothingAnyMore)
{
    const PictureControlsCL controls;
    const DescriptionFileCL file(HeaderSections + controls.SectionsM(40, 30));
    const TestDialogCL warmUp(HeaderSections + controls.SectionsM(40, 30));
    TestDialogCL dialog(HeaderSections);
    dialog.DestroyM();
    const int objects = LiveGdiObjectsM();
    dialog.SetConfigFileM(file.path());
    dialog.InitDlgM(&dialog, 0);
    EXPECT_GT(LiveGdiObjectsM(), objects);
    dialog.DestroyM();
    EXPECT_EQ(LiveGdiObjectsM(), objects);
}

TEST(PictureControls, SecondShowingWithAnotherFileHasItsOwnRegions)
{
    const PictureControlsCL controls;
    PicturedDialogCL dialog(controls.SectionsM(40, 30));
    const DescriptionFileCL larger(HeaderSections + controls.SectionsM(90, 70));
    EXPECT_EQ(boxOfWindowRegion(dialog.ItemM(12)), "40 30");
    dialog.SetConfigFileM(larger.path());
    dialog.DestroyM();
    dialog.InitDlgM(&dialog, 0);
    for (const int id : { 11, 12, 13 }) {
        EXPECT_EQ(boxOfWindowRegion(dialog.ItemM(id)), "90 70") << id;
    }
    // All of the button takes clicks, as at the first time.
    ClickM(dialog.ItemM(12), 85, 65);
    int status = 0;
    dialog.ControlM<DuMultiStateButtonCL>(12)->GetCurStatusM(&status);
    EXPECT_EQ(status, 2);
}

TEST(PictureControls, EnablingAndDisablingKeepsWhatTheyShow)
{
    const PictureControlsCL controls;
    PicturedDialogCL dialog(controls.SectionsM(40, 30));
    for (const int enable : { 0, 1 }) {
        dialog.EnableAllCtrlM(enable);
        for (const int id : { 11, 12, 13, 14 }) {
            EXPECT_EQ(::IsWindowEnabled(dialog.ItemM(id)), enable);
            EXPECT_EQ(dialog.PixelM(id, 7, 8), asShown(Red)) << id;
        }
    }
}
