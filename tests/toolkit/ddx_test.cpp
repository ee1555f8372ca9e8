#include "support/message_box.h"
#include "toolkit/dialog_template.h"
#include <functional>
#include <gtest/gtest.h>
#include <string>

using testing_support::MessageBoxWatcher;

namespace {

enum Id : WORD
{
    FieldId = 100,
    OtherFieldId = 101,
    CheckId = 110,
    FirstRadioId = 120,
    SecondRadioId = 121,
    ThirdRadioId = 122,
    ListId = 130,
    ComboId = 140,
    ComboListId = 141,
    ScrollId = 150,
    SliderId = 151
};

// Exchanges what the test says.
class ExchangingCL : public CDialog
{
public:
    std::function<void(CDataExchange*)> exchange;
    int changes = 0;

    bool ShowM()
    {
        BareTemplateCL shape(WS_POPUP | WS_VISIBLE);
        shape.AddM(FieldId, 0x81, WS_TABSTOP | ES_AUTOHSCROLL).AddM(OtherFieldId, 0x81, WS_TABSTOP);
        shape.AddM(CheckId, 0x80, BS_AUTO3STATE | WS_GROUP);
        shape.AddM(FirstRadioId, 0x80, BS_AUTORADIOBUTTON | WS_GROUP);
        shape.AddM(SecondRadioId, 0x80, BS_AUTORADIOBUTTON);
        shape.AddM(ThirdRadioId, 0x80, BS_AUTORADIOBUTTON);
        shape.AddM(ListId, 0x83, WS_GROUP);
        shape.AddM(ComboId, 0x85, CBS_DROPDOWN).AddM(ComboListId, 0x85, CBS_DROPDOWNLIST);
        shape.AddM(ScrollId, 0x84, SBS_HORZ);
        if (!CreateIndirect(shape)) {
            return false;
        }
        ::CreateWindowExW(0, TRACKBAR_CLASSW, L"", WS_CHILD, 0, 0, 90, 20, m_hWnd,
            reinterpret_cast<HMENU>(SliderId), nullptr, nullptr);
        for (const wchar_t* line : { L"red", L"reddish", L"\u4E2D\u6587" }) {
            SendDlgItemMessage(ListId, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
            SendDlgItemMessage(ComboId, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
            SendDlgItemMessage(ComboListId, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
        }
        changes = 0;
        return true;
    }
    std::string TextM(int id = FieldId) const
    {
        CString text;
        GetDlgItemText(id, text);
        return text.GetString();
    }

protected:
    void DoDataExchange(CDataExchange* data) override
    {
        CDialog::DoDataExchange(data);
        if (exchange) {
            exchange(data);
        }
    }
    afx_msg void OnChange() { ++changes; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ExchangingCL, CDialog)
ON_EN_CHANGE(FieldId, &ExchangingCL::OnChange)
END_MESSAGE_MAP()

template <class ValueTP> class DdxNumber : public testing::Test
{
};
using NumberTypes = testing::Types<BYTE, short, int, UINT, long, DWORD, LONGLONG, ULONGLONG, float, double>;
TYPED_TEST_SUITE(DdxNumber, NumberTypes);

} // namespace

TYPED_TEST(DdxNumber, TravelsBothWays)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    TypeParam value = 120;
    dialog.exchange = [&value](CDataExchange* data) { DDX_Text(data, FieldId, value); };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.TextM(), "120");
    dialog.SetDlgItemText(FieldId, " 37 ");
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_EQ(value, static_cast<TypeParam>(37));
}

TYPED_TEST(DdxNumber, OneThatIsNoneIsToldAndItsFieldSelected)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    TypeParam value = 5;
    int after = 0;
    dialog.exchange = [&](CDataExchange* data) {
        DDX_Text(data, FieldId, value);
        ++after;
    };
    const MessageBoxWatcher watcher;
    size_t told = 0;
    for (const char* text : { "12x", "", "  ", "x", "99999999999999999999999999999999999999999e999" }) {
        dialog.SetDlgItemText(FieldId, text);
        dialog.GetDlgItem(OtherFieldId)->SetFocus();
        EXPECT_FALSE(dialog.UpdateData()) << text;
        ASSERT_TRUE(watcher.WaitForM(++told)) << text;
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, FieldId)) << text;
        DWORD first = 9;
        DWORD end = 9;
        dialog.SendDlgItemMessage(
            FieldId, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(first, 0U);
        EXPECT_EQ(end, strlen(text));
    }
    EXPECT_EQ(value, static_cast<TypeParam>(5));
    EXPECT_EQ(after, 0) << "the exchange ends there";
}

TEST(Ddx, IntegersBeyondTheirTypeAreRefused)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    BYTE byte = 1;
    UINT positive = 2;
    int number = 3;
    const MessageBoxWatcher watcher;
    dialog.exchange = [&](CDataExchange* data) { DDX_Text(data, FieldId, byte); };
    dialog.SetDlgItemText(FieldId, "256");
    EXPECT_FALSE(dialog.UpdateData());
    dialog.exchange = [&](CDataExchange* data) { DDX_Text(data, FieldId, positive); };
    dialog.SetDlgItemText(FieldId, "-1");
    EXPECT_FALSE(dialog.UpdateData());
    dialog.exchange = [&](CDataExchange* data) { DDX_Text(data, FieldId, number); };
    dialog.SetDlgItemText(FieldId, "2147483648");
    EXPECT_FALSE(dialog.UpdateData());
    dialog.SetDlgItemText(FieldId, "-2147483648");
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_EQ(number, INT_MIN);
    EXPECT_EQ(byte, 1);
    EXPECT_EQ(positive, 2U);
}

TEST(Ddx, TextsTravelInGbkAndWide)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    CString text("\xD6\xD0"); // 中
    char narrow[4] = "";
    wchar_t wide[8] = L"";
    dialog.exchange = [&](CDataExchange* data) { DDX_Text(data, FieldId, text); };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.TextM(), "\xD6\xD0");
    dialog.SetDlgItemText(FieldId, L"\u4E2D\u6587");
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_STREQ(text, "\xD6\xD0\xCE\xC4");
    dialog.exchange = [&](CDataExchange* data) {
        DDX_Text(data, FieldId, narrow, 4);
        DDX_Text(data, FieldId, wide, 8);
    };
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_STREQ(narrow, "\xD6\xD0") << "cut between characters";
    EXPECT_STREQ(wide, L"\u4E2D\u6587");
}

TEST(Ddx, WhatUpdateDataChangesIsNoNews)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    int value = 44;
    dialog.exchange = [&](CDataExchange* data) { DDX_Text(data, FieldId, value); };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.changes, 0);
    dialog.SetDlgItemText(FieldId, "45");
    EXPECT_EQ(dialog.changes, 1);
}

TEST(Ddx, ButtonsTravelBothWays)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    int check = BST_INDETERMINATE;
    int radio = 1;
    dialog.exchange = [&](CDataExchange* data) {
        DDX_Check(data, CheckId, check);
        DDX_Radio(data, FirstRadioId, radio);
    };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.IsDlgButtonChecked(CheckId), static_cast<UINT>(BST_INDETERMINATE));
    EXPECT_EQ(dialog.GetCheckedRadioButton(FirstRadioId, ThirdRadioId), SecondRadioId);
    dialog.CheckRadioButton(FirstRadioId, ThirdRadioId, ThirdRadioId);
    dialog.CheckDlgButton(CheckId, BST_CHECKED);
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_EQ(check, BST_CHECKED);
    EXPECT_EQ(radio, 2);
    radio = -1;
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.GetCheckedRadioButton(FirstRadioId, ThirdRadioId), 0);
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_EQ(radio, -1);
}

TEST(Ddx, ListsTravelBothWays)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    CString line("\xD6\xD0"); // 中, how a line begins
    CString field("\xD6\xD0\xCE\xC4");
    int index = 1;
    dialog.exchange = [&](CDataExchange* data) {
        DDX_LBString(data, ListId, line);
        DDX_CBStringExact(data, ComboListId, field);
        DDX_CBIndex(data, ComboId, index);
    };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.SendDlgItemMessage(ListId, LB_GETCURSEL), 2);
    EXPECT_EQ(dialog.SendDlgItemMessage(ComboListId, CB_GETCURSEL), 2);
    EXPECT_EQ(dialog.SendDlgItemMessage(ComboId, CB_GETCURSEL), 1);
    dialog.SendDlgItemMessage(ListId, LB_SETCURSEL, 0);
    dialog.SendDlgItemMessage(ComboListId, CB_SETCURSEL, 0);
    dialog.SendDlgItemMessage(ComboId, CB_SETCURSEL, 2);
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_STREQ(line, "red");
    EXPECT_STREQ(field, "red");
    EXPECT_EQ(index, 2);
}

TEST(Ddx, ExactStringsDoNotTakeALongerLine)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    CString line("reddi");
    dialog.exchange = [&](CDataExchange* data) { DDX_LBStringExact(data, ListId, line); };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.SendDlgItemMessage(ListId, LB_GETCURSEL), LB_ERR);
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_STREQ(line, "");
    CString typed("no line");
    int listIndex = 2;
    dialog.exchange = [&](CDataExchange* data) {
        DDX_CBString(data, ComboId, typed);
        DDX_LBIndex(data, ListId, listIndex);
    };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.TextM(ComboId), "no line");
    EXPECT_EQ(dialog.SendDlgItemMessage(ListId, LB_GETCURSEL), 2);
}

TEST(Ddx, BarsTravelBothWays)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    ::SetScrollRange(::GetDlgItem(dialog, ScrollId), SB_CTL, 0, 100, FALSE);
    int scroll = 30;
    int slider = 40;
    dialog.exchange = [&](CDataExchange* data) {
        DDX_Scroll(data, ScrollId, scroll);
        DDX_Slider(data, SliderId, slider);
    };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    scroll = slider = 0;
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_EQ(scroll, 30);
    EXPECT_EQ(slider, 40);
}

TEST(Ddx, ControlGetsTheMessagesOfItsWindow)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    CEdit field;
    dialog.exchange = [&](CDataExchange* data) { DDX_Control(data, FieldId, field); };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.GetDlgItem(FieldId), &field);
    EXPECT_TRUE(dialog.UpdateData()) << "and only once";
    field.Detach();
}

TEST(Ddx, ControlThatIsNotThereIsTold)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    int value = 1;
    dialog.exchange = [&](CDataExchange* data) { DDX_Text(data, 999, value); };
    const MessageBoxWatcher watcher;
    EXPECT_FALSE(dialog.UpdateData(FALSE));
    EXPECT_TRUE(watcher.WaitForM(1));
}

TEST(Ddv, WhatIsOutOfRangeIsToldWithTheRange)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    int number = 0;
    double real = 0;
    dialog.exchange = [&](CDataExchange* data) {
        DDX_Text(data, FieldId, number);
        DDV_MinMaxInt(data, number, -5, 10);
        DDX_Text(data, OtherFieldId, real);
        DDV_MinMaxDouble(data, real, 0.5, 2.5);
    };
    const MessageBoxWatcher watcher;
    dialog.SetDlgItemText(FieldId, "11");
    dialog.SetDlgItemText(OtherFieldId, "3");
    EXPECT_FALSE(dialog.UpdateData());
    ASSERT_TRUE(watcher.WaitForM(1));
    EXPECT_NE(watcher.SeenM()[0].text.find(L"-5 \u548C 10"), std::wstring::npos);
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, FieldId));
    dialog.SetDlgItemText(FieldId, "-5");
    EXPECT_FALSE(dialog.UpdateData());
    ASSERT_TRUE(watcher.WaitForM(2));
    EXPECT_NE(watcher.SeenM()[1].text.find(L"0.5 \u548C 2.5"), std::wstring::npos);
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, OtherFieldId));
    dialog.SetDlgItemText(OtherFieldId, "2.5");
    EXPECT_TRUE(dialog.UpdateData());
    number = 99;
    EXPECT_TRUE(dialog.UpdateData(FALSE)) << "only what the user gives is checked";
}

TEST(Ddv, MaxCharsCountsBytesAndLimitsTheField)
{
    ExchangingCL dialog;
    ASSERT_TRUE(dialog.ShowM());
    CString text;
    dialog.exchange = [&](CDataExchange* data) {
        DDX_Text(data, FieldId, text);
        DDV_MaxChars(data, text, 5);
    };
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.SendDlgItemMessage(FieldId, EM_GETLIMITTEXT), 5);
    const MessageBoxWatcher watcher;
    dialog.SetDlgItemText(FieldId, L"\u4E2D\u6587\u4E2D"); // six bytes
    EXPECT_FALSE(dialog.UpdateData());
    EXPECT_TRUE(watcher.WaitForM(1));
    dialog.SetDlgItemText(FieldId, L"\u4E2D\u6587x");
    EXPECT_TRUE(dialog.UpdateData());
}

namespace {

class ModalExchangingCL : public ExchangingCL
{
public:
    BOOL OnInitDialog() override
    {
        const BOOL result = ExchangingCL::OnInitDialog();
        shown = TextM();
        SetDlgItemText(FieldId, "no number");
        OnOK();
        wasKept = ContinueModal() != FALSE;
        SetDlgItemText(FieldId, "8");
        OnOK();
        return result;
    }
    std::string shown;
    bool wasKept = false;
};

} // namespace

TEST(Ddx, ModalDialogShowsItsMembersAndEndsOnlyWithGoodOnes)
{
    OwnerCL owner;
    const TemplateCL shape;
    ModalExchangingCL dialog;
    int value = 7;
    dialog.exchange = [&](CDataExchange* data) { DDX_Text(data, FieldId, value); };
    dialog.InitModalIndirect(shape, &owner);
    const MessageBoxWatcher watcher;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.shown, "7");
    EXPECT_TRUE(dialog.wasKept);
    EXPECT_EQ(value, 8);
}
