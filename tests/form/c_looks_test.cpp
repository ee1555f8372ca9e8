// The C interface and the form: what the description file doesn't say.
#include "form/form.h"
#include "form/opened_dialog.h"
#include "support/script.h"
#include "support/seen_by_reader.h"
#include <thread>

using namespace testing_support;

namespace {

constexpr int Red = 0xC80A5A;
const COLORREF RedSeen = RGB(0xC8, 0x0A, 0x5A);

class CLooks : public testing::Test
{
protected:
    ~CLooks() override
    {
        for (int message = 0; message <= PANELKIT_MESSAGE_SPIN_EDIT_CAPTION; ++message) {
            EXPECT_EQ(panelkit_set_message_text(message, nullptr), PANELKIT_OK);
        }
    }
    // Leaves field 11 with a number above its maximum; the owner of the message, and what it says.
    std::pair<HWND, std::string> tellM() const
    {
        const MessageBoxWatcher told;
        EXPECT_TRUE(FocusM(opened_.ItemM(11)));
        ::SetWindowTextW(opened_.ItemM(11), L"500");
        ::SetFocus(opened_.ItemM(12));
        PumpPending();
        EXPECT_EQ(told.SeenM().size(), 1U);
        return told.SeenM().empty()
            ? std::pair<HWND, std::string>()
            : std::pair(told.SeenM()[0].owner, ValueTextCL(told.SeenM()[0].text).Utf8M());
    }
    static std::string messageM(int message)
    {
        char text[200] = "";
        size_t needed = 0;
        EXPECT_EQ(panelkit_get_message_text(message, text, sizeof text, &needed), PANELKIT_OK);
        EXPECT_EQ(needed, std::string(text).size() + 1);
        return text;
    }

    OpenedDialogCL opened_;
    panelkit_dialog* const dialog_ { opened_.dialog };
};

} // namespace

TEST_F(CLooks, ColoursTexts)
{
    opened_.ShowM();
    EXPECT_TRUE(FocusM(opened_.ItemM(12)));
    const auto seen = [this] {
        PumpPending();
        return Pixels(opened_.ItemM(16)).CountM(RedSeen);
    };
    EXPECT_EQ(panelkit_set_text(dialog_, 16, u8"■■"), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_text_colour(dialog_, 16, Red), PANELKIT_OK);
    EXPECT_GT(seen(), 20);
    EXPECT_EQ(panelkit_set_text_colour(dialog_, 16, PANELKIT_COLOUR_OF_SYSTEM), PANELKIT_OK);
    EXPECT_EQ(seen(), 0);
    EXPECT_EQ(panelkit_set_text_colour(dialog_, 16, 0x1000000), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(panelkit_set_text_colour(dialog_, 16, -2), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(panelkit_set_text_colour(dialog_, 43, Red), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(panelkit_set_text_colour(dialog_, 999, Red), PANELKIT_ERROR_ID);
    EXPECT_EQ(panelkit_set_text_colour(nullptr, 16, Red), PANELKIT_ERROR_ARGUMENT);
}

TEST_F(CLooks, NamesControlsForScreenReaders)
{
    EXPECT_EQ(panelkit_set_accessible_name(dialog_, 44, u8"下一步 \u00F6"), PANELKIT_OK);
    EXPECT_EQ(SeenByReaderCL(opened_.ItemM(44)).NameM(), L"下一步 \u00F6");
    EXPECT_EQ(panelkit_set_accessible_name(dialog_, 44, nullptr), PANELKIT_OK);
    EXPECT_NE(SeenByReaderCL(opened_.ItemM(44)).NameM(), L"下一步 \u00F6");
    EXPECT_EQ(panelkit_set_accessible_name(dialog_, 999, "x"), PANELKIT_ERROR_ID);
}

TEST_F(CLooks, APressByAReaderIsAClick)
{
    opened_.ShowM();
    EXPECT_EQ(panelkit_set_accessible_name(dialog_, 44, "next"), PANELKIT_OK);
    EXPECT_TRUE(SeenByReaderCL(opened_.ItemM(44)).PressM());
    EXPECT_EQ(opened_.StoryM(), "click 44 15 1");
}

TEST_F(CLooks, TellsOfRefusedValuesAsChosen)
{
    opened_.ShowM();
    EXPECT_EQ(tellM().second, "输入数太大,请重新输入!\n(不得大于100)");
    EXPECT_EQ(panelkit_set_select_refused(dialog_, 1), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_message_owner(dialog_, 1), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_message_text(PANELKIT_MESSAGE_NUMBER_TOO_LARGE, u8"≤ {maximum}"), PANELKIT_OK);
    EXPECT_EQ(messageM(PANELKIT_MESSAGE_NUMBER_TOO_LARGE), u8"≤ {maximum}");
    EXPECT_EQ(tellM(), std::pair(opened_.WindowM(), std::string(u8"≤ 100")));
    TypeM(L"7");
    EXPECT_EQ(textOf(opened_.ItemM(11)), "7");
    EXPECT_EQ(panelkit_set_message_text(PANELKIT_MESSAGE_NUMBER_TOO_LARGE, nullptr), PANELKIT_OK);
    EXPECT_EQ(messageM(PANELKIT_MESSAGE_NUMBER_TOO_LARGE), u8"输入数太大,请重新输入!\n(不得大于{maximum})");
}

TEST_F(CLooks, MessageTextsArePerProcessAndChecked)
{
    EXPECT_EQ(messageM(PANELKIT_MESSAGE_SPIN_EDIT_CAPTION), u8"注意");
    EXPECT_EQ(panelkit_set_message_text(-1, "x"), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(panelkit_set_message_text(1000, nullptr), PANELKIT_ERROR_ARGUMENT);
    char small[4] = "";
    size_t needed = 0;
    EXPECT_EQ(panelkit_get_message_text(-1, small, sizeof small, &needed), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(panelkit_get_message_text(PANELKIT_MESSAGE_SPIN_EDIT_CAPTION, small, sizeof small, &needed),
        PANELKIT_ERROR_BUFFER);
    EXPECT_EQ(needed, 7U);
    EXPECT_STREQ(small, u8"注");
    std::thread([] {
        EXPECT_EQ(panelkit_set_message_text(PANELKIT_MESSAGE_SPIN_EDIT_CAPTION, "Note"), PANELKIT_OK);
    }).join();
    EXPECT_EQ(messageM(PANELKIT_MESSAGE_SPIN_EDIT_CAPTION), "Note");
}

TEST_F(CLooks, AFormHasThemToo)
{
    panelkit::Form form(opened_.PathM());
    ASSERT_TRUE(form) << form.Error();
    const HWND window = static_cast<HWND>(form.Native());
    EXPECT_TRUE(form.Show());
    EXPECT_TRUE(ActivateM(window));
    EXPECT_TRUE(form.Set(16, u8"■■"));
    EXPECT_TRUE(form.SetTextColour(16, Red));
    PumpPending();
    EXPECT_GT(Pixels(::GetDlgItem(window, 16)).CountM(RedSeen), 20);
    EXPECT_TRUE(form.SetTextColour(16, std::nullopt));
    PumpPending();
    EXPECT_EQ(Pixels(::GetDlgItem(window, 16)).CountM(RedSeen), 0);
    EXPECT_FALSE(form.SetTextColour(43, Red));
    EXPECT_FALSE(form.Error().empty());
    EXPECT_TRUE(form.SetAccessibleName(44, "next"));
    EXPECT_EQ(SeenByReaderCL(::GetDlgItem(window, 44)).NameM(), L"next");
    EXPECT_TRUE(form.SetSelectRefused(true));
    EXPECT_TRUE(form.SetMessageOwner(true));
    EXPECT_TRUE(panelkit::Form::SetMessageText(PANELKIT_MESSAGE_NUMBER_TOO_LARGE, "not above {maximum}"));
    EXPECT_FALSE(panelkit::Form::SetMessageText(-1, nullptr));
    EXPECT_TRUE(FocusM(::GetDlgItem(window, 11)));
    ::SetWindowTextW(::GetDlgItem(window, 11), L"500");
    const MessageBoxWatcher told;
    EXPECT_FALSE(form.Check());
    ASSERT_EQ(told.SeenM().size(), 1U);
    EXPECT_EQ(told.SeenM()[0].owner, window);
    EXPECT_EQ(told.SeenM()[0].text, L"not above 100");
    TypeM(L"7");
    EXPECT_EQ(textOf(::GetDlgItem(window, 11)), "7");
    EXPECT_FALSE(panelkit::Form().SetMessageOwner(true));
}
