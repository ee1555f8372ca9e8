#include "controls/buttons/new_rotate_btn.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "support/pictured_dialog.h"
#include <functional>
#include <gtest/gtest.h>
#include <memory>

using namespace testing_support;

namespace {

// The application's main window: allows what `allows` says and counts the queries.
class MainWindowCL : public PlainWindowCL
{
public:
    MainWindowCL()
    {
        app_.m_pMainWnd = this;
        ActivateM(m_hWnd);
    }
    ~MainWindowCL() override { app_.m_pMainWnd = nullptr; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == 1361) {
            ++queries;
            *reinterpret_cast<int*>(wParam) = allows;
            if (onQuery) {
                onQuery();
            }
        }
        return PlainWindowCL::WindowProc(message, wParam, lParam);
    }
    int allows { 1 };
    int queries { 0 };
    std::function<void()> onQuery;

private:
    CWinApp app_;
};

// A new rotate button with id 11 in the main window, with pictures of grey shades 0..count-1.
struct SeriesCL
{
    explicit SeriesCL(int count, int index, int left = 1, int right = -1, bool cycled = false)
    {
        VrStringArr names;
        for (int i = 0; i < count; ++i) {
            files.push_back(
                std::make_unique<SmallPictureCL>(0x101010U * static_cast<unsigned>(i + 1), 30, 30));
            VrStringCL name(AliveTag);
            name.AddStringM(files.back()->path());
            names.AddItemM(name);
        }
        const int position[2] = { 20, 20 };
        const int size[2] = { 30, 30 };
        const int steps[2] = { left, right };
        button.SetFunctionIDM(11);
        button.SetPositionM(position);
        button.SetSizeM(size);
        button.InitialM(steps, index, names);
        button.SetIsCycledM(cycled ? 1 : 0);
        button.Create(&window);
        SettleM();
    }
    int ShownM()
    {
        PumpPending();
        return static_cast<int>(Pixels(button.m_hWnd).AtM(5, 5) & 0xFF) / 16 - 1;
    }
    MainWindowCL window;
    std::vector<std::unique_ptr<SmallPictureCL>> files;
    DuNewRotateBtnCL button;
};

const std::set<UINT> ButtonMessages { 1224, 1225, 1424, 1625 };

} // namespace

TEST(NewRotateBtn, ClickPostsThePressAndSendsTheRelease)
{
    SeriesCL series(8, 3);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.button.GetCurIndxM(), 4);
    EXPECT_EQ(series.ShownM(), 4);
    ClickM(series.button.m_hWnd, 5, 5, Button::Right);
    EXPECT_EQ(series.ShownM(), 3);
    series.button.SetTouchWinClickAsMouseKeyM(3);
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 6);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=1", "sent 1225 w=11 l=1", "posted 1224 w=11 l=-1",
            "sent 1225 w=11 l=-1", "posted 1224 w=11 l=3", "sent 1225 w=11 l=3" }));
}

TEST(NewRotateBtn, SecondOfTwoFastClicksIsAClickToo)
{
    SeriesCL series(8, 3, 2, -1);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    DoubleClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 7);
    DoubleClickM(series.button.m_hWnd, 5, 5, Button::Right);
    EXPECT_EQ(series.ShownM(), 5);
    EXPECT_EQ(series.window.queries, 4);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=2", "sent 1225 w=11 l=2", "posted 1224 w=11 l=2",
            "sent 1225 w=11 l=2", "posted 1224 w=11 l=-1", "sent 1225 w=11 l=-1", "posted 1224 w=11 l=-1",
            "sent 1225 w=11 l=-1" }));
}

TEST(NewRotateBtn, LastPictureIsFollowedByTheFirstOnlyWhenCycled)
{
    {
        SeriesCL cycled(8, 7, 1, -1, true);
        const MessageRecorder messages(cycled.window.m_hWnd, { 1225 });
        ClickM(cycled.button.m_hWnd, 5, 5);
        EXPECT_EQ(cycled.ShownM(), 0);
        EXPECT_EQ(messages.ListM(), (MessageListTP { "sent 1225 w=11 l=1" }));
    }
    SeriesCL plain(8, 7);
    const MessageRecorder messages(plain.window.m_hWnd, { 1225 });
    ClickM(plain.button.m_hWnd, 5, 5);
    EXPECT_EQ(plain.ShownM(), 7);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(NewRotateBtn, BelowTheFirstPictureCycledGoesToTheLastWhateverTheStep)
{
    SeriesCL series(8, 0, -3, 20, true);
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 7);
    ClickM(series.button.m_hWnd, 5, 5, Button::Right);
    EXPECT_EQ(series.ShownM(), 3); // 27 mod 8.
}

TEST(NewRotateBtn, WhileHeldEachTimerStepMovesOneStepWithoutAMessage)
{
    SeriesCL series(8, 0, 1, 2);
    series.button.SetTouchWinClickAsMouseKeyM(2);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    series.button.OnTimerM(); // Nothing is held.
    EXPECT_EQ(series.ShownM(), 0);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM(Button::Right);
    EXPECT_EQ(::GetCapture(), series.button.m_hWnd);
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 2);
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 4);
    MoveMouseToM(series.button.m_hWnd, 100, 100); // Where it is released does not matter.
    ReleaseM(Button::Right);
    EXPECT_EQ(series.button.GetCurIndxM(), 4); // 4 + 2 * 2 is behind the last.
    series.button.OnTimerM();
    EXPECT_EQ(series.button.GetCurIndxM(), 4);
    EXPECT_EQ(::GetCapture(), nullptr);
    series.button.SetTouchWinClickAsMouseKeyM(1);
    ClickM(series.button.m_hWnd, 5, 5, Button::Right);
    EXPECT_EQ(series.ShownM(), 6);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=4", "posted 1224 w=11 l=2", "sent 1225 w=11 l=2" }));
}

TEST(NewRotateBtn, ReleaseAddsAStepTimesTheMultiplierToTheHeldOnes)
{
    SeriesCL series(12, 0, -1, 2);
    series.button.SetTouchWinClickAsMouseKeyM(3);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM(Button::Right);
    series.button.OnTimerM();
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 4);
    ReleaseM(Button::Right);
    EXPECT_EQ(series.ShownM(), 10);
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1224 w=11 l=6", "sent 1225 w=11 l=6" }));
}

TEST(NewRotateBtn, StopsTurningWhenTheMouseIsTakenAway)
{
    SeriesCL series(8, 0);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM();
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 1);
    ::SetCapture(series.window.m_hWnd); // As a message box does: the release goes there.
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 1);
    ::ReleaseCapture();
    ReleaseM();
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 1);
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 2);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=1", "posted 1224 w=11 l=1", "sent 1225 w=11 l=1" }));
}

TEST(NewRotateBtn, WithoutPermissionNothingHappens)
{
    SeriesCL series(8, 3);
    series.window.allows = 0;
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    ClickM(series.button.m_hWnd, 5, 5);
    series.button.OnTimerM();
    EXPECT_EQ(series.window.queries, 1); // Asked at the press only.
    EXPECT_EQ(series.button.GetCurIndxM(), 3);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(NewRotateBtn, SecondButtonPressedWhileTheFirstIsHeldTakesOverWithoutAReport)
{
    SeriesCL series(8, 0, 1, 2);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM();
    PressM(Button::Right);
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 2);
    ReleaseM(Button::Right);
    EXPECT_EQ(series.ShownM(), 4);
    EXPECT_EQ(::GetCapture(), nullptr);
    ReleaseM(); // The click is over.
    EXPECT_EQ(series.ShownM(), 4);
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1224 w=11 l=1", "sent 1225 w=11 l=2" }));
}

TEST(NewRotateBtn, ReleaseAfterPermissionWasWithdrawnMovesNothing)
{
    SeriesCL series(8, 3);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM();
    series.window.allows = 0;
    PressM(Button::Right); // Asks anew.
    ReleaseM(Button::Right);
    EXPECT_EQ(::GetCapture(), nullptr);
    series.button.OnTimerM(); // Not turned on for ever.
    ReleaseM();
    EXPECT_EQ(series.ShownM(), 3);
    EXPECT_EQ(series.window.queries, 2);
    series.window.allows = 1;
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 4);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=1", "posted 1224 w=11 l=1", "sent 1225 w=11 l=1" }));
}

namespace {

// A main window that destroys its new rotate button at one of the messages it gets from it.
class DestroyingWindowCL : public MainWindowCL
{
public:
    explicit DestroyingWindowCL(UINT message)
        : message_(message)
    {
        const int size[2] = { 30, 30 };
        const int steps[2] = { 1, 1 };
        const SmallPictureCL picture(Red, 30, 30);
        VrStringCL name(AliveTag);
        VrStringArr names;
        name.AddStringM(picture.path());
        names.AddItemM(name);
        button_ = new (memory_) DuNewRotateBtnCL;
        button_->SetSizeM(size);
        button_->InitialM(steps, 0, names);
        button_->SetIsCycledM(1);
        button_->Create(this);
        SettleM();
    }
    ~DestroyingWindowCL() override { destroyM(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = MainWindowCL::WindowProc(message, wParam, lParam);
        if (message == message_) {
            destroyM();
        }
        return result;
    }
    HWND ButtonM() const { return button_->m_hWnd; }
    bool IsLeftAloneM() const
    {
        return button_ == nullptr
            && std::all_of(std::begin(memory_), std::end(memory_), [](auto byte) { return byte == Gone; });
    }

private:
    void destroyM()
    {
        if (button_ != nullptr) {
            button_->~DuNewRotateBtnCL();
            button_ = nullptr;
            std::fill(std::begin(memory_), std::end(memory_), Gone);
        }
    }

    static constexpr unsigned char Gone = 0xDD;
    alignas(DuNewRotateBtnCL) unsigned char memory_[sizeof(DuNewRotateBtnCL)];
    DuNewRotateBtnCL* button_;
    UINT message_;
};

} // namespace

TEST(NewRotateBtn, ButtonDestroyedByWhatItTellsIsNotTouchedAgain)
{
    DestroyingWindowCL released(1225);
    ClickM(released.ButtonM(), 5, 5);
    EXPECT_TRUE(released.IsLeftAloneM());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(NewRotateBtn, ButtonDestroyedWhenItAsksForPermissionIsNotTouchedAgain)
{
    DestroyingWindowCL asked(1361);
    MoveMouseToM(asked.ButtonM(), 5, 5);
    PressM();
    ReleaseM();
    EXPECT_TRUE(asked.IsLeftAloneM());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(NewRotateBtn, PointerIsReportedToTheParentWithTheDescription)
{
    class ReportedCL : public MainWindowCL
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == 3044) {
                const auto* report = reinterpret_cast<PointerReportCL*>(wParam);
                CPoint at(report->x, report->y);
                report->control->ScreenToClient(&at);
                last = std::to_string(at.x) + " " + std::to_string(at.y) + " "
                    + reinterpret_cast<const char*>(lParam);
            }
            return MainWindowCL::WindowProc(message, wParam, lParam);
        }
        std::string last;
    };
    ReportedCL window;
    DuNewRotateBtnCL button;
    const int size[2] = { 30, 30 };
    button.SetSizeM(size);
    button.SetDescriptM("volume");
    ASSERT_EQ(button.Create(&window), 1);
    SettleM();
    MoveMouseToM(button.m_hWnd, 12, 13);
    EXPECT_EQ(window.last, "12 13 volume");
}

TEST(NewRotateBtn, IndexWithoutAPictureDrawsNothingAndNoPictureMeansNoStep)
{
    SeriesCL empty(0, 0, 1, -1, true);
    const MessageRecorder messages(empty.window.m_hWnd, { 1225 });
    ClickM(empty.button.m_hWnd, 5, 5);
    EXPECT_EQ(empty.button.GetCurIndxM(), 0);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
    DuNewRotateBtnCL fresh;
    EXPECT_EQ(fresh.GetCurIndxM(), -1);
}

TEST(NewRotateBtn, RecordFillsTheControl)
{
    const SmallPictureCL picture(Green, 30, 30);
    const std::string path = picture.path();
    const std::string name = path.substr(path.find_last_of("/\\") + 1);
    const DescriptionFileCL file("[窗口中新旋转按钮数据]\n-1 -1\n1 0 77 5 6 30 30 1 -1 1 4 音量\n"
                                 "[新旋转按钮对应的图片]\n1 1\n0 0 1 "
        + name.substr(0, name.size() - 4) + "\n");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrNewRotateBtnArr records;
    ASSERT_EQ(records.FmReadInterfaceM(&io), 1);
    MainWindowCL window;
    DuNewRotateBtnCL button;
    EXPECT_EQ(records.InitNewRotateBtnM(1, &button), 0);
    EXPECT_EQ(records.InitNewRotateBtnM(-1, &button), 0);
    EXPECT_EQ(records.InitNewRotateBtnM(0, &button), 1);
    ASSERT_EQ(button.Create(&window), 1);
    EXPECT_EQ(placeOf(button.m_hWnd), "5 6 30 30");
    EXPECT_EQ(::GetDlgCtrlID(button.m_hWnd), 77);
    EXPECT_EQ(button.GetShowConditionM(), 4);
    EXPECT_EQ(slGbkToUtf8(button.GetDescriptM()), "音量");
    EXPECT_EQ(button.GetCurIndxM(), 1);
    PumpPending();
    EXPECT_EQ(Pixels(button.m_hWnd).AtM(5, 5), asShown(Green));
}

TEST(NewRotateBtn, KeysMoveItAsTheMouseDoesOnceTheyAreUsed)
{
    SeriesCL series(8, 3, 1, -2);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    EXPECT_TRUE(FocusM(series.button.m_hWnd));
    for (const WORD key : { VK_SPACE, VK_RIGHT, VK_LEFT }) {
        KeyM(key);
    }
    EXPECT_EQ(messages.ListM(), MessageListTP {});
    EXPECT_EQ(series.window.queries, 0);
    series.button.UseKeyboardM(true);
    ClickM(series.button.m_hWnd, 5, 5);
    ClickM(series.button.m_hWnd, 5, 5, Button::Right);
    const int queries = series.window.queries;
    const auto clicked = messages.ListM();
    EXPECT_EQ(clicked.size(), 4u);
    const MessageRecorder byKeys(series.window.m_hWnd, ButtonMessages);
    KeyM(VK_UP);
    KeyM(VK_DOWN);
    PumpPending();
    EXPECT_EQ(byKeys.ListM(), clicked);
    EXPECT_EQ(series.window.queries, 2 * queries);
    EXPECT_EQ(series.button.GetCurIndxM(), 1);
    KeyDownM(VK_SPACE);
    series.button.OnTimerM(); // Held, it goes on as it does for the mouse.
    KeyUpM(VK_SPACE);
    EXPECT_EQ(series.button.GetCurIndxM(), 3);
    series.window.allows = 0;
    KeyM(VK_RIGHT);
    PumpPending();
    EXPECT_EQ(series.button.GetCurIndxM(), 3);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(NewRotateBtn, TheApplicationMayDestroyItWhenAKeyAsks)
{
    auto series = std::make_unique<SeriesCL>(8, 3);
    series->button.UseKeyboardM(true);
    EXPECT_TRUE(FocusM(series->button.m_hWnd));
    series->window.onQuery = [&series] { series->button.DestroyWindow(); };
    KeyM(VK_RIGHT);
    EXPECT_EQ(series->button.GetCurIndxM(), 3);
    EXPECT_EQ(series->window.queries, 1);
}
