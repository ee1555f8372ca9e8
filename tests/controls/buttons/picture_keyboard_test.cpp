// Picture controls worked by keys.
#include "controls/buttons/new_rotate_btn.h"
#include "support/pictured_dialog.h"
#include "support/shown_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// A multi-line edit (1), a bitmap button (2) with red, green and blue pictures, a multi-state button (3) with
// the states 10, 20, 30 at 20, a knob (4) of 0..90 in steps of 30 at 30, an animation that notifies (5), one
// that doesn't (6), and a standard button (7). The pictures have 40 by 30 pixels.
class PictureKeyboardTest : public testing::Test
{
protected:
    static std::string sections()
    {
        return HeaderSections
            + std::string("[多行文本]\n1\n0\n1 1 10 10 90 20 1 20\nx\n0 1 255 255 255\n[位图按钮]\n1\n0\n2 2 "
                          "20 50 40 30\n")
            + red_.path() + "\n" + green_.path() + "\n" + blue_.path() + "\n" + blue_.path()
            + "\nNULL\n[多态按钮]\n1\n0\n3 3 80 50 40 30 20\nNULL\n[多态按钮数据]\n3\n0\n3 10 " + red_.path()
            + "\n3 20 " + green_.path() + "\n3 30 " + blue_.path()
            + "\n[旋转按钮]\n1\n0\n4 4 140 50 40 30 10 5 10 10 1 -1 1 -1 30 1 90 0 30 0\n" + blue_.path()
            + "\n" + small_.path()
            + "\nNULL\n[普通动画控件]\n2\n0\n5 5 200 50 40 30 2 0 0 1\n6 6 260 50 40 30 2 0 0 0\n"
            + "[普通动画控件位图]\n2\n0\n5 " + red_.path() + "\n6 " + red_.path()
            + "\n[标准按钮]\n1\n0\n7 7 10 120 70 20\nlast\n0\n";
    }
    PictureKeyboardTest() { dialog_.StartAtM(1); }

    // The ids that Tab reaches, from the first on until it comes round.
    std::string tabsM()
    {
        std::string ids;
        dialog_.StartAtM(1);
        do {
            ids += std::to_string(ShownDialogCL::FocusedIdM()) + " ";
            KeyM(VK_TAB);
        } while (ShownDialogCL::FocusedIdM() != 1 && ids.size() < 40);
        return ids;
    }
    // What the keys bring the dialog, the focus at that control; reports of the focus left out.
    std::string afterM(int id, const std::function<void()>& act)
    {
        dialog_.StartAtM(id);
        act();
        return dialog_.StoryM();
    }
    std::string afterKeyM(int id, WORD key)
    {
        return afterM(id, [key] { KeyM(key); });
    }
    std::string afterClickM(int id, Button button = Button::Left)
    {
        return afterM(id, [this, id, button] { ClickM(dialog_.ItemM(id), 15, 12, button); });
    }
    Pixels shownM(int id)
    {
        PumpPending();
        return Pixels(dialog_.ItemM(id));
    }
    int stateM()
    {
        int kind = 0;
        int state = -1;
        static_cast<DuMultiStateButtonCL*>(dialog_.GetContrlPtrM(3, &kind))->GetCurStatusM(&state);
        return state;
    }
    float angleM()
    {
        int kind = 0;
        return static_cast<DuRotateBtnCL*>(dialog_.GetContrlPtrM(4, &kind))->GetAngleM();
    }

    static inline const SmallPictureCL red_ { Red, 40, 30 };
    static inline const SmallPictureCL green_ { Green, 40, 30 };
    static inline const SmallPictureCL blue_ { Blue, 40, 30 };
    static inline const SmallPictureCL small_ { Green, 20, 20 };
    ShownDialogCL dialog_ { sections() };
};

// Dots of a frame on a picture of one colour.
int dotsOf(const Pixels& shown)
{
    return shown.CountM(RGB(0, 0, 0)) + shown.CountM(RGB(255, 255, 255));
}

} // namespace

TEST_F(PictureKeyboardTest, ChangesNothingUnlessItIsUsed)
{
    const std::string tabs = tabsM();
    EXPECT_EQ(tabs, "1 2 3 7 4 "); // Not the animations.
    EXPECT_EQ(styleOf(dialog_.ItemM(2)), 0x50010100U);
    EXPECT_EQ(styleOf(dialog_.ItemM(5)), 0x50000100U);
    for (const int id : { 2, 3, 4, 5 }) {
        const Pixels before = shownM(id);
        for (const WORD key : { VK_SPACE, VK_HOME }) {
            EXPECT_EQ(afterKeyM(id, key), "") << id;
        }
        EXPECT_EQ(shownM(id).DifferencesM(before), 0) << id;
        EXPECT_EQ(::SendMessageW(dialog_.ItemM(id), WM_GETDLGCODE, 0, 0), DLGC_STATIC);
    }
    dialog_.SetPictureKeyboardM(true);
    dialog_.SetPictureKeyboardM(false);
    EXPECT_EQ(tabsM(), tabs);
    EXPECT_EQ(styleOf(dialog_.ItemM(5)), 0x50000100U);
    EXPECT_EQ(afterKeyM(2, VK_SPACE), "");
}

TEST_F(PictureKeyboardTest, TabReachesPicturesThatTakeClicks)
{
    dialog_.SetPictureKeyboardM(true);
    EXPECT_EQ(tabsM(), "1 2 3 5 7 4 ");
    EXPECT_EQ(styleOf(dialog_.ItemM(6)), 0x50000000U);
    ::EnableWindow(dialog_.ItemM(3), FALSE);
    EXPECT_EQ(tabsM(), "1 2 5 7 4 ");
}

TEST_F(PictureKeyboardTest, SpaceAndEnterPressABitmapButtonAsTheMouseDoes)
{
    dialog_.SetPictureKeyboardM(true);
    const std::string clicked = afterClickM(2);
    EXPECT_EQ(clicked, "posted 1224 w=2 l=0; posted 1424 w=2 l=0");
    EXPECT_EQ(afterKeyM(2, VK_SPACE), clicked);
    EXPECT_EQ(afterKeyM(2, VK_RETURN), clicked); // It doesn't close the dialog.
    EXPECT_TRUE(dialog_.IsWindowVisible());
    dialog_.StartAtM(2);
    KeyDownM(VK_SPACE);
    EXPECT_EQ(shownM(2).AtM(20, 15), asShown(Green));
    KeyDownM(VK_SPACE); // Held, it repeats.
    EXPECT_EQ(dialog_.StoryM(), "posted 1224 w=2 l=0");
    KeyUpM(VK_SPACE);
    EXPECT_EQ(shownM(2).AtM(20, 15), asShown(Blue));
    EXPECT_EQ(dialog_.StoryM(), "posted 1424 w=2 l=0");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PictureKeyboardTest, ArrowsLeaveABitmapButtonAsTheyLeaveEveryButton)
{
    dialog_.SetPictureKeyboardM(true);
    dialog_.StartAtM(2);
    KeyM(VK_DOWN);
    EXPECT_NE(ShownDialogCL::FocusedIdM(), 2);
}

TEST_F(PictureKeyboardTest, APressThatLosesTheFocusIsNoClick)
{
    dialog_.SetPictureKeyboardM(true);
    dialog_.StartAtM(2);
    KeyDownM(VK_SPACE);
    EXPECT_EQ(shownM(2).AtM(20, 15), asShown(Green));
    KeyM(VK_TAB);
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 3);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(shownM(2).AtM(20, 15), asShown(Red));
    KeyUpM(VK_SPACE);
    EXPECT_EQ(dialog_.StoryM(), "posted 1224 w=2 l=0; posted 1625 w=3 l=0");
    EXPECT_EQ(stateM(), 20); // The release is not its.
}

TEST_F(PictureKeyboardTest, APressThatLosesTheFocusTakesTheMouseFromNobodyElse)
{
    dialog_.SetPictureKeyboardM(true);
    for (const int id : { 2, 3, 4, 5 }) {
        dialog_.StartAtM(id);
        KeyDownM(VK_SPACE);
        ::SetCapture(dialog_.ItemM(7));
        ::SetFocus(dialog_.ItemM(1));
        EXPECT_EQ(::GetCapture(), dialog_.ItemM(7)) << id;
        ::ReleaseCapture();
        KeyUpM(VK_SPACE);
    }
}

TEST_F(PictureKeyboardTest, ArrowsGoThroughTheStates)
{
    dialog_.SetPictureKeyboardM(true);
    EXPECT_EQ(afterKeyM(3, VK_RIGHT), "posted 1424 w=3 l=2");
    EXPECT_EQ(stateM(), 30);
    EXPECT_EQ(shownM(3).AtM(20, 15), asShown(Blue));
    EXPECT_EQ(afterKeyM(3, VK_UP), "posted 1424 w=3 l=0");
    EXPECT_EQ(afterKeyM(3, VK_LEFT), "posted 1424 w=3 l=2");
    EXPECT_EQ(afterKeyM(3, VK_DOWN), "posted 1424 w=3 l=1");
    EXPECT_EQ(stateM(), 20);
    EXPECT_EQ(afterKeyM(3, VK_SPACE), "posted 1424 w=3 l=2");
    EXPECT_EQ(afterClickM(3), "posted 1424 w=3 l=0");
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 3);
}

TEST_F(PictureKeyboardTest, ArrowsTurnAKnobWithinItsRange)
{
    dialog_.SetPictureKeyboardM(true);
    EXPECT_EQ(afterKeyM(4, VK_RIGHT), "posted 1424 w=4 l=1");
    EXPECT_EQ(angleM(), 60);
    EXPECT_EQ(afterKeyM(4, VK_SPACE), "posted 1424 w=4 l=2");
    EXPECT_EQ(afterKeyM(4, VK_UP), ""); // At its end.
    EXPECT_EQ(angleM(), 90);
    EXPECT_EQ(afterKeyM(4, VK_LEFT), "posted 1424 w=4 l=1");
    EXPECT_EQ(afterKeyM(4, VK_DOWN), "posted 1424 w=4 l=0");
    EXPECT_EQ(angleM(), 30);
    EXPECT_EQ(afterClickM(4, Button::Right), "posted 1424 w=4 l=-1");
    EXPECT_EQ(afterKeyM(4, VK_LEFT), "");
}

TEST_F(PictureKeyboardTest, SpaceClicksAnAnimation)
{
    dialog_.SetPictureKeyboardM(true);
    const std::string clicked = afterClickM(5);
    EXPECT_EQ(clicked, "posted 1744 w=5 l=0");
    EXPECT_EQ(afterKeyM(5, VK_SPACE), clicked);
}

TEST_F(PictureKeyboardTest, AFrameShowsTheFocusAndLeavesNothingBehind)
{
    std::vector<Pixels> before;
    const std::vector<int> ids { 2, 3, 4, 5 };
    for (const int id : ids) {
        before.push_back(shownM(id));
    }
    dialog_.SetPictureKeyboardM(true);
    for (size_t i = 0; i < ids.size(); ++i) {
        const HWND window = dialog_.ItemM(ids[i]);
        dialog_.StartAtM(ids[i]);
        const Pixels framed = shownM(ids[i]);
        // One pixel wide, two from the edge: 36 by 26.
        EXPECT_EQ(framed.DifferencesM(before[i]), 2 * 36 + 2 * 24) << ids[i];
        EXPECT_EQ(dotsOf(framed), 2 * 36 + 2 * 24) << ids[i];
        EXPECT_EQ(framed.CountM(RGB(0, 0, 0)), 36 + 24) << ids[i];
        ::InvalidateRect(window, nullptr, TRUE);
        EXPECT_EQ(shownM(ids[i]).DifferencesM(framed), 0) << ids[i];
        const RECT part { 0, 0, 7, 7 };
        ::InvalidateRect(window, &part, FALSE);
        EXPECT_EQ(shownM(ids[i]).DifferencesM(framed), 0) << ids[i];
        dialog_.StartAtM(1);
        EXPECT_EQ(shownM(ids[i]).DifferencesM(before[i]), 0) << ids[i];
    }
}

TEST_F(PictureKeyboardTest, TheFrameIsHiddenWhenTheSystemHidesFrames)
{
    dialog_.SetPictureKeyboardM(true);
    const Pixels before = shownM(2);
    const auto hide = [this](WPARAM action) {
        ::SendMessageW(dialog_.ItemM(2), WM_UPDATEUISTATE, MAKEWPARAM(action, UISF_HIDEFOCUS), 0);
    };
    dialog_.StartAtM(2);
    hide(UIS_SET);
    EXPECT_EQ(shownM(2).DifferencesM(before), 0);
    hide(UIS_CLEAR);
    EXPECT_EQ(dotsOf(shownM(2)), 2 * 36 + 2 * 24);
}

TEST_F(PictureKeyboardTest, StaysThroughABuild)
{
    dialog_.DestroyM();
    dialog_.SetPictureKeyboardM(true);
    EXPECT_EQ(dialog_.InitDlgM(&dialog_, 1), 1);
    dialog_.ShowWindow(SW_SHOW);
    EXPECT_EQ(afterKeyM(2, VK_SPACE), "posted 1224 w=2 l=0; posted 1424 w=2 l=0");
    EXPECT_EQ(tabsM(), "1 2 3 5 7 4 ");
}

TEST_F(PictureKeyboardTest, ACopyOfAButtonTakesTheKeysOfItsOwnWindow)
{
    dialog_.SetPictureKeyboardM(true);
    dialog_.StartAtM(2);
    KeyDownM(VK_SPACE);
    int kind = 0;
    DuBmpButtonCL copy(*static_cast<DuBmpButtonCL*>(dialog_.GetContrlPtrM(2, &kind)));
    copy.SetFunctionIDM(22);
    const int place[2] = { 20, 160 };
    copy.SetPositionM(place);
    EXPECT_EQ(copy.Create(&dialog_), 1);
    KeyUpM(VK_SPACE);
    EXPECT_EQ(afterKeyM(22, VK_SPACE), "posted 1224 w=22 l=0; posted 1424 w=22 l=0");
}

TEST(PictureKeyboard, AButtonWithoutAPictureShowsTheFocusAndNothingAfterwards)
{
    ShownDialogCL dialog(HeaderSections
        + std::string("[多行文本]\n1\n0\n1 1 10 10 90 20 1 20\nx\n0 1 255 255 255\n[位图按钮]\n1\n0\n2 2 20 "
                      "50 40 30\nNULL\nNULL\nNULL\nNULL\nNULL\n"));
    dialog.StartAtM(1);
    const Pixels before(dialog.ItemM(2));
    dialog.SetPictureKeyboardM(true);
    dialog.StartAtM(2);
    const Pixels framed(dialog.ItemM(2));
    EXPECT_EQ(framed.CountM(RGB(0, 0, 0)), 36 + 24);
    EXPECT_EQ(framed.DifferencesM(before), 2 * 36 + 2 * 24);
    dialog.StartAtM(1);
    EXPECT_EQ(Pixels(dialog.ItemM(2)).DifferencesM(before), 0);
}

TEST(PictureKeyboard, AButtonOfTheApplicationsClassTakesKeysToo)
{
    struct OwnButtonCL : DuBmpButtonCL
    {
    };
    const SmallPictureCL red(Red, 40, 30);
    std::string section = HeaderSections + std::string("[位图按钮]\n1\n0\n2 2 20 50 40 30\n");
    for (int i = 0; i < 4; ++i) {
        section += std::string(red.path()) + "\n";
    }
    const DescriptionFileCL file(section + "NULL\n");
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    dialog.SetFactoryM<DuBmpButtonCL>([](int) { return std::make_unique<OwnButtonCL>(); });
    dialog.SetPictureKeyboardM(true);
    ASSERT_EQ(dialog.CreateM(), 1);
    dialog.ShowWindow(SW_SHOW);
    EXPECT_TRUE(ActivateM(dialog.m_hWnd));
    EXPECT_TRUE(FocusM(::GetDlgItem(dialog.m_hWnd, 2)));
    const MessageRecorder reports(dialog.m_hWnd, { ButtonDownMsg, ButtonActionMsg });
    KeyM(VK_SPACE);
    PumpPending();
    EXPECT_EQ(reports.ListM(), (std::vector<std::string> { "posted 1224 w=2 l=0", "posted 1424 w=2 l=0" }));
}
