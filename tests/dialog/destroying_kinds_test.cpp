// Who hears when the window of a control of any kind goes with its dialog.
#include "support/kind_types.h"
#include "support/test_dialog.h"
#include <algorithm>
#include <map>

namespace {

using HeardTP = std::map<HWND, std::string>;

void note(HeardTP* heard, HWND window, UINT message)
{
    if (message == WM_DESTROY || message == WM_NCDESTROY) {
        (*heard)[window] += message == WM_DESTROY ? "goes " : "gone ";
    }
}

LRESULT CALLBACK watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR heard)
{
    note(reinterpret_cast<HeardTP*>(heard), window, message);
    return ::DefSubclassProc(window, message, wParam, lParam);
}

// A control of the application's that notes what it hears.
template <class ControlTP> class HearingCL : public ControlTP
{
public:
    explicit HearingCL(HeardTP* heard)
        : heard_(heard)
    {
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        note(heard_, this->m_hWnd, message);
        return ControlTP::WindowProc(message, wParam, lParam);
    }

private:
    HeardTP* heard_;
};

// A dialog with controls of every kind; nobody has the focus, so that they go with it.
class EveryKindCL : public DuBasicDialogCL
{
public:
    void MakeM()
    {
        SetConfigFileM(PANELKIT_SAMPLES "/every_kind.dlg");
        ASSERT_EQ(CreateM(), 1);
        ::SetFocus(nullptr);
        for (HWND at = ::GetWindow(m_hWnd, GW_CHILD); at != nullptr; at = ::GetWindow(at, GW_HWNDNEXT)) {
            controls.push_back(at);
        }
        ASSERT_GT(controls.size(), std::tuple_size_v<KindTable>);
    }
    std::vector<HWND> controls;
    int found = -1; // How many of them had an object when all had gone.

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NCDESTROY) {
            found = static_cast<int>(std::count_if(controls.begin(), controls.end(),
                [](HWND control) { return CWnd::FromHandlePermanent(control) != nullptr; }));
        }
        return DuBasicDialogCL::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST(DestroyingEveryKind, WhoWatchesAControlsWindowHearsItsEndAndItsObjectHasNoneThen)
{
    EveryKindCL dialog;
    dialog.MakeM();
    HeardTP heard;
    HeardTP expected;
    for (const HWND control : dialog.controls) {
        expected[control] = "goes gone ";
        ASSERT_TRUE(::SetWindowSubclass(control, &watch, 1, reinterpret_cast<DWORD_PTR>(&heard)));
    }
    dialog.DestroyWindow();
    EXPECT_EQ(heard, expected);
    EXPECT_EQ(dialog.found, 0);
}

template <class RowTP> class DestroyingKind : public testing::Test
{
};
TYPED_TEST_SUITE(DestroyingKind, EveryRowTP, KindNamesCL);

TYPED_TEST(DestroyingKind, AControlOfTheApplicationHearsItsEndOnce)
{
    using ControlTP = typename TypeParam::Controls::ControlTP;
    HeardTP heard;
    EveryKindCL dialog;
    dialog.template SetFactoryM<ControlTP>(
        [&heard](int) { return std::make_unique<HearingCL<ControlTP>>(&heard); });
    dialog.MakeM();
    dialog.DestroyWindow();
    EXPECT_FALSE(heard.empty());
    for (const auto& [window, told] : heard) {
        EXPECT_EQ(told, "goes gone ");
        EXPECT_EQ(std::count(dialog.controls.begin(), dialog.controls.end(), window), 1);
    }
}
