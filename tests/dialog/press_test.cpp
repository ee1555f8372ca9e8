// A press on a control that a message about a value interrupts, for every kind of control.
#include "controls/buttons/new_rotate_btn.h"
#include "controls/text/edit_story.h"
#include "support/script.h"
#include "support/small_picture.h"
#include <algorithm>
#include <iterator>

using namespace testing_support;

namespace {

// Where a kind is pressed in the dialog below; a negative id means the window inside of the one with that id.
struct PressedCL
{
    const char* name;
    int id;
    int x;
    int y;
    const char* click; // What an undisturbed click reports.
    bool isButton { false };
};

std::ostream& operator<<(std::ostream& out, const PressedCL& pressed)
{
    return out << pressed.name;
}

constexpr int TreeId = 34;

const PressedCL Kinds[] = {
    { "StandardButton", 21, 10, 10, "posted 1625 w=21 l=0, sent 1424 w=21 l=0", true },
    { "RadioButtonChecked", 22, 10, 10, "posted 1625 w=22 l=0, posted 1734 w=22 l=0", true },
    { "RadioButton", 23, 10, 10, nullptr, true },
    { "CheckBox", 24, 10, 10, "posted 1739 w=24 l=0", true },
    { "BitmapButton", 25, 10, 10, "posted 1224 w=25 l=0, posted 1424 w=25 l=0" },
    { "MultiStateButton", 26, 10, 10, "posted 1424 w=26 l=1" },
    { "RotateButton", 27, 20, 20, "posted 1424 w=27 l=1" },
    { "NewRotateButton", 20, 10, 10, "posted 1224 w=20 l=1, sent 1225 w=20 l=1" },
    { "TextListBox", 28, 20, 5, nullptr },
    { "TextListBoxExtended", 29, 20, 5, nullptr },
    { "BitmapListBox", 30, 10, 10, nullptr },
    { "ComboBox", 31, 90, 8, nullptr },
    { "ComboBoxWithEdit", 32, 90, 8, nullptr },
    { "EditOfComboBox", -32, 10, 5, nullptr },
    { "ListControl", 33, 20, 35, nullptr },
    { "GroundOfListControl", 33, 20, 75, nullptr },
    { "Tree", TreeId, 50, 10, nullptr },
    { "MultiLineEdit", 35, 20, 10, nullptr },
    { "NormalAnimation", 36, 10, 10, "posted 1744 w=36 l=0" },
    { "SpecialAnimation", 37, 10, 10, nullptr },
    { "SpinEdit", 38, 10, 10, nullptr },
    { "SpinArrows", 39, 5, 4, nullptr },
    { "ButtonOfTheApplication", 41, 10, 10, nullptr, true },
    { "ButtonOfThePlatform", 42, 10, 10, nullptr, true },
};

// The numbers that controls report by.
const std::set<UINT> Reports { 1224, 1225, 1424, 1625, 1725, 1734, 1739, 1744, 1749 };

// Made before the dialog that shows it.
struct PictureOfAllCL
{
    SmallPictureCL picture { 0xFF0000, 40, 40 };
};

// One field 11 and one control of each kind. Messages about the field stay until the script answers them.
class PressCL : private PictureOfAllCL, public TestDialogCL
{
public:
    PressCL()
        : TestDialogCL(sections())
    {
        app_.m_pMainWnd = this;
        const RECT place { 560, 20, 660, 50 };
        button_.Create("b", WS_CHILD | WS_VISIBLE | WS_TABSTOP, place, this, 41);
        ::CreateWindowExW(0, L"Button", L"p", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 560, 60, 100, 30, m_hWnd,
            reinterpret_cast<HMENU>(static_cast<INT_PTR>(42)), nullptr, nullptr);
        addKnobM();
        ShowWindow(SW_SHOW);
        pumpFilter = [this](MSG* message) { return PreTranslateMessage(message) != FALSE; };
        EXPECT_TRUE(ActivateM(m_hWnd));
        recorder = std::make_unique<MessageRecorder>(m_hWnd, Reports);
    }
    ~PressCL() override
    {
        recorder.reset();
        pumpFilter = nullptr;
        app_.m_pMainWnd = nullptr;
    }

    HWND WindowM(int id) const { return id > 0 ? ItemM(id) : ::GetWindow(ItemM(-id), GW_CHILD); }
    void FillM(const wchar_t* text) { ::SetWindowTextW(ItemM(11), text); }
    std::string ReportsM() const
    {
        std::string all;
        for (const std::string& line : recorder->ListM()) {
            all += (all.empty() ? "" : ", ") + line;
        }
        return all;
    }
    HWND BoxM() const
    {
        const HWND box = ::GetLastActivePopup(m_hWnd);
        return box != m_hWnd && ::GetDlgItem(box, IDOK) != nullptr && ::IsWindowVisible(box) ? box : nullptr;
    }
    void AnswerM()
    {
        ++told;
        ::PostMessageW(BoxM(), WM_COMMAND, IDOK, 0);
    }
    // What a list, a tree or a table has selected, a bitmap button shows, a field says.
    std::string StateM(const PressedCL& at)
    {
        int kind = 0;
        std::string all = std::to_string(::SendMessageW(WindowM(at.id), LB_GETCURSEL, 0, 0)) + " "
            + textOf(WindowM(at.id));
        if (at.id == 25) {
            all += " "
                + std::to_string(static_cast<DuBmpButtonCL*>(GetContrlPtrM(25, &kind))->GetBtnStatusM());
        } else if (at.id == 33) {
            int rows = 0;
            static_cast<DuListCtrlCL*>(GetContrlPtrM(33, &kind))->GetSelNumM(&rows);
            all += " " + std::to_string(rows);
        }
        return all;
    }

    std::unique_ptr<MessageRecorder> recorder;
    int told { 0 };

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == 1361) {
            *reinterpret_cast<int*>(wParam) = 1;
        }
        return TestDialogCL::WindowProc(message, wParam, lParam);
    }

private:
    static std::string at(int place, const char* size)
    {
        return std::to_string(20 + 130 * (place % 4)) + " " + std::to_string(90 + 95 * (place / 4)) + " "
            + size;
    }
    std::string sections()
    {
        const std::string name = std::string(picture.path()) + "\n";
        return "[版本号]\n1.0\n[对话框]\n0\n20 20\n720 640\n1\n参数设置\n14 2 4\nNULL\n[单行文本]\n1\n0\n"
            + editRecord(11, "1 0 100", "5") + "[标准按钮]\n1\n0\n2 21 " + at(0, "100 30") + "\ns\n0\n"
            + "[单选按钮]\n2\n0\n3 22 " + at(1, "100 20") + " 1 1\na\n4 23 " + at(2, "100 20")
            + " 1 0\nb\n[多选按钮]\n1\n0\n5 24 " + at(3, "100 20") + " 0\nc\n[位图按钮]\n1\n0\n6 25 "
            + at(4, "40 40") + "\n" + name + name + name + name + "NULL\n[多态按钮]\n1\n0\n7 26 "
            + at(5, "40 40") + " 1\nNULL\n[多态按钮数据]\n2\n0\n26 1 " + name + "26 2 " + name
            + "[旋转按钮]\n1\n0\n8 27 " + at(6, "40 40") + " 0 0 20 20 1 -1 1 -1 30 1 90 0 0 0\n" + name
            + name + "NULL\n[文本列表框]\n2\n0\n9 28 " + at(7, "100 80") + " 16 1 1 255 255 255 0\n10 29 "
            + at(8, "100 80")
            + " 16 3 1 255 255 255 0\n[文本列表框初始值]\n6\n0\n28 a\n28 b\n28 c\n29 a\n29 b\n"
            + "29 c\n[图片列表框]\n1\n0\n11 30 " + at(9, "100 80") + " 2 1 2 1\n[图片列表框位图]\n2\n0\n30 "
            + name + "30 " + name + "[下拉列表框]\n2\n0\n12 31 " + at(10, "100 120") + " 0\n13 32 "
            + at(11, "100 120")
            + " 1\n[下拉列表框初始值]\n4\n0\n31 a\n31 b\n32 a\n32 b\n[列表控件]\n1\n0\n14 33 "
            + at(12, "120 90") + " 1 0\n[列表控件列标题]\n1\n0\n33 0 80 h\n[列表控件初始值]\n2\n0\n33 0 0 a\n"
            + "33 1 0 b\n[树形控件]\n1\n0\n15 34 " + at(13, "100 80")
            + "\n[树形控件数据]\n2\n0\n34 0 1 0 root\n" + name + name + "34 0 2 0 next\n" + name + name
            + "[多行文本]\n1\n0\n16 35 " + at(14, "100 80")
            + " 2 200\nsome text to select\n0 1 255 255 255\n[普通动画控件]\n1\n0\n17 36 " + at(15, "40 40")
            + " 2 0 0 1\n[普通动画控件位图]\n1\n0\n36 " + name + "[特殊动画控件]\n1\n0\n18 37 "
            + at(16, "40 40") + " 0 0\n[特殊动画控件位图]\n1\n0\n37 " + name + "[带spin的文本]\n1\n0\n19 38 "
            + at(17, "100 24") + " 1 0 100 0 1 2 7 20 39 16\n";
    }
    void addKnobM()
    {
        VrStringArr names;
        for (int i = 0; i < 3; ++i) {
            VrStringCL name(AliveTag);
            name.AddStringM(picture.path());
            names.AddItemM(name);
        }
        const int position[2] = { 560, 110 };
        const int size[2] = { 40, 40 };
        const int steps[2] = { 1, -1 };
        knob_.SetFunctionIDM(20);
        knob_.SetPositionM(position);
        knob_.SetSizeM(size);
        knob_.InitialM(steps, 0, names);
        knob_.Create(this);
    }

    CWinApp app_;
    CButton button_;
    DuNewRotateBtnCL knob_;
};

} // namespace

class PressTest : public testing::TestWithParam<PressedCL>
{
protected:
    // Nothing is pressed any more, nothing was reported, and nothing follows the mouse.
    void expectOverM()
    {
        const PressedCL& at = GetParam();
        const HWND window = story.WindowM(at.id);
        const MessageBoxWatcher watcher; // There is nothing more to tell.
        EXPECT_EQ(story.told, 1);
        EXPECT_EQ(::GetFocus(), story.ItemM(11));
        EXPECT_EQ(::GetCapture(), nullptr);
        if (at.isButton) {
            EXPECT_EQ(::SendMessageW(window, BM_GETSTATE, 0, 0) & BST_PUSHED, 0);
        }
        int kind = 0;
        EXPECT_EQ(static_cast<DuBmpButtonCL*>(story.GetContrlPtrM(25, &kind))->GetBtnStatusM(), ButtonNormal);
        EXPECT_EQ(::SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0), 0);
        const std::string state = story.StateM(at);
        MoveMouseToM(window, at.x + 8, at.y + 16);
        EXPECT_EQ(story.StateM(at), state);
        MoveMouseToM(story.m_hWnd, 5, 5);
        PressM();
        MoveMouseToM(window, at.x, at.y);
        ReleaseM();
        PumpPending();
        EXPECT_EQ(story.ReportsM(), "");
        EXPECT_EQ(story.StateM(at), state);
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_TRUE(watcher.SeenM().empty());
    }
    // And the next click is one like any other.
    void expectClickM()
    {
        const PressedCL& at = GetParam();
        story.FillM(L"5");
        story.recorder->ClearM();
        if (at.click != nullptr) {
            ClickM(story.WindowM(at.id), at.x, at.y);
            PumpPending();
            EXPECT_EQ(story.ReportsM(), at.click);
            EXPECT_EQ(story.told, 1);
        }
    }
    void run(bool releaseInBox)
    {
        Script script([this] { ::PostMessageW(story.BoxM(), WM_COMMAND, IDOK, 0); });
        if (releaseFirst) { // From a loop that waits for it.
            script.DoM([] { ReleaseM(); });
        }
        script.WaitM([this] { return story.BoxM() != nullptr; }, "the message");
        if (releaseInBox) {
            script.DoM([] { ReleaseM(); });
        }
        script.DoM([this] { story.AnswerM(); });
        act();
        EXPECT_TRUE(PumpUntil([&script] { return script.DoneM(); }));
        PumpPending();
        if (!releaseInBox) {
            ReleaseM();
            PumpPending();
        }
    }

    PressCL story;
    std::function<void()> act;
    bool releaseFirst { false };
};

class FocusingPressTest : public PressTest
{
protected:
    void leave(bool releaseInBox)
    {
        const PressedCL& at = GetParam();
        ASSERT_TRUE(FocusM(story.ItemM(11)));
        story.FillM(L"x");
        MoveMouseToM(story.WindowM(at.id), at.x, at.y);
        PumpPending();
        story.recorder->ClearM();
        act = [] { PressM(); };
        releaseFirst = at.id == TreeId;
        run(releaseInBox);
        expectOverM();
        expectClickM();
    }
};

TEST_P(FocusingPressTest, IsOverWhenTheReleaseCameWhileTheMessageOfTheFieldLeftWasOpen)
{
    leave(true);
}

TEST_P(FocusingPressTest, IsOverWhenTheReleaseCameAfterTheMessageOfTheFieldLeft)
{
    leave(false);
}

// The application has a field checked, as it does when another control reports the focus.
TEST_P(PressTest, IsOverWhenTheApplicationHadAFieldCheckedMeanwhile)
{
    const PressedCL& at = GetParam();
    ::SetFocus(nullptr);
    MoveMouseToM(story.WindowM(at.id), at.x, at.y);
    act = [this] {
        Script trigger;
        trigger.DoM([this] {
            PumpPending();
            story.recorder->ClearM();
            story.FillM(L"x");
            ::SendMessageW(story.ItemM(11), 1626, 0, 0);
        });
        PressM();
        EXPECT_TRUE(PumpUntil([&trigger] { return trigger.DoneM() && !InsideLoopCL::LivesM(); }));
    };
    run(true);
    expectOverM();
    expectClickM();
}

namespace {

std::vector<PressedCL> kindsWithout(const std::set<int>& ids)
{
    std::vector<PressedCL> kinds;
    std::copy_if(std::begin(Kinds), std::end(Kinds), std::back_inserter(kinds),
        [&ids](const PressedCL& kind) { return ids.count(kind.id) == 0; });
    return kinds;
}

} // namespace

// Kinds that don't take the focus at a press leave the field where it is. A tree waits for the release in a
// loop of its own, in which nothing else happens, and takes the focus then.
INSTANTIATE_TEST_SUITE_P(Kinds, FocusingPressTest,
    testing::ValuesIn(kindsWithout({ 20, 25, 26, 27, 36, 37 })),
    [](const auto& kind) { return kind.param.name; });
INSTANTIATE_TEST_SUITE_P(Kinds, PressTest, testing::ValuesIn(kindsWithout({ TreeId })),
    [](const auto& kind) { return kind.param.name; });
