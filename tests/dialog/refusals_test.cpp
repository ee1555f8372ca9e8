// How the user is told of a value that is refused, as the application chooses it: in which words, over which
// window, and what happens to the text.
#include "controls/text/edit_story.h"
#include "support/script.h"
#include <stdexcept>

using namespace testing_support;

namespace {

// Fields 11 and 12 with a number, 13 with a text, a spin edit 14 with arrows 1014.
std::string refusalSections()
{
    return editSection({ editRecord(11, "1 0 100", "5"), editRecord(12, "2 0.5 9.5", "1", 2),
               editRecord(13, "3 0 4", "abc") })
        + "[带spin的文本]\n1\n0\n1 14 20 150 120 24 1 0 10 0 4 2 9 2 1014 16\n";
}

// The dialog, shown and in the foreground, of a program that has another window too.
class RefusalsTest : public testing::Test
{
protected:
    RefusalsTest()
        : dialog(refusalSections())
    {
        app_.m_pMainWnd = &main;
        dialog.ShowWindow(SW_SHOW);
        pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
        EXPECT_TRUE(ActivateM(dialog.m_hWnd));
    }
    ~RefusalsTest() override
    {
        pumpFilter = nullptr;
        app_.m_pMainWnd = nullptr;
        for (int id = 0; id < MessageTextCount; ++id) {
            EXPECT_TRUE(DuBasicDialogCL::SetMessageTextM(id, nullptr));
        }
    }

    HWND itemM(int id) const { return dialog.ItemM(id); }
    std::string textM(int id) const { return textOf(itemM(id)); }
    // The message that is open, found as the user finds it: the window in front.
    HWND boxM() const
    {
        const HWND front = ::GetForegroundWindow();
        return front != dialog.m_hWnd && ::GetDlgItem(front, 0xFFFF) != nullptr ? front : nullptr;
    }
    // What the user types into a field, after which a slow hand presses the mouse on another control and lets
    // go of it only when the message is there. look() while it is.
    void leaveM(
        int from, const wchar_t* typed, int to, const std::function<void()>& look = [] {})
    {
        EXPECT_TRUE(FocusM(itemM(from)));
        ::SetWindowTextW(itemM(from), typed);
        Script script([this] { ::PostMessageW(boxM(), WM_COMMAND, IDOK, 0); });
        script.WaitM([this] { return boxM() != nullptr; }, "the message").DoM([&look] {
            ReleaseM();
            look();
        });
        script.DoM([this] { ::PostMessageW(boxM(), WM_COMMAND, IDOK, 0); });
        RECT place {};
        ::GetClientRect(itemM(to), &place);
        MoveMouseToM(itemM(to), place.right / 2, place.bottom / 4);
        PressM();
        if (!PumpUntil([&script] { return script.DoneM(); })) {
            throw std::runtime_error("no message"); // The next one would wait for ever.
        }
        PumpPending();
        EXPECT_EQ(::GetFocus(), itemM(from));
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_TRUE(::IsWindowEnabled(dialog.m_hWnd));
    }
    // What typing then makes of the text.
    std::string typedM(int id)
    {
        TypeM(L"7");
        return textM(id);
    }
    // What the message says when a field is left with that text: "caption: text".
    std::string saidM(int from, const wchar_t* typed)
    {
        const MessageBoxWatcher told;
        EXPECT_TRUE(FocusM(itemM(from)));
        ::SetWindowTextW(itemM(from), typed);
        ::SetFocus(itemM(from == 11 ? 12 : 11));
        EXPECT_EQ(::GetFocus(), itemM(from));
        ::SetWindowTextW(itemM(from), L"1"); // Good again.
        const auto seen = told.SeenM();
        return seen.size() != 1 ? "" : utf8M(seen[0].caption) + ": " + utf8M(seen[0].text);
    }
    static std::string utf8M(const std::wstring& wide) { return ValueTextCL(wide).Utf8M(); }

    CWinApp app_ { "Refusals" };
    PlainWindowCL main;
    TestDialogCL dialog;
};

} // namespace

TEST_F(RefusalsTest, LeaveTheTextUnselectedUnlessAskedFor)
{
    leaveM(11, L"500", 12);
    EXPECT_EQ(textM(11), "100");
    EXPECT_EQ(typedM(11), "7100");
    ::SetWindowTextW(itemM(11), L"5");
    leaveM(14, L"50", 11);
    EXPECT_EQ(typedM(14), "750");
}

TEST_F(RefusalsTest, SelectTheTextOfALeftFieldIfAskedFor)
{
    dialog.SetSelectRefusedM(true);
    leaveM(11, L"500", 12);
    EXPECT_EQ(textM(11), "100");
    EXPECT_EQ(typedM(11), "7");
    leaveM(12, L"x", 13);
    EXPECT_EQ(typedM(12), "7");
    leaveM(13, L"abcdef", 14);
    EXPECT_EQ(textM(13), "abcd");
    EXPECT_EQ(typedM(13), "7");
    leaveM(14, L"50", 11);
    EXPECT_EQ(textM(14), "50");
    EXPECT_EQ(typedM(14), "7");
    dialog.SetSelectRefusedM(false);
    leaveM(11, L"500", 12);
    EXPECT_EQ(typedM(11), "7100");
}

TEST_F(RefusalsTest, SelectTheTextBehindARefusedStepIfAskedFor)
{
    dialog.SetSelectRefusedM(true);
    leaveM(14, L"9", 1014); // The upper arrow, by 4.
    EXPECT_EQ(textM(14), "9");
    EXPECT_EQ(typedM(14), "7");
}

TEST_F(RefusalsTest, SelectTheTextOfAFieldThatTheApplicationAsks)
{
    dialog.SetSelectRefusedM(true);
    const MessageBoxWatcher told;
    for (const int id : { 11, 14 }) {
        EXPECT_TRUE(FocusM(itemM(id)));
        ::SetWindowTextW(itemM(id), L"500");
        ::SendMessageW(itemM(id), CheckValueMsg, 0, 0);
        EXPECT_EQ(textM(id), "500");
        EXPECT_EQ(typedM(id), "7") << id;
    }
    EXPECT_EQ(told.SeenM().size(), 2U);
}

TEST_F(RefusalsTest, AreToldAsChosenAfterARebuildToo)
{
    dialog.SetSelectRefusedM(true);
    dialog.SetMessageOwnerM(true);
    dialog.InitDlgM(&dialog, 1);
    dialog.ShowWindow(SW_SHOW);
    leaveM(11, L"500", 12, [this] { EXPECT_EQ(::GetWindow(boxM(), GW_OWNER), dialog.m_hWnd); });
    EXPECT_EQ(typedM(11), "7");
}

TEST_F(RefusalsTest, OfSingleLineEditsBelongToTheMainWindowUnlessAskedFor)
{
    leaveM(11, L"500", 12, [this] {
        EXPECT_NE(::GetWindow(boxM(), GW_OWNER), dialog.m_hWnd);
        EXPECT_TRUE(::IsWindowEnabled(dialog.m_hWnd));
    });
}

TEST_F(RefusalsTest, StandOverTheDialogIfAskedFor)
{
    dialog.SetMessageOwnerM(true);
    const auto look = [this] {
        EXPECT_EQ(::GetWindow(boxM(), GW_OWNER), dialog.m_hWnd);
        EXPECT_FALSE(::IsWindowEnabled(dialog.m_hWnd));
        EXPECT_TRUE(::IsWindowEnabled(main.m_hWnd));
    };
    leaveM(11, L"500", 12, look);
    EXPECT_EQ(textM(11), "100");
    leaveM(14, L"50", 11, look);
}

TEST_F(RefusalsTest, StandOverTheWindowThatHasTheControls)
{
    PlainWindowCL window;
    DuBasicDialogCL hosted;
    hosted.SetConfigFileM(dialog.PathM());
    hosted.SetMessageOwnerM(true);
    hosted.InitDlgM(&window, 0);
    EXPECT_TRUE(ActivateM(window.m_hWnd));
    const HWND field = ::GetDlgItem(window.m_hWnd, 11);
    EXPECT_TRUE(FocusM(field));
    ::SetWindowTextW(field, L"500");
    const MessageBoxWatcher told;
    ::SetFocus(::GetDlgItem(window.m_hWnd, 12));
    ASSERT_EQ(told.SeenM().size(), 1U);
    EXPECT_EQ(told.SeenM()[0].owner, window.m_hWnd);
}

TEST_F(RefusalsTest, StandOverAPopupOfTheDialogThatIsInFront)
{
    dialog.SetMessageOwnerM(true);
    TestDialogCL inner(HeaderSections);
    ASSERT_EQ(inner.CreateM(&dialog), 1);
    EXPECT_TRUE(FocusM(itemM(11)));
    ::SetWindowTextW(itemM(11), L"500");
    const MessageBoxWatcher told;
    inner.ShowWindow(SW_SHOW); // The user goes there.
    EXPECT_TRUE(told.WaitForM(1));
    ASSERT_EQ(told.SeenM().size(), 1U);
    EXPECT_EQ(told.SeenM()[0].owner, inner.m_hWnd);
}

TEST_F(RefusalsTest, SpeakTheWordsOfTheApplication)
{
    EXPECT_EQ(saidM(11, L"500"), "Refusals: 输入数太大,请重新输入!\n(不得大于100)");
    const auto set = [](int id, const char* utf8) {
        EXPECT_TRUE(DuBasicDialogCL::SetMessageTextM(id, ValueTextCL::FromUtf8M(utf8)));
    };
    set(NumberTooLargeMessage, "h\u00F6chstens {maximum}, mindestens {minimum}");
    set(NumberTooSmallMessage, "not below {minimum}");
    set(TextTooLongMessage, "at most {maximum} bytes");
    set(BadValueMessage, "no number");
    set(IntTooLargeMessage, "integer above {maximum}");
    EXPECT_EQ(saidM(11, L"500"), "Refusals: h\u00F6chstens 100, mindestens 0");
    EXPECT_EQ(saidM(12, L"0.1"), "Refusals: not below 0.50");
    EXPECT_EQ(saidM(13, L"abcdef"), "Refusals: at most 4 bytes");
    EXPECT_EQ(saidM(11, L"x"), "Refusals: no number");
    EXPECT_EQ(saidM(14, L"50"), "注意: integer above 10");
    set(SingleEditCaption, "Please");
    set(SpinEditCaption, "Note");
    EXPECT_EQ(saidM(11, L"500"), "Please: h\u00F6chstens 100, mindestens 0");
    EXPECT_EQ(saidM(14, L"x"), "Note: no number");
    for (const int id : { SingleEditCaption, SpinEditCaption, NumberTooLargeMessage }) {
        EXPECT_TRUE(DuBasicDialogCL::SetMessageTextM(id, nullptr));
    }
    EXPECT_EQ(saidM(11, L"500"), "Refusals: 输入数太大,请重新输入!\n(不得大于100)");
    EXPECT_EQ(saidM(14, L"x"), "注意: no number");
}

TEST_F(RefusalsTest, OfAStepSpeakThemToo)
{
    EXPECT_TRUE(DuBasicDialogCL::SetMessageTextM(IntAtMaximumMessage, "the end is {maximum}"));
    leaveM(14, L"9", 1014, [this] { EXPECT_EQ(textOf(::GetDlgItem(boxM(), 0xFFFF)), "the end is 10"); });
}

TEST_F(RefusalsTest, MessageNumbersThatAreNoneAreRefused)
{
    EXPECT_FALSE(DuBasicDialogCL::SetMessageTextM(MessageTextCount, "x"));
    EXPECT_FALSE(DuBasicDialogCL::SetMessageTextM(-1, nullptr));
    EXPECT_EQ(DuBasicDialogCL::MessageTextM(-1).Utf8M(), "");
    EXPECT_EQ(DuBasicDialogCL::MessageTextM(BadValueMessage).Utf8M(), "输入数据错误,请重新输入");
}

namespace {

// A dialog that exchanges a number between 1 and 9 with field 11, and a text of 3 bytes with 13.
class ExchangingCL : public TestDialogCL
{
public:
    ExchangingCL()
        : TestDialogCL(refusalSections())
    {
        KillTimer(StartTimer); // It stays hidden: no field of it is left.
    }
    // What the user is told.
    std::string SaidM(const wchar_t* number, const wchar_t* text)
    {
        const MessageBoxWatcher told;
        ::SetWindowTextW(ItemM(11), number);
        ::SetWindowTextW(ItemM(13), text);
        EXPECT_FALSE(UpdateData());
        return told.SeenM().empty() ? "" : ValueTextCL(told.SeenM()[0].text).Utf8M();
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Text(exchange, 11, number_);
        DDV_MinMaxInt(exchange, number_, 1, 9);
        DDX_Text(exchange, 13, text_);
        DDV_MaxChars(exchange, text_, 3);
    }

private:
    int number_ { 1 };
    CString text_;
};

} // namespace

TEST_F(RefusalsTest, OfDataExchangeAndExceptionsSpeakThemToo)
{
    ExchangingCL exchanging;
    EXPECT_EQ(exchanging.SaidM(L"x", L""), "请键入整数。");
    const auto set = [](int id, const char* text) { DuBasicDialogCL::SetMessageTextM(id, text); };
    set(WantsIntegerMessage, "an integer, please");
    set(IntegerBetweenMessage, "from {minimum} to {maximum}");
    set(TooManyBytesMessage, "{maximum} at most");
    set(NoMemoryMessage, "no memory");
    EXPECT_EQ(exchanging.SaidM(L"x", L""), "an integer, please");
    EXPECT_EQ(exchanging.SaidM(L"10", L""), "from 1 to 9");
    EXPECT_EQ(exchanging.SaidM(L"9", L"abcd"), "3 at most");
    const MessageBoxWatcher told;
    CMemoryException().ReportError();
    ASSERT_EQ(told.SeenM().size(), 1U);
    EXPECT_EQ(told.SeenM()[0].text, L"no memory");
}
