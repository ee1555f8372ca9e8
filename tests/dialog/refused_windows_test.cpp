// Windows of controls that the system, or a hook of the application, refuses to create.
#include "dialog/every_kind_sections.h"
#include "support/handles.h"
#include "support/shown_dialog.h"
#include "support/small_picture.h"

using namespace testing_support;

namespace {

// Refuses one of the windows that this thread creates while it lives; the first is 0.
class RefusedWindowCL
{
public:
    enum How
    {
        AtOnce,   // CreateWindowExW gives nothing, as when there are no more windows.
        NcCreate, // Its own procedure says no to WM_NCCREATE
        Create    // or to WM_CREATE.
    };
    RefusedWindowCL(How how, int number)
        : hook_(::SetWindowsHookExW(WH_CBT, &seeM, nullptr, ::GetCurrentThreadId()))
    {
        how_ = how;
        left_ = number;
        original_ = nullptr;
    }
    RefusedWindowCL(const RefusedWindowCL&) = delete;
    RefusedWindowCL& operator=(const RefusedWindowCL&) = delete;
    ~RefusedWindowCL() { ::UnhookWindowsHookEx(hook_); }

    bool HasRefusedM() const { return left_ < 0; }

private:
    static LRESULT CALLBACK seeM(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND && left_-- == 0) {
            if (how_ == AtOnce) {
                return 1;
            }
            const auto window = reinterpret_cast<HWND>(wParam);
            original_ = reinterpret_cast<WNDPROC>(
                ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&refuseM)));
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static LRESULT CALLBACK refuseM(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_NCCREATE && how_ == NcCreate) {
            return FALSE;
        }
        if (message == WM_CREATE && how_ == Create) {
            return -1;
        }
        return ::CallWindowProcW(original_, window, message, wParam, lParam);
    }

    static inline How how_ { AtOnce };
    static inline int left_ { 0 };
    static inline WNDPROC original_ { nullptr };
    HHOOK hook_;
};

class EveryKindCL : private SmallPictureCL, public ShownDialogCL
{
public:
    EveryKindCL()
        : SmallPictureCL(0x0000FF, 20, 20)
        , ShownDialogCL(sectionsOfEveryKind(path(), "text"))
    {
        SetScaleM(100);
        SetSelectRefusedM(true);
        SetPictureKeyboardM(true);
        for (int id = 11; id <= 38; ++id) {
            SetAccessibleNameM(id, L"name");
        }
    }
    void RebuildM()
    {
        DestroyM();
        InitDlgM(this, 1);
        ShowWindow(SW_SHOW);
    }
    // What an application may do with a dialog, whatever windows it has.
    void UseM()
    {
        const auto saved = ValuesM().AllM();
        ValuesM().SetAllM(saved);
        for (int id = 11; id <= 38; ++id) {
            int kind = 0;
            CWnd* const control = GetContrlPtrM(id, &kind);
            if (control != nullptr && control->m_hWnd != nullptr) {
                EXPECT_TRUE(::IsWindow(control->m_hWnd)) << id;
                EXPECT_EQ(CWnd::FromHandlePermanent(control->m_hWnd), control) << id;
                EXPECT_EQ(::GetDlgCtrlID(control->m_hWnd), id);
            }
            ShowContrlM(id, 1);
            ValuesM().EnableM(id, true);
            ValuesM().FocusM(id);
            AddItemM(id, 0, "line");
            ValuesM().AddLineM(id, L"line", 1);
            ValuesM().SetTextM(id, L"5");
            ValuesM().SetIntM(id, 5);
            ValuesM().SetCaptionM(id, L"caption");
            ShowFrameM(id, 0);
            RepaintM(id);
        }
        ShowAllCtrlM(1);
        EnableAllCtrlM(1);
        ResizeM(500, 300);
        SetScaleM(150);
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        SetScaleM(100);
        CheckValueLegalM();
        PumpPending();
    }
};

} // namespace

TEST(RefusedWindows, TheOthersAreThereAndGoCleanly)
{
    EveryKindCL dialog;
    const MessageBoxWatcher watcher;
    dialog.RebuildM();
    const std::string stack = dialog.StackM();
    dialog.DestroyM();
    const int windows = LiveWindowsM();
    for (const auto how : { RefusedWindowCL::AtOnce, RefusedWindowCL::NcCreate, RefusedWindowCL::Create }) {
        int refused = how; // Each window in one of the ways.
        for (bool isRefused = true; isRefused && !testing::Test::HasFailure(); refused += 3) {
            SCOPED_TRACE(std::to_string(how) + " " + std::to_string(refused));
            {
                const RefusedWindowCL refusing(how, refused);
                dialog.RebuildM();
                isRefused = refusing.HasRefusedM();
            }
            // Those of the kind behind it are not created either, all others are.
            EXPECT_GE(childrenOf(dialog.m_hWnd), 18);
            if (refused % 12 == how) {
                dialog.UseM();
            }
            dialog.DestroyM();
            EXPECT_EQ(childrenOf(dialog.m_hWnd), 0);
            EXPECT_EQ(LiveWindowsM(), windows);
        }
        EXPECT_GT(refused, 25);
    }
    dialog.RebuildM();
    EXPECT_EQ(dialog.StackM(), stack);
    dialog.UseM();
}

TEST(RefusedWindows, ADialogWithoutItsWindowCanBeMadeLater)
{
    const DescriptionFileCL file(sectionsOfEveryKind("none.bmp", "text"));
    for (const auto how : { RefusedWindowCL::AtOnce, RefusedWindowCL::NcCreate, RefusedWindowCL::Create }) {
        DuBasicDialogCL dialog;
        dialog.SetConfigFileM(file.path());
        {
            const RefusedWindowCL refusing(how, 0);
            EXPECT_EQ(dialog.CreateM(), 0);
        }
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_EQ(dialog.ShowAllCtrlM(1), 1);
        EXPECT_EQ(dialog.CreateM(), 1);
        EXPECT_GT(childrenOf(dialog.m_hWnd), 20);
    }
}
