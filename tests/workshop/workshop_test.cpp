// The example application as its user meets it: keyboard, mouse and screen, from one start to the next.
#include "idiom/child_program.h"
#include "support/temp_file.h"
#include "support/window.h"
#include <filesystem>
#include <optional>

using namespace testing_support;

namespace {

// Ids of the description files of examples/workshop.
enum Id : int
{
    Ok = 1,
    Cancel = 2,
    OpenMachine = 11,
    OpenPens = 12,
    OpenJog = 13,
    MachineSummary = 111,
    PensSummary = 112,
    JogSummary = 113,
    Defaults = 20,
    UseForLayer = 21,
    LayerPen = 901,
    TravelY = 1102,
    MaxSpeed = 1111,
    Acceleration = 1112,
    StartSpeed = 1113,
    Ramp = 1114,
    Remark = 1131,
    Inch = 3002,
    GoHome = 3022,
    Port = 4001,
    PenName = 1101,
    PenWidth = 1102,
    Nibs = 3001,
    Colours = 3002,
    Pens = 4001,
    Layers = 5001,
    XPlus = 1101,
    YPlus = 1102,
    Home = 1105,
    X = 1201,
    Y = 1202,
    Curve = 1301,
    FactorKnob = 1401,
    Factor = 1402,
    StepKnob = 1501,
    Step = 1502,
    PenSwitch = 1601,
    PenState = 1602,
    PenPicture = 1701
};

constexpr const wchar_t* MainTitle = L"绘图车间";
constexpr COLORREF CurveColour = RGB(38, 110, 190);

class Workshop : public testing::Test
{
protected:
    Workshop() { std::filesystem::remove_all(settings_); } // Of a run that was killed.
    ~Workshop() override
    {
        program_.reset();
        std::filesystem::remove_all(settings_);
    }

    void StartM()
    {
        program_.emplace("workshop", "--settings \"" + settings_ + "\"");
        main_ = program_->WindowM(MainTitle);
        ASSERT_NE(main_, nullptr);
    }
    void EndM()
    {
        KeyM(VK_ESCAPE);
        EXPECT_EQ(program_->ExitCodeM(), 0);
    }
    HWND OpenM(int button, const wchar_t* title)
    {
        ClickMiddle(::GetDlgItem(main_, button));
        dialog_ = program_->WindowM(title);
        EXPECT_NE(dialog_, nullptr);
        return dialog_;
    }
    HWND OpenMachineM() { return OpenM(OpenMachine, L"机床参数"); }
    HWND OpenPensM() { return OpenM(OpenPens, L"笔和图层"); }
    HWND OpenJogM() { return OpenM(OpenJog, L"点动面板"); }
    // The dialog is gone and its owner can be used again.
    bool BackInMainM() const
    {
        return Becomes([this] {
            return ::GetForegroundWindow() == main_ && ::IsWindowEnabled(main_)
                && program_->FocusM() != nullptr && (!::IsWindow(dialog_) || !::IsWindowVisible(dialog_));
        });
    }
    bool ClosedByM(int button)
    {
        ClickMiddle(ItemM(button));
        return BackInMainM();
    }
    bool ClosedByKeyM(WORD key)
    {
        KeyM(key);
        return BackInMainM();
    }

    HWND ItemM(int id) const { return ::GetDlgItem(dialog_, id); }
    bool SummaryBecomesM(int id, const wchar_t* text) const { return TextBecomes(main_, id, text); }
    void FillM(int id, const wchar_t* text)
    {
        ClickM(ItemM(id), 6, 8);
        ASSERT_TRUE(FocusBecomes(*program_, ItemM(id)));
        // Without a modifier key: the display may take one back that is pressed just behind a change of
        // windows.
        KeyM(VK_END);
        for (size_t left = TextOf(dialog_, id).size(); left > 0; --left) {
            KeyM(VK_BACK);
        }
        TypeM(text);
        ASSERT_TRUE(TextBecomes(dialog_, id, text));
    }
    POINT RowM(int row) const // Of the table.
    {
        RECT header {};
        ::GetClientRect(::FindWindowExW(ItemM(Pens), nullptr, L"SysHeader32", nullptr), &header);
        const auto heightOf = [this](WPARAM rows) {
            return static_cast<int>(HIWORD(::SendMessageW(ItemM(Pens), LVM_APPROXIMATEVIEWRECT, rows, -1)));
        };
        return { 80, header.bottom + 6 + row * (heightOf(2) - heightOf(1)) };
    }
    void ClickRowM(int row) { ClickM(ItemM(Pens), RowM(row).x, RowM(row).y); }
    void ClickLayerM(int line)
    {
        const auto height = static_cast<int>(::SendMessageW(ItemM(Layers), TVM_GETITEMHEIGHT, 0, 0));
        ClickM(ItemM(Layers), 90, height * line + height / 2);
    }
    // The message box that stands before the dialog, once it takes keys.
    HWND BoxM()
    {
        HWND box = nullptr;
        EXPECT_TRUE(Becomes([&] {
            box = ::GetForegroundWindow();
            return box != nullptr && ::GetWindow(box, GW_OWNER) == dialog_ && ::IsWindowVisible(box)
                && ::IsChild(box, program_->FocusM());
        })) << "no message box";
        SettleProgramM(box); // One that went before the display had told of it would take the focus along.
        return box;
    }

    const TempFile file_;
    std::string settings_ { std::string(file_.path()) + ".folder" }; // Not there yet.
    std::optional<ChildProgram> program_;
    HWND main_ { nullptr };
    HWND dialog_ { nullptr };
};

// Where in the picture the curve is highest; -1 where there is none.
int topOf(HWND canvas, COLORREF colour)
{
    const Pixels screen(::GetDesktopWindow());
    RECT rect {};
    ::GetClientRect(canvas, &rect);
    ::MapWindowPoints(canvas, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            if (screen.AtM(x, y) == colour) {
                return y - static_cast<int>(rect.top);
            }
        }
    }
    return -1;
}

} // namespace

TEST_F(Workshop, ABadParameterIsToldCorrectedAcceptedAndKept)
{
    StartM();
    EXPECT_TRUE(SummaryBecomesM(MachineSummary, L"绘图机 一号: 841.0 x 594.0 mm, 200 mm/s"));
    EXPECT_TRUE(SummaryBecomesM(PensSummary, L"出厂设置"));
    OpenMachineM();
    EXPECT_TRUE(TextBecomes(dialog_, Ramp, L"加速 0.02 s, 经过 2.5 mm"));
    FillM(MaxSpeed, L"2000");
    EXPECT_TRUE(TextBecomes(dialog_, Ramp, L"")); // It says nothing of what is not legal.

    // The mouse goes down on another field, and up only when the message has been read.
    MoveMouseToM(ItemM(TravelY), 10, 8);
    PressM();
    const HWND box = BoxM();
    ASSERT_NE(box, nullptr);
    EXPECT_NE(TextOf(box, 0xFFFF).find(L"1500"), std::wstring::npos)
        << testing::PrintToString(TextOf(box, 0xFFFF));
    ReleaseM();
    EXPECT_TRUE(::IsWindow(box));
    KeyM(VK_RETURN);
    ASSERT_TRUE(Becomes([&] { return !::IsWindow(box); }));
    EXPECT_TRUE(FocusBecomes(*program_, ItemM(MaxSpeed)));
    EXPECT_TRUE(TextBecomes(dialog_, MaxSpeed, L"1500")); // The limit.
    EXPECT_EQ(TextOf(dialog_, TravelY), L"594.0");

    FillM(MaxSpeed, L"320");
    EXPECT_TRUE(TextBecomes(dialog_, Ramp, L"加速 0.04 s, 经过 6.4 mm"));
    FillM(StartSpeed, L"150");
    FillM(Remark, L"two words");
    ClickM(ItemM(Inch), 8, 8);
    ClickM(ItemM(GoHome), 8, 8);
    ClickMiddle(ItemM(Port));
    KeyM(VK_DOWN);
    KeyM(VK_DOWN);
    KeyM(VK_RETURN);
    EXPECT_TRUE(TextBecomes(dialog_, Port, L"COM3"));
    EXPECT_TRUE(ClosedByM(Ok));
    EXPECT_TRUE(SummaryBecomesM(MachineSummary, L"绘图机 一号: 841.0 x 594.0 mm, 320 mm/s"));
    EndM();

    StartM();
    EXPECT_TRUE(SummaryBecomesM(MachineSummary, L"绘图机 一号: 841.0 x 594.0 mm, 320 mm/s"));
    OpenMachineM();
    EXPECT_EQ(TextOf(dialog_, MaxSpeed), L"320");
    EXPECT_EQ(TextOf(dialog_, StartSpeed), L"150");
    EXPECT_EQ(TextOf(dialog_, Remark), L"two words");
    EXPECT_EQ(TextOf(dialog_, Port), L"COM3");
    EXPECT_EQ(::SendMessageW(ItemM(Inch), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(::SendMessageW(ItemM(GoHome), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(Workshop, CancelEscAndBadValuesLeaveTheParametersAsTheyWere)
{
    StartM();
    OpenMachineM();
    FillM(MaxSpeed, L"500");
    EXPECT_TRUE(ClosedByM(Cancel));
    OpenMachineM();
    EXPECT_EQ(TextOf(dialog_, MaxSpeed), L"200");
    FillM(MaxSpeed, L"99999");
    EXPECT_TRUE(ClosedByKeyM(VK_ESCAPE));
    EXPECT_TRUE(SummaryBecomesM(MachineSummary, L"绘图机 一号: 841.0 x 594.0 mm, 200 mm/s"));

    // What no field can see by itself.
    OpenMachineM();
    FillM(MaxSpeed, L"100");
    FillM(StartSpeed, L"120");
    KeyM(VK_RETURN);
    ASSERT_NE(BoxM(), nullptr);
    KeyM(VK_RETURN);
    EXPECT_TRUE(FocusBecomes(*program_, ItemM(StartSpeed)));
    EXPECT_TRUE(::IsWindowVisible(dialog_));

    // A spin edit keeps what was typed; neither Enter takes it.
    FillM(StartSpeed, L"900");
    KeyM(VK_RETURN);
    ASSERT_NE(BoxM(), nullptr);
    KeyM(VK_RETURN);
    EXPECT_TRUE(FocusBecomes(*program_, ItemM(StartSpeed)));
    EXPECT_EQ(TextOf(dialog_, StartSpeed), L"900");
    FillM(StartSpeed, L"20");
    ClickMiddle(ItemM(Defaults));
    EXPECT_TRUE(TextBecomes(dialog_, MaxSpeed, L"200"));
    EXPECT_TRUE(ClosedByKeyM(VK_ESCAPE));
    EndM();
    EXPECT_FALSE(std::filesystem::exists(settings_)); // Nothing was accepted.
}

TEST_F(Workshop, WhatCannotBeWrittenIsToldAndNothingIsLost)
{
    settings_ = file_.path(); // A file stands where the folder should be.
    StartM();
    OpenMachineM();
    FillM(MaxSpeed, L"300");
    KeyM(VK_RETURN);
    ASSERT_NE(BoxM(), nullptr);
    KeyM(VK_RETURN);
    EXPECT_TRUE(FocusBecomes(*program_, ItemM(Ok)));
    EXPECT_EQ(TextOf(dialog_, MaxSpeed), L"300");
    EXPECT_TRUE(ClosedByKeyM(VK_ESCAPE));
    EXPECT_TRUE(SummaryBecomesM(MachineSummary, L"绘图机 一号: 841.0 x 594.0 mm, 200 mm/s"));
}

TEST_F(Workshop, APenIsChosenChangedAndGivenToALayer)
{
    StartM();
    OpenPensM();
    EXPECT_TRUE(TextBecomes(dialog_, PenName, L"轮廓")); // The first row is chosen.
    ClickRowM(2);
    EXPECT_TRUE(TextBecomes(dialog_, PenName, L"文字"));
    EXPECT_TRUE(TextBecomes(dialog_, PenWidth, L"0.35"));
    EXPECT_EQ(::SendMessageW(ItemM(Nibs), LB_GETCURSEL, 0, 0), 1);
    FillM(PenName, L"fine");
    FillM(PenWidth, L"9");
    const POINT other = RowM(0);
    MoveMouseToM(ItemM(Pens), other.x, other.y);
    PressM();
    ASSERT_NE(BoxM(), nullptr);
    ReleaseM();
    KeyM(VK_RETURN);
    EXPECT_TRUE(FocusBecomes(*program_, ItemM(PenWidth)));
    EXPECT_EQ(TextOf(dialog_, PenName), L"fine"); // The other row was not reached.
    FillM(PenWidth, L"0.45");
    ClickM(ItemM(Nibs), 20, 8 + 2 * static_cast<int>(::SendMessageW(ItemM(Nibs), LB_GETITEMHEIGHT, 0, 0)));
    EXPECT_TRUE(Becomes([this] { return ::SendMessageW(ItemM(Nibs), LB_GETCURSEL, 0, 0) == 2; }));
    ClickM(ItemM(Colours), 20, 50);
    EXPECT_TRUE(Becomes([this] { return ::SendMessageW(ItemM(Colours), LB_GETCURSEL, 0, 0) == 1; }));
    ClickRowM(0);
    EXPECT_TRUE(TextBecomes(dialog_, PenName, L"轮廓"));
    EXPECT_EQ(::SendMessageW(ItemM(Colours), LB_GETCURSEL, 0, 0), 0);

    ClickLayerM(4);
    EXPECT_TRUE(TextBecomes(dialog_, LayerPen, L"文字: 3 号笔"));
    EXPECT_TRUE(TextBecomes(dialog_, PenName, L"fine"));
    ClickRowM(5);
    EXPECT_TRUE(TextBecomes(dialog_, PenName, L"备用"));
    ClickMiddle(ItemM(UseForLayer));
    EXPECT_TRUE(TextBecomes(dialog_, LayerPen, L"文字: 6 号笔"));
    EXPECT_TRUE(ClosedByM(Ok));
    EXPECT_TRUE(SummaryBecomesM(PensSummary, L"轮廓, 尺寸, fine, 辅助, 图框, 备用"));
    EndM();

    StartM();
    OpenPensM();
    EXPECT_TRUE(TextBecomes(dialog_, LayerPen, L"文字: 6 号笔"));
    EXPECT_EQ(TextOf(dialog_, PenName), L"备用");
    ClickRowM(2);
    EXPECT_TRUE(TextBecomes(dialog_, PenName, L"fine"));
    EXPECT_EQ(TextOf(dialog_, PenWidth), L"0.45");
    EXPECT_EQ(::SendMessageW(ItemM(Nibs), LB_GETCURSEL, 0, 0), 2);
    EXPECT_EQ(::SendMessageW(ItemM(Colours), LB_GETCURSEL, 0, 0), 1);
    FillM(PenName, L"lost");
    EXPECT_TRUE(ClosedByKeyM(VK_ESCAPE));
    EXPECT_TRUE(SummaryBecomesM(PensSummary, L"轮廓, 尺寸, fine, 辅助, 图框, 备用"));
}

TEST_F(Workshop, KnobsButtonsAndPenAnswerAndTheCurveFollows)
{
    StartM();
    EXPECT_TRUE(SummaryBecomesM(JogSummary, L"倍率 100 %, 步长 10 mm"));
    OpenJogM();
    const HWND curve = ItemM(Curve);
    EXPECT_TRUE(FocusBecomes(*program_, ItemM(YPlus)));
    ASSERT_TRUE(Becomes([&] { return topOf(curve, CurveColour) > 0; }));
    const int top = topOf(curve, CurveColour);
    ClickMiddle(ItemM(FactorKnob));
    EXPECT_TRUE(TextBecomes(dialog_, Factor, L"110 %"));
    EXPECT_TRUE(Becomes([&] { return topOf(curve, CurveColour) < top; })); // Higher on the screen.
    ClickM(ItemM(FactorKnob), 50, 50, Button::Right);
    EXPECT_TRUE(TextBecomes(dialog_, Factor, L"100 %"));
    EXPECT_TRUE(Becomes([&] { return topOf(curve, CurveColour) == top; }));
    ClickMiddle(ItemM(StepKnob));
    EXPECT_TRUE(TextBecomes(dialog_, Step, L"50 mm"));
    ClickM(ItemM(StepKnob), 30, 30, Button::Right);
    EXPECT_TRUE(TextBecomes(dialog_, Step, L"10 mm"));

    KeyM(VK_SPACE); // The arrow with the focus.
    EXPECT_TRUE(TextBecomes(dialog_, Y, L"10.00"));
    EXPECT_TRUE(FocusBecomes(*program_, ItemM(YPlus)));
    ClickMiddle(ItemM(XPlus));
    EXPECT_TRUE(TextBecomes(dialog_, X, L"10.00"));
    EXPECT_TRUE(Becomes([&] { return ::IsWindowEnabled(ItemM(Home)) != FALSE; }));
    ClickMiddle(ItemM(Home));
    EXPECT_TRUE(TextBecomes(dialog_, X, L"0.00"));
    EXPECT_TRUE(TextBecomes(dialog_, Y, L"0.00"));
    const int above = CountOnScreen(ItemM(PenPicture), CurveColour);
    ClickMiddle(ItemM(PenSwitch));
    EXPECT_TRUE(TextBecomes(dialog_, PenState, L"落下"));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(PenPicture), CurveColour) > above; })); // It draws.

    ClickMiddle(ItemM(FactorKnob));
    EXPECT_TRUE(TextBecomes(dialog_, Factor, L"110 %"));
    EXPECT_TRUE(ClosedByM(Ok));
    EXPECT_TRUE(SummaryBecomesM(JogSummary, L"倍率 110 %, 步长 10 mm"));
    OpenJogM();
    EXPECT_TRUE(TextBecomes(dialog_, Factor, L"110 %"));
    EXPECT_TRUE(TextBecomes(dialog_, PenState, L"落下"));
    ASSERT_TRUE(Becomes(
        [&] { return topOf(ItemM(Curve), CurveColour) > 0 && topOf(ItemM(Curve), CurveColour) < top; }));
    const int fast = topOf(ItemM(Curve), CurveColour);
    ClickMiddle(ItemM(FactorKnob));
    EXPECT_TRUE(TextBecomes(dialog_, Factor, L"120 %"));
    EXPECT_TRUE(ClosedByKeyM(VK_ESCAPE));
    EXPECT_TRUE(SummaryBecomesM(JogSummary, L"倍率 110 %, 步长 10 mm"));

    // Another acceleration gives the same move another curve.
    OpenMachineM();
    FillM(Acceleration, L"2000");
    EXPECT_TRUE(ClosedByM(Ok));
    OpenJogM();
    EXPECT_TRUE(TextBecomes(dialog_, Factor, L"110 %"));
    EXPECT_TRUE(Becomes([&] { return topOf(ItemM(Curve), CurveColour) > fast; }));
}
