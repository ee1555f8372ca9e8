// The system has no more GDI objects or device contexts.
#include "dialog/every_kind_sections.h"
#include "support/failing_gdi.h"
#include "support/shown_dialog.h"
#include "support/small_picture.h"

using namespace testing_support;

namespace {

constexpr int Tables[] = { 20, 24 }; // A press on these waits for what the mouse does next.
constexpr int KnobId = 34;
constexpr int AnimationId = 36;

// One control of every kind.
class EveryKindCL : private SmallPictureCL, public ShownDialogCL
{
public:
    EveryKindCL()
        : SmallPictureCL(0x0000FF, 20, 20)
        , ShownDialogCL(sectionsOfEveryKind(path(), "text"))
    {
        for (const int id : { 37, 38 }) {
            SetPainterM(
                id, [](CDC& dc, const CSize& size) { dc.FillSolidRect(2, 2, size.cx - 4, 6, 0x0080FF); });
        }
    }

    std::vector<HWND> ChildrenM() const
    {
        std::vector<HWND> children;
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            children.push_back(child);
        }
        return children;
    }
    void PaintM()
    {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    // The controls that two pictures of the dialog show differently.
    std::string WhereM(const Pixels& one, const Pixels& other) const
    {
        std::string where;
        for (const HWND child : ChildrenM()) {
            RECT rect {};
            ::GetWindowRect(child, &rect);
            ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
            bool isSame = true;
            for (int x = rect.left; x < rect.right; ++x) {
                for (int y = rect.top; y < rect.bottom; ++y) {
                    isSame = isSame && one.AtM(x, y) == other.AtM(x, y);
                }
            }
            where += isSame ? "" : std::to_string(::GetDlgCtrlID(child)) + " ";
        }
        return where;
    }
    // As they look while the mouse is held on them; it does nothing to them.
    void PressM()
    {
        for (const HWND child : ChildrenM()) {
            if (std::find(std::begin(Tables), std::end(Tables), ::GetDlgCtrlID(child)) == std::end(Tables)) {
                ::SendMessageW(child, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
                ::UpdateWindow(child);
                ::SendMessageW(child, WM_CANCELMODE, 0, 0);
                ::ReleaseCapture();
            }
        }
        ::SetFocus(ItemM(31));
    }
    // The file says that the dialog is not shown: a build hides it.
    void RebuildM()
    {
        DestroyM();
        InitDlgM(this, 1);
        ShowWindow(SW_SHOW);
    }
    // All that is painted of what stands there: at first, in other states, turned, larger.
    void LiveM()
    {
        PaintM();
        PressM();
        StandM(26, 45.0, 0);
        PaintM();
        StandM(20, 0.0, 1);
    }

private:
    void StandM(int width, double angle, int enable)
    {
        SetTextColourM(11, enable != 0 ? RGB(200, 0, 0) : RGB(0, 200, 0));
        ValuesM().SetIntM(15, 2); // Its arrows were pressed, and so were lists and pictures.
        ValuesM().SetIndexM(17, 0);
        ValuesM().SetIntM(33, 7);
        ValuesM().SetRealM(KnobId, static_cast<float>(angle));
        ShowFrameM(AnimationId, 0);
        RepaintM(37);
        RepaintM(38);
        EnableAllCtrlM(enable);
        for (const int id : { 32, 33, KnobId, AnimationId, 37, 38 }) {
            ::SetWindowPos(
                ItemM(id), nullptr, 0, 0, width, width, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
};

// Each request of what the action does may fail; what is painted then, without or with the action once more,
// looks as it did at first. How many requests there are.
int eachFails(EveryKindCL& dialog, const std::function<void()>& action, bool isRepeated)
{
    action();
    dialog.RebuildM();
    action();
    const std::string stack = dialog.StackM();
    dialog.PaintM();
    const Pixels wanted(dialog.m_hWnd);
    const int objects = LiveGdiObjectsM();
    int requests = 1;
    for (int number = 1; number <= requests && !testing::Test::HasFailure(); ++number) {
        SCOPED_TRACE(number);
        {
            const FailingGdiCL failing(FailingGdiCL::One, number);
            action();
            requests = std::max(requests, failing.CountM());
        }
        if (isRepeated) {
            action();
        }
        dialog.PaintM();
        const Pixels now(dialog.m_hWnd);
        EXPECT_EQ(now.DifferencesM(wanted), 0) << dialog.WhereM(now, wanted);
        EXPECT_EQ(dialog.StackM(), stack);
        EXPECT_EQ(LiveGdiObjectsM(), objects);
    }
    return requests;
}

} // namespace

TEST(ExhaustedHandles, EveryRequestOfABuildMayFailOnce)
{
    EveryKindCL dialog;
    EXPECT_GT(eachFails(
                  dialog, [&dialog] { dialog.RebuildM(); }, true),
        12);
}

// Steps that grow: at the end of a build, few requests follow.
TEST(ExhaustedHandles, FromAnyRequestOnAllMayFail)
{
    EveryKindCL dialog;
    const auto all = [&dialog] {
        dialog.RebuildM();
        dialog.LiveM();
    };
    all();
    all();
    const std::string stack = dialog.StackM();
    const int objects = LiveGdiObjectsM();
    for (const int number : { 1, 2, 3, 5, 8, 13, 21, 34, 55, 89 }) {
        SCOPED_TRACE(number);
        const FailingGdiCL failing(FailingGdiCL::AllSince, number);
        all();
    }
    all();
    EXPECT_EQ(dialog.StackM(), stack);
    EXPECT_EQ(LiveGdiObjectsM(), objects);
}

// The window system, out of handles itself, asks controls to draw on nothing.
TEST(ExhaustedHandles, NothingIsDrawnOnNoContext)
{
    EveryKindCL dialog;
    for (const HWND child : dialog.ChildrenM()) {
        SCOPED_TRACE(::GetDlgCtrlID(child));
        const auto id = static_cast<UINT>(::GetDlgCtrlID(child));
        for (const UINT action : { ODA_DRAWENTIRE, ODA_SELECT, ODA_FOCUS }) {
            DRAWITEMSTRUCT draw {};
            draw.CtlType = ODT_LISTBOX;
            draw.CtlID = id;
            draw.itemAction = action;
            draw.hwndItem = child;
            draw.rcItem = { 0, 0, 20, 20 };
            ::SendMessageW(dialog.m_hWnd, WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&draw));
        }
        for (UINT message = WM_CTLCOLORMSGBOX; message <= WM_CTLCOLORSTATIC; ++message) {
            ::SendMessageW(dialog.m_hWnd, message, 0, reinterpret_cast<LPARAM>(child));
        }
        ::SendMessageW(child, WM_ERASEBKGND, 0, 0);
        ::SendMessageW(child, WM_PRINTCLIENT, 0, PRF_CLIENT);
        EXPECT_TRUE(::IsWindow(child));
    }
    ::SendMessageW(dialog.m_hWnd, WM_ERASEBKGND, 0, 0);
    EXPECT_TRUE(::IsWindow(dialog.m_hWnd));
}
