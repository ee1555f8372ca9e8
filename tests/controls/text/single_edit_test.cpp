// The control by itself: window, values, messages from outside.
#include "controls/text/single_edit_record.h"
#include "edit_story.h"

using namespace testing_support;

namespace {

std::string integers(int id, const char* initial = "5")
{
    return editRecord(id, "1 0 100", initial);
}

} // namespace

TEST(SingleEdit, ShowsItsInitialValueByType)
{
    const TestDialogCL dialog(editSection({ integers(11, "42"), editRecord(12, "2 0 9.5", "1.25", 3),
        editRecord(13, "3 2 5", "最大"), editRecord(14, "3 2 5", "null"), editRecord(15, "3 2 5", "NULL"),
        editRecord(16, "3 2 5", "Null") }));
    EXPECT_EQ(textOf(dialog.ItemM(11)), "42");
    EXPECT_EQ(textOf(dialog.ItemM(12)), "1.250");
    EXPECT_EQ(textOf(dialog.ItemM(13)), "最大");
    EXPECT_EQ(textOf(dialog.ItemM(14)), "");
    EXPECT_EQ(textOf(dialog.ItemM(15)), "");
    EXPECT_EQ(textOf(dialog.ItemM(16)), "Null");
}

namespace {

// A control of its own in a plain window that records what it is told.
struct PlainEditCL
{
    explicit PlainEditCL(int type = 1, int decimals = 0)
    {
        edit.SetFunctionIDM(7);
        const int size[2] = { 120, 24 };
        edit.SetSizeM(size);
        edit.SetDataTypeM(type, decimals);
    }
    void LimitsM(int minimum, int maximum)
    {
        simpleValD range;
        range.numbers[0] = minimum;
        range.numbers[1] = maximum;
        edit.SetRangeM(range);
    }
    void TypeM(const char* utf8) { edit.SetWindowText(slUtf8ToGbk(utf8).c_str()); }
    PlainWindowCL parent;
    DuSingleEditCL edit;
};

std::string told(const MessageBoxWatcher& watcher)
{
    std::string all;
    for (const auto& box : watcher.SeenM()) {
        all += (all.empty() ? "" : " | ") + slGbkToUtf8(slWideToGbk(box.text).c_str());
    }
    return all;
}

} // namespace

TEST(SingleEdit, StylesFollowTheSettings)
{
    const auto styles = [](int align, int password, int readOnly, int edge) {
        PlainEditCL plain;
        plain.edit.SetAlignModeM(align);
        plain.edit.SetPasswordM(password);
        plain.edit.SetReadOnlyM(readOnly);
        plain.edit.SetEdgeM(edge);
        plain.edit.Create(&plain.parent);
        char text[32];
        snprintf(text, sizeof text, "%08lX %lX", styleOf(plain.edit.m_hWnd),
            exStyleOf(plain.edit.m_hWnd) & WS_EX_CLIENTEDGE);
        return std::string(text);
    };
    EXPECT_EQ(styles(2, 0, 0, 0), "50030080 0");
    EXPECT_EQ(styles(2, 0, 0, 1), "50830080 200");
    EXPECT_EQ(styles(3, 0, 0, 0), "50030081 0");
    EXPECT_EQ(styles(4, 0, 0, 0), "50030082 0");
    EXPECT_EQ(styles(9, 2, 2, 2), "50030080 0");
    EXPECT_EQ(styles(2, 0, 1, 0), "50030880 0");
    EXPECT_EQ(styles(2, 1, 0, 0), "500300A0 0");
}

TEST(SingleEdit, CurrentValueIsWrittenOnlyWhenValid)
{
    PlainEditCL plain;
    plain.LimitsM(0, 100);
    plain.edit.Create(&plain.parent);
    simpleValD value;
    value.number = -77;
    const std::pair<const char*, int> cases[]
        = { { "abc", 0 }, { "", 0 }, { "101", 5 }, { "-1", 3 }, { "1a", 4 } };
    for (const auto& [text, code] : cases) {
        EXPECT_EQ(value.number, -77);
        plain.TypeM(text);
        EXPECT_EQ(plain.edit.GetCurValM(&value), code) << text;
    }
    EXPECT_EQ(value.number, 1);
    EXPECT_EQ(textOf(plain.edit.m_hWnd), "1a");
}

TEST(SingleEdit, TypedGettersGiveOneOnlyForAValidText)
{
    PlainEditCL plain(2, 1);
    plain.edit.Create(&plain.parent);
    float value = 7;
    plain.TypeM("0.5");
    EXPECT_EQ(plain.edit.GetValueM(&value), 0);
    EXPECT_EQ(value, 7);
    simpleValD range;
    range.reals[1] = 0.5F;
    plain.edit.SetRangeM(range);
    EXPECT_EQ(plain.edit.GetValueM(&value), 1);
    EXPECT_EQ(value, 0.5F);
    char bytes[260];
    EXPECT_EQ(plain.edit.GetValueM(bytes), 1); // Senseless for a real, harmless.
    EXPECT_EQ(plain.edit.GetValueM(static_cast<int*>(nullptr)), 0);
}

TEST(SingleEdit, SettingAValueShowsItWithoutAnyCheck)
{
    PlainEditCL plain(2, 2);
    plain.edit.Create(&plain.parent);
    EXPECT_EQ(plain.edit.SetValueM(123.456F), 1);
    EXPECT_EQ(textOf(plain.edit.m_hWnd), "123.46");
    simpleValD value;
    value.real = -1;
    EXPECT_EQ(plain.edit.SetCurValM(value), 1);
    EXPECT_EQ(textOf(plain.edit.m_hWnd), "-1.00");
    plain.edit.SetDataTypeM(3, 0);
    EXPECT_EQ(plain.edit.SetValueM(slUtf8ToGbk("最大").c_str()), 1);
    EXPECT_EQ(textOf(plain.edit.m_hWnd), "最大");
    plain.edit.SetDataTypeM(1, 0);
    EXPECT_EQ(plain.edit.SetValueM(-12), 1);
    EXPECT_EQ(textOf(plain.edit.m_hWnd), "-12");
    EXPECT_EQ(plain.edit.UpdateDataM(0), 1);
    EXPECT_EQ(plain.edit.UpdateDataM(1), 3); // Range 0..0.
}

TEST(SingleEdit, AnUnknownTypeRefusesEveryValue)
{
    PlainEditCL plain(4);
    plain.edit.Create(&plain.parent);
    const simpleValD value {};
    EXPECT_EQ(plain.edit.SetCurValM(value), 0);
    EXPECT_EQ(plain.edit.SetInitValM(value), 0);
    EXPECT_EQ(plain.edit.SetRangeM(value), 0);
    EXPECT_EQ(plain.edit.DispEditM(), 0);
    EXPECT_EQ(plain.edit.UpdateDataM(0), 0);
    EXPECT_EQ(plain.edit.UpdateDataM(1), 0);
    EXPECT_EQ(plain.edit.SetValueM("x"), 1);
    EXPECT_EQ(textOf(plain.edit.m_hWnd), "");
}

TEST(SingleEdit, WithoutAWindowNothingIsRead)
{
    DuSingleEditCL edit;
    int value = 3;
    EXPECT_EQ(edit.SetValueM(5), 1);
    EXPECT_EQ(edit.GetValueM(&value), 0);
    EXPECT_EQ(value, 3);
}

TEST(SingleEdit, ACheckRequestTellsInTheWordsOfTheTypeAndChangesNothing)
{
    const std::tuple<int, const char*, const char*> cases[] = {
        { 1, "x", "输入数据错误,请重新输入" },
        { 1, "1", "输入整数太小,请重新输入!\n(不得小于2)" },
        { 1, "6", "输入整数太大,请重新输入!\n(不得大于5)" },
        { 2, "1", "输入浮点数太小,请重新输入!\n(不得小于2.00)" },
        { 2, "6", "输入浮点数太大,请重新输入!\n(不得大于5.00)" },
        { 3, "abcdef", "输入字符串太长,请重新输入!\n(不得长于5)" },
    };
    for (const auto& [type, text, message] : cases) {
        PlainEditCL plain(type, 2);
        simpleValD range;
        if (type == 2) {
            range.reals[0] = 2;
            range.reals[1] = 5;
        } else {
            range.numbers[0] = 2;
            range.numbers[1] = 5;
        }
        plain.edit.SetRangeM(range);
        plain.edit.Create(&plain.parent);
        ASSERT_TRUE(ActivateM(plain.parent.m_hWnd));
        plain.TypeM(text);
        MessageRecorder recorder(plain.parent.m_hWnd, { 1624 });
        const MessageBoxWatcher watcher;
        EXPECT_EQ(plain.edit.SendMessage(1626), 0);
        EXPECT_EQ(told(watcher), message);
        EXPECT_EQ(textOf(plain.edit.m_hWnd), text);
        EXPECT_EQ(::GetFocus(), plain.edit.m_hWnd); // Given, as it was elsewhere.
        EXPECT_TRUE(recorder.ListM().empty());
        plain.edit.EnableWindow(FALSE); // Going away is no leaving.
    }
}

TEST(SingleEdit, AGoodValueAnswersACheckRequestSilently)
{
    PlainEditCL plain;
    plain.LimitsM(0, 9);
    plain.edit.Create(&plain.parent);
    const MessageBoxWatcher watcher;
    EXPECT_EQ(plain.edit.SendMessage(1626), 0);
    EXPECT_EQ(told(watcher), "");
    EXPECT_NE(::GetFocus(), plain.edit.m_hWnd);
}

TEST(SingleEdit, TheColourOfTheRecordHasNoEffectUntilAnApplicationSetsOne)
{
    TestDialogCL dialog(editSection({ integers(11) })); // Red in the file.
    const auto answer = [&dialog] {
        CClientDC dc(&dialog);
        const auto brush = reinterpret_cast<HBRUSH>(dialog.SendMessage(
            WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(dialog.ItemM(11))));
        LOGBRUSH look {};
        ::GetObjectW(brush, sizeof look, &look);
        EXPECT_EQ(::GetBkColor(dc.m_hDC), look.lbColor);
        return look.lbColor;
    };
    EXPECT_EQ(answer(), 0xFFFFFFU);
    int kind = 0;
    static_cast<DuSingleEditCL*>(dialog.GetContrlPtrM(11, &kind))->SetBkColorM(0x123456);
    EXPECT_EQ(kind, 4);
    EXPECT_EQ(answer(), 0x123456U);
    answer();
    const int before = LiveGdiObjectsM();
    for (int i = 0; i < 100; ++i) {
        answer();
    }
    EXPECT_EQ(LiveGdiObjectsM(), before); // Each brush replaces the one before.
}

TEST(SingleEdit, AFieldDestroyedWhileItsMessageIsOpenIsNotTouchedAgain)
{
    PlainWindowCL parent;
    auto edit = std::make_unique<DuSingleEditCL>();
    edit->SetFunctionIDM(7);
    edit->Create(&parent);
    ASSERT_TRUE(ActivateM(parent.m_hWnd));
    ASSERT_TRUE(FocusM(edit->m_hWnd));
    edit->SetWindowText("x");
    MessageRecorder recorder(parent.m_hWnd, { 1624 });
    Script script;
    std::unique_ptr<MessageBoxWatcher> watcher;
    script.WaitM([&parent] { return ::IsWindowEnabled(parent.m_hWnd) == FALSE; }, "the message box")
        .DoM([&edit, &watcher] {
            edit.reset();
            watcher = std::make_unique<MessageBoxWatcher>();
        });
    ::SetFocus(nullptr);
    EXPECT_EQ(edit, nullptr);
    EXPECT_TRUE(recorder.ListM().empty());
}
