#include "controls/text/multi_edit.h"
#include "controls/text/multi_edit_record.h"
#include "support/all.h"
#include "support/test_dialog.h"
#include <chrono>
#include <cstring>
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

using ListTP = std::vector<std::string>;

// One multi-line edit of a description with the given own fields.
struct DescribedCL
{
    explicit DescribedCL(const std::string& own)
        : dialog(HeaderSections + ("[多行文本]\n1\n0\n1 11 20 30 160 120 " + own))
    {
    }
    HWND WindowM() const { return dialog.ItemM(11); }
    std::string StoredM() const
    {
        char text[400] = "";
        static_cast<DuMultiEditCL*>(CWnd::FromHandlePermanent(WindowM()))->GetTextM(text);
        return slGbkToUtf8(text);
    }
    TestDialogCL dialog;
};

// One in a window of the test, with the focus.
struct TypedCL
{
    explicit TypedCL(int limit = 10)
    {
        const int size[2] = { 300, 200 };
        edit.SetFunctionIDM(7);
        edit.SetSizeM(size);
        edit.SetMaxNumM(limit);
        edit.Create(&parent);
        ActivateM(parent.m_hWnd);
        FocusM(edit.m_hWnd);
        PumpPending();
    }
    std::string StoredM() const
    {
        std::vector<char> text(40000);
        edit.GetTextM(text.data());
        return text.data();
    }
    PlainWindowCL parent { 400, 300 };
    DuMultiEditCL edit { AliveTag };
};

} // namespace

TEST(MultiEdit, WindowHasPlaceTextStyleAndIdOfItsRecord)
{
    const DescribedCL edit("1 40\n最大转速\n0 1 255 255 255\n");
    ASSERT_NE(edit.WindowM(), nullptr);
    EXPECT_EQ(placeOf(edit.WindowM()), "20 30 160 120");
    EXPECT_EQ(textOf(edit.WindowM()), "最大转速");
    EXPECT_EQ(edit.StoredM(), "最大转速");
    EXPECT_EQ(styleOf(edit.WindowM()), 0x50A11004U);
    EXPECT_EQ(exStyleOf(edit.WindowM()) & WS_EX_CLIENTEDGE, static_cast<DWORD>(WS_EX_CLIENTEDGE));
}

TEST(MultiEdit, StyleFollowsEdgeReadOnlyAndAlignment)
{
    constexpr DWORD Base = 0x50211004;
    for (const char* left : { "1", "2", "0", "5", "-1" }) {
        const DescribedCL edit(std::string(left) + " 9\nx\n0 0 0 0 0\n");
        EXPECT_EQ(styleOf(edit.WindowM()), Base) << left;
        EXPECT_EQ(exStyleOf(edit.WindowM()) & WS_EX_CLIENTEDGE, 0U);
    }
    EXPECT_EQ(styleOf(DescribedCL("3 9\nx\n0 2 0 0 0\n").WindowM()), Base | ES_CENTER);
    EXPECT_EQ(styleOf(DescribedCL("4 9\nx\n2 0 0 0 0\n").WindowM()), Base | ES_RIGHT);
    EXPECT_EQ(styleOf(DescribedCL("2 9\nx\n1 0 0 0 0\n").WindowM()), Base | ES_READONLY);
}

TEST(MultiEdit, InitialTextAsLongAsTheLimitIsDroppedWhole)
{
    EXPECT_EQ(textOf(DescribedCL("1 10\n0123456789\n0 1 0 0 0\n").WindowM()), "");
    EXPECT_EQ(textOf(DescribedCL("1 11\n0123456789\n0 1 0 0 0\n").WindowM()), "0123456789");
}

TEST(MultiEdit, LimitsCountBytes)
{
    EXPECT_EQ(textOf(DescribedCL("1 8\n最大转速\n0 1 0 0 0\n").WindowM()), "");
    EXPECT_EQ(textOf(DescribedCL("1 9\n最大转速\n0 1 0 0 0\n").WindowM()), "最大转速");
}

TEST(MultiEdit, LimitBelowOneIsRefusedAndThenEveryText)
{
    PlainWindowCL parent;
    DuMultiEditCL edit;
    EXPECT_EQ(edit.SetMaxNumM(0), 0);
    EXPECT_EQ(edit.SetMaxNumM(-5), 0);
    edit.Create(&parent);
    for (const char* text : { "", "a" }) {
        EXPECT_EQ(edit.SetTextM(text), 0);
        EXPECT_EQ(edit.SetInitTextM(text), 0);
    }
    EXPECT_EQ(edit.SetMaxNumM(3), 1);
    EXPECT_EQ(edit.SetMaxNumM(0), 0); // The 3 stays.
    EXPECT_EQ(edit.SetTextM("ab"), 1);
    EXPECT_EQ(edit.SetTextM("abc"), 0);
    EXPECT_EQ(textOf(edit.m_hWnd), "ab");
}

TEST(MultiEdit, InitialTextsTouchNoWindowAndMayNotBeEmptyAndOtherTextsMay)
{
    TypedCL typed;
    EXPECT_EQ(typed.edit.SetTextM("shown"), 1);
    EXPECT_EQ(typed.edit.SetInitTextM(""), 0);
    EXPECT_EQ(typed.edit.SetInitTextM(nullptr), 0);
    EXPECT_EQ(typed.StoredM(), "shown");
    EXPECT_EQ(typed.edit.SetInitTextM("kept"), 1);
    EXPECT_EQ(textOf(typed.edit.m_hWnd), "shown");
    EXPECT_EQ(typed.StoredM(), "kept");
    EXPECT_EQ(typed.edit.SetTextM(""), 1);
    EXPECT_EQ(textOf(typed.edit.m_hWnd), "");
    EXPECT_EQ(typed.StoredM(), "");
}

TEST(MultiEdit, CopyFollowsTypingInGbkAlsoBeyondTheLimit)
{
    TypedCL typed(4);
    TypeM(L"ab中文cd");
    EXPECT_EQ(typed.StoredM(), slUtf8ToGbk("ab中文cd"));
    KeyM(VK_BACK);
    EXPECT_EQ(typed.StoredM(), slUtf8ToGbk("ab中文c"));
}

TEST(MultiEdit, CopyFollowsTextsThatTheProgramGivesTheWindow)
{
    TypedCL typed;
    typed.edit.SetWindowText("longer than the limit");
    EXPECT_EQ(typed.StoredM(), "longer than the limit");
    typed.parent.SetDlgItemText(7, "\xD6\xD0\xCE\xC4");
    EXPECT_EQ(typed.StoredM(), "\xD6\xD0\xCE\xC4");
    typed.edit.SetWindowText("");
    EXPECT_EQ(typed.StoredM(), "");
    typed.edit.ReplaceSel("placed", TRUE);
    EXPECT_EQ(typed.StoredM(), "placed");
    typed.edit.Undo();
    EXPECT_EQ(typed.StoredM(), "");
    const HLOCAL memory = ::LocalAlloc(LMEM_MOVEABLE, 4 * sizeof(wchar_t));
    std::memcpy(::LocalLock(memory), L"own", 4 * sizeof(wchar_t));
    ::LocalUnlock(memory);
    typed.edit.SendMessage(EM_SETHANDLE, reinterpret_cast<WPARAM>(memory));
    EXPECT_EQ(textOf(typed.edit.m_hWnd), "own");
    EXPECT_EQ(typed.StoredM(), "own");
}

TEST(MultiEdit, EnterMakesALineAlsoInADialog)
{
    DescribedCL edit("1 40\nNULL\n0 1 255 255 255\n");
    edit.dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(ActivateM(edit.dialog.m_hWnd));
    ASSERT_TRUE(FocusM(edit.WindowM()));
    pumpFilter = [&](MSG* message) { return edit.dialog.IsDialogMessage(message) != FALSE; };
    TypeM(L"a");
    KeyM(VK_RETURN);
    TypeM(L"b");
    pumpFilter = nullptr;
    EXPECT_EQ(edit.StoredM(), "a\r\nb");
}

TEST(MultiEdit, ReadOnlyTakesNoCharacters)
{
    DescribedCL edit("1 40\nfixed\n1 1 255 255 255\n");
    edit.dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(ActivateM(edit.dialog.m_hWnd));
    ASSERT_TRUE(FocusM(edit.WindowM()));
    TypeM(L"x");
    EXPECT_EQ(edit.StoredM(), "fixed");
}

TEST(MultiEdit, FiveThousandKeysCostNoMoreEachThanTheirTextGrows)
{
    TypedCL typed;
    typed.parent.ShowWindow(SW_HIDE); // What painting costs is not ours.
    // The cost of a key in a text of the given length: the best of several runs, as others use the machine.
    const auto costAt = [&typed](int length) {
        typed.edit.SetMaxNumM(length + 1);
        std::string text;
        for (int i = 0; i < length; ++i) {
            text += i % 40 == 39 ? '\n' : 'x';
        }
        typed.edit.SetTextM(text.c_str());
        typed.edit.SetSel(length, length);
        auto best = std::chrono::steady_clock::duration::max();
        for (int run = 0; run < 8; ++run) {
            const auto start = std::chrono::steady_clock::now();
            for (int i = 0; i < 20; ++i) {
                typed.edit.SendMessage(WM_CHAR, 'y');
                typed.edit.SendMessage(WM_CHAR, VK_BACK);
            }
            best = std::min(best, std::chrono::steady_clock::now() - start);
        }
        return std::chrono::duration<double>(best).count();
    };
    const double shortText = costAt(1000);
    EXPECT_LT(costAt(16000), 16 * 2 * shortText); // A quadratic cost would be 256 times as much.

    typed.edit.SetMaxNumM(1);
    typed.edit.SetTextM("");
    std::string all;
    for (int i = 0; i < 5000; ++i) {
        const char key = static_cast<char>('a' + i % 26);
        all += key;
        typed.edit.SendMessage(WM_CHAR, static_cast<WPARAM>(key));
        if (i % 500 == 0) {
            ASSERT_EQ(typed.StoredM(), all);
        }
    }
    EXPECT_EQ(typed.StoredM(), all);
}

TEST(MultiEdit, GainingTheFocusIsReported)
{
    TypedCL typed;
    FocusM(typed.parent.m_hWnd);
    MessageRecorder messages(typed.parent.m_hWnd);
    FocusM(typed.edit.m_hWnd);
    PumpPending();
    EXPECT_EQ(messages.ListM(), ListTP { "posted 1625 w=7 l=0" });
}

TEST(MultiEdit, BackgroundHasTheColourOfItsRecord)
{
    for (const char* readOnly : { "0", "1" }) {
        const DescribedCL edit("1 40\nNULL\n" + std::string(readOnly) + " 0 255 128 0\n");
        const HDC dc = ::GetDC(edit.WindowM());
        const UINT request = *readOnly == '0' ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC;
        const auto brush = reinterpret_cast<HBRUSH>(::SendMessageW(edit.dialog.m_hWnd, request,
            reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(edit.WindowM())));
        LOGBRUSH description {};
        ASSERT_NE(::GetObjectW(brush, sizeof description, &description), 0);
        EXPECT_EQ(description.lbColor, RGB(255, 128, 0));
        EXPECT_EQ(::GetBkColor(dc), RGB(255, 128, 0));
        ::ReleaseDC(edit.WindowM(), dc);
    }
}
