// The system has no more GDI objects or device contexts.
#include "dialog/every_kind_sections.h"
#include "support/failing_gdi.h"
#include "support/shown_dialog.h"
#include "support/small_picture.h"

using namespace testing_support;

namespace {

constexpr int Tables[] = { 20, 24 }; // A press on these waits for what the mouse does next.

// One control of every kind.
class EveryKindCL : private SmallPictureCL, public ShownDialogCL
{
public:
    EveryKindCL()
        : SmallPictureCL(0x0000FF, 20, 20)
        , ShownDialogCL(sectionsOfEveryKind(path(), "text"))
    {
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
    void PressM()
    {
        for (const HWND child : ChildrenM()) {
            if (std::find(std::begin(Tables), std::end(Tables), ::GetDlgCtrlID(child)) == std::end(Tables)) {
                ::SendMessageW(child, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
                ::SendMessageW(child, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
            }
        }
        PaintM();
    }
    void RebuildM()
    {
        DestroyM();
        InitDlgM(this, 1);
    }
    // A build, and presses on what stands there.
    void LiveM()
    {
        RebuildM();
        PaintM();
        PressM();
        SetTextColourM(11, RGB(200, 0, 0));
        PaintM();
    }
};

} // namespace

TEST(ExhaustedHandles, EveryRequestOfABuildMayFailOnce)
{
    EveryKindCL dialog;
    dialog.LiveM();
    dialog.LiveM();
    const std::string stack = dialog.StackM();
    const int objects = LiveGdiObjectsM();
    int requests = 0;
    {
        const FailingGdiCL counting(FailingGdiCL::None);
        dialog.LiveM();
        requests = counting.CountM();
    }
    EXPECT_GT(requests, 10);
    for (int number = 1; number <= requests; ++number) {
        SCOPED_TRACE(number);
        {
            const FailingGdiCL failing(FailingGdiCL::One, number);
            dialog.LiveM();
            EXPECT_GE(failing.CountM(), number);
        }
        dialog.PaintM();
    }
    dialog.LiveM();
    EXPECT_EQ(dialog.StackM(), stack);
    EXPECT_EQ(LiveGdiObjectsM(), objects);
}

TEST(ExhaustedHandles, FromAnyRequestOnAllMayFail)
{
    EveryKindCL dialog;
    dialog.LiveM();
    dialog.LiveM();
    const std::string stack = dialog.StackM();
    const int objects = LiveGdiObjectsM();
    for (int number = 1; number <= 60; ++number) {
        SCOPED_TRACE(number);
        const FailingGdiCL failing(FailingGdiCL::AllSince, number);
        dialog.LiveM();
    }
    dialog.LiveM();
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
