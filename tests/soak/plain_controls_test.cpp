// What the system's own controls do when the window that they tell something destroys them meanwhile: here
// with plain windows alone. Those that go on with what they have freed are left out of ClosingTest.
#include "soak/soak_numbers.h"
#include <commctrl.h>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

enum UserStep
{
    JustPaint,
    Press,
    Type,
    Select,
    Go
};

struct PlainCaseCL
{
    const char* name;
    const wchar_t* control;
    DWORD style;
    UserStep step;
    UINT message; // At the first of these in that step that has the code, if one is given, the control goes.
    UINT code;
    bool isBorne;
    friend void PrintTo(const PlainCaseCL& one, std::ostream* out) { *out << one.name; }
};

constexpr UINT LbTrackPointMsg = 0x131;
constexpr UINT AnyCode = ~0U;

const PlainCaseCL Cases[] = {
    { "ListSelected", L"ListBox", LBS_NOTIFY, Press, WM_COMMAND, LBN_SELCHANGE, true },
    { "ListEntered", L"ListBox", LBS_NOTIFY, Press, WM_COMMAND, LBN_SETFOCUS, false },
    { "ListEnteredFieldLeft", L"ListBox", LBS_NOTIFY, Press, WM_COMMAND, EN_KILLFOCUS, false },
    { "ListPressed", L"ListBox", LBS_NOTIFY, Press, LbTrackPointMsg, AnyCode, false },
    { "ListPainted", L"ListBox", LBS_NOTIFY, JustPaint, WM_CTLCOLORLISTBOX, AnyCode, true },
    { "ListDrawn", L"ListBox", LBS_OWNERDRAWFIXED, JustPaint, WM_DRAWITEM, AnyCode, true },
    { "ListSelectionPainted", L"ListBox", LBS_NOTIFY, Press, WM_CTLCOLORLISTBOX, AnyCode, false },
    { "ListSelectionDrawn", L"ListBox", LBS_OWNERDRAWFIXED, Press, WM_DRAWITEM, AnyCode, false },
    { "ListMeasured", L"ListBox", LBS_OWNERDRAWFIXED, JustPaint, WM_MEASUREITEM, AnyCode, false },
    { "ListItemGoes", L"ListBox", LBS_OWNERDRAWFIXED, Go, WM_DELETEITEM, AnyCode, false },
    { "EditChanged", L"Edit", 0, Type, WM_COMMAND, EN_CHANGE, true },
    { "EditBeforeItShows", L"Edit", 0, Type, WM_COMMAND, EN_UPDATE, false },
    { "EditPainted", L"Edit", 0, JustPaint, WM_CTLCOLOREDIT, AnyCode, false },
    { "ComboBoxChanged", L"ComboBox", CBS_DROPDOWN, Type, WM_COMMAND, CBN_EDITCHANGE, true },
    { "ComboBoxBeforeItShows", L"ComboBox", CBS_DROPDOWN, Type, WM_COMMAND, CBN_EDITUPDATE, false },
    { "ComboBoxPainted", L"ComboBox", CBS_DROPDOWNLIST, JustPaint, WM_CTLCOLOREDIT, AnyCode, false },
    { "LabelPainted", L"Static", 0, JustPaint, WM_CTLCOLORSTATIC, AnyCode, true },
    { "ButtonPainted", L"Button", 0, JustPaint, WM_CTLCOLORBTN, AnyCode, true },
    { "CheckBoxPainted", L"Button", BS_AUTOCHECKBOX, JustPaint, WM_CTLCOLORSTATIC, AnyCode, true },
    { "GroupBoxPainted", L"Button", BS_GROUPBOX, JustPaint, WM_CTLCOLORSTATIC, AnyCode, true },
    { "TableMade", WC_LISTVIEWW, LVS_REPORT, JustPaint, WM_NOTIFYFORMAT, AnyCode, false },
    { "TableSelected", WC_LISTVIEWW, LVS_REPORT, Select, WM_NOTIFY, LVN_ITEMCHANGED, false },
    { "TreeMade", WC_TREEVIEWW, 0, JustPaint, WM_NOTIFYFORMAT, AnyCode, false },
    { "TreeSelected", WC_TREEVIEWW, 0, Select, WM_NOTIFY, TVN_SELCHANGINGW, false },
};

// In a process of its own, which such a case may end.
class PlainParentCL
{
public:
    [[noreturn]] static void RunM(const PlainCaseCL& wanted)
    {
        ::AddVectoredExceptionHandler(1, &end); // The system passes over what happens in some messages.
        wanted_ = wanted.step == JustPaint ? &wanted : nullptr;
        WNDCLASSW type {};
        type.lpfnWndProc = &procedure;
        type.lpszClassName = L"PlainParent";
        type.hInstance = ::GetModuleHandleW(nullptr);
        ::RegisterClassW(&type);
        ::InitCommonControls();
        window_ = ::CreateWindowExW(0, type.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 50, 50, 300, 300,
            nullptr, nullptr, type.hInstance, nullptr);
        ::SetFocus(make(L"Edit", 0, 200, 9));
        const HWND control = make(wanted.control, wanted.style | WS_VSCROLL, 0, 17);
        for (int line = 0; line < 4; ++line) {
            ::SendMessageW(control, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"a"));
        }
        ::UpdateWindow(control);
        if (wanted.step != JustPaint) {
            wanted_ = &wanted;
            doM(wanted, control);
        }
        if (wanted_ != nullptr) {
            std::_Exit(NeverCame);
        }
        std::_Exit(::HeapValidate(::GetProcessHeap(), 0, nullptr) != FALSE ? Whole : Broken);
    }
    enum End
    {
        Whole = 40, // Exit codes.
        Broken,
        NeverCame
    };

private:
    static HWND make(const wchar_t* control, DWORD style, int x, int id)
    {
        return ::CreateWindowExW(0, control, L"", WS_CHILD | WS_VISIBLE | style, x, 0, 90, 90, window_,
            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }
    static void doM(const PlainCaseCL& wanted, HWND control)
    {
        const HWND typed
            = ::GetWindow(control, GW_CHILD) != nullptr ? ::GetWindow(control, GW_CHILD) : control;
        LVITEMW row {};
        TVINSERTSTRUCTW item {};
        wchar_t text[] = L"a";
        row.pszText = item.item.pszText = text;
        row.mask = LVIF_TEXT;
        item.item.mask = TVIF_TEXT;
        switch (wanted.step) {
        case JustPaint:
            break;
        case Go:
            ::DestroyWindow(control);
            break;
        case Press:
            ::SendMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
            ::SendMessageW(control, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
            break;
        case Type:
            ::SetFocus(typed);
            ::SendMessageW(typed, WM_CHAR, L'5', 1);
            break;
        case Select:
            ::SendMessageW(control, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&row));
            ::SendMessageW(control, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
            ::SetFocus(control);
            ::SendMessageW(control, WM_KEYDOWN, VK_DOWN, 1);
            ::SendMessageW(control, WM_KEYDOWN, VK_DOWN, 1);
            break;
        }
    }
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const UINT code
            = message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam)->code : HIWORD(wParam);
        if (wanted_ != nullptr && message == wanted_->message
            && (wanted_->code == AnyCode || wanted_->code == code)) {
            wanted_ = nullptr;
            while (const HWND child = ::GetWindow(window, GW_CHILD)) {
                ::DestroyWindow(child);
            }
            return 0;
        }
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    static LONG CALLBACK end(EXCEPTION_POINTERS* fault)
    {
        if (fault->ExceptionRecord->ExceptionCode == static_cast<DWORD>(EXCEPTION_ACCESS_VIOLATION)) {
            std::_Exit(Broken);
        }
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static inline const PlainCaseCL* wanted_ { nullptr }; // Null: it has come.
    static inline HWND window_ { nullptr };
};

class PlainControls : public testing::TestWithParam<PlainCaseCL>
{
public:
    PlainControls(const PlainControls&) = delete;
    PlainControls& operator=(const PlainControls&) = delete;

protected:
    PlainControls()
    {
        wchar_t before[200] = L"";
        ::GetEnvironmentVariableW(Debugging, before, 200);
        before_ = before;
        // For the process to come: what is freed is filled, and looked after.
        ::SetEnvironmentVariableW(Debugging, L"-all,warn+heap");
    }
    ~PlainControls() override
    {
        ::SetEnvironmentVariableW(Debugging, before_.empty() ? nullptr : before_.c_str());
    }

private:
    static constexpr const wchar_t* Debugging = L"WINEDEBUG";
    std::wstring before_;
};

// All, or a sample of those that bear it and of those that don't.
std::vector<PlainCaseCL> plainCases()
{
    if (soakNumber("PANELKIT_SOAK_CLOSINGS", 0) > 0) {
        return { std::begin(Cases), std::end(Cases) };
    }
    return { Cases[0], Cases[1] };
}

} // namespace

TEST_P(PlainControls, DestroyedWhileTheyTell)
{
    const PlainCaseCL& one = GetParam();
    const auto endsSo
        = [&one](int code) { return code == (one.isBorne ? PlainParentCL::Whole : PlainParentCL::Broken); };
    EXPECT_EXIT(PlainParentCL::RunM(one), endsSo, "");
}

INSTANTIATE_TEST_SUITE_P(Kinds, PlainControls, testing::ValuesIn(plainCases()),
    [](const testing::TestParamInfo<PlainCaseCL>& one) { return one.param.name; });
