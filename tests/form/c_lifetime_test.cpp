// The C interface: opening, modal dialogs, and dialogs that go while something of them is under way.
#include "form/form_host.h"
#include "form/opened_dialog.h"
#include <stdexcept>

using namespace testing_support;

namespace {

void destroyIn(OpenedDialogCL& opened, int kind)
{
    opened.handler = [&opened, kind](const panelkit_event& event) {
        if (event.kind == kind && !opened.isGone) {
            opened.isGone = true;
            EXPECT_EQ(panelkit_destroy(opened.dialog), PANELKIT_OK);
            int32_t number = 0;
            EXPECT_EQ(panelkit_get_int(opened.dialog, 11, &number), PANELKIT_ERROR_HANDLE);
        }
        return 0;
    };
}

} // namespace

TEST(COpen, TellsWhatIsWrongWithAFile)
{
    panelkit_dialog* dialog = reinterpret_cast<panelkit_dialog*>(7);
    EXPECT_EQ(panelkit_open("no such.dlg", nullptr, &dialog), PANELKIT_ERROR_FILE);
    EXPECT_EQ(dialog, nullptr);
    EXPECT_STREQ(panelkit_last_error(nullptr), "can't read no such.dlg");
    const TempFile empty("hello\n");
    EXPECT_EQ(panelkit_open(empty.path(), nullptr, &dialog), PANELKIT_ERROR_FILE);
    EXPECT_EQ(
        std::string(panelkit_last_error(nullptr)), std::string("no dialog is described in ") + empty.path());
    EXPECT_EQ(panelkit_open(u8"\U0001F600.dlg", nullptr, &dialog), PANELKIT_ERROR_FILE);
    EXPECT_EQ(panelkit_open(std::string(300, 'x').c_str(), nullptr, &dialog), PANELKIT_ERROR_FILE);
    EXPECT_EQ(panelkit_open("", nullptr, &dialog), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(panelkit_open(nullptr, nullptr, &dialog), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(panelkit_open(empty.path(), nullptr, nullptr), PANELKIT_ERROR_ARGUMENT);
    panelkit_options options {}; // Its size is missing.
    EXPECT_EQ(panelkit_open(empty.path(), &options, &dialog), PANELKIT_ERROR_ARGUMENT);
    options.size = sizeof options;
    options.owner = reinterpret_cast<void*>(7); // No window.
    EXPECT_EQ(panelkit_open(empty.path(), &options, &dialog), PANELKIT_ERROR_ARGUMENT);
}

TEST(COpen, StatusesAndVersionHaveTexts)
{
    for (int status = 0; status <= PANELKIT_ERROR_INTERNAL; ++status) {
        EXPECT_STRNE(panelkit_status_text(status), panelkit_status_text(-1)) << status;
    }
    EXPECT_STREQ(panelkit_status_text(PANELKIT_ERROR_INTERNAL + 1), panelkit_status_text(-1));
    EXPECT_TRUE(std::isdigit(*panelkit_version()));
}

TEST(COpen, DiagnosticsAreToldInUtf8)
{
    const DescriptionFileCL file(
        "[版本号]\n1.0\n[对话框]\n0\n100 80\n420 260\n1\n参数设置\n14 2 4\n笔.bmp\n");
    std::string told;
    panelkit_options options {};
    options.size = sizeof options;
    options.diagnostics = [](const panelkit_diagnostic* what, void* user) {
        *static_cast<std::string*>(user) += std::string(what->code) + " "
            + (what->size == sizeof *what ? "" : "size ") + what->message + "\n";
        throw std::runtime_error("must stay inside");
    };
    options.diagnostics_user = &told;
    panelkit_dialog* dialog = nullptr;
    ASSERT_EQ(panelkit_open(file.path(), &options, &dialog), PANELKIT_OK);
    EXPECT_EQ(told.find("missing-file "), 0u) << told;
    EXPECT_NE(told.find(u8"笔.bmp"), std::string::npos) << told;
    EXPECT_EQ(panelkit_destroy(dialog), PANELKIT_OK);
}

TEST(COpen, ADialogIsHiddenAndFocusStaysUntilItIsShown)
{
    PlainWindow before;
    EXPECT_TRUE(ActivateM(before.HandleM()));
    OpenedDialogCL opened;
    EXPECT_FALSE(PumpUntil([&] { return ::IsWindowVisible(opened.WindowM()) != FALSE; }, 300));
    EXPECT_EQ(::GetActiveWindow(), before.HandleM());
    opened.ShowM();
    EXPECT_TRUE(::IsWindowVisible(opened.WindowM()));
    EXPECT_EQ(::GetFocus(), opened.ItemM(11)); // The first of the Tab order.
    EXPECT_EQ(panelkit_show(opened.dialog), PANELKIT_ERROR_STATE);
}

TEST(CRun, IsModalAndValuesOutliveIt)
{
    PlainWindow owner;
    OpenedDialogCL opened("", owner.HandleM());
    Script script([&] { panelkit_close(opened.dialog, -7); });
    script.WaitM([&] { return ::GetForegroundWindow() == opened.WindowM(); }, "the dialog").DoM([&] {
        EXPECT_FALSE(::IsWindowEnabled(owner.HandleM()));
        int32_t result = 0;
        EXPECT_EQ(panelkit_run(opened.dialog, &result), PANELKIT_ERROR_STATE);
        ChordM(VK_CONTROL, 'A');
        TypeM(L"37");
        KeyM(VK_RETURN);
    });
    int32_t result = 0;
    EXPECT_EQ(panelkit_run(opened.dialog, &result), PANELKIT_OK);
    EXPECT_EQ(result, 1);
    EXPECT_TRUE(::IsWindowEnabled(owner.HandleM()));
    EXPECT_TRUE(PumpUntil([&] { return ::GetActiveWindow() == owner.HandleM(); }));
    int32_t value = 0;
    EXPECT_EQ(panelkit_get_int(opened.dialog, 11, &value), PANELKIT_OK);
    EXPECT_EQ(value, 37);
}

TEST(CRun, EndsWhenTheOwnerGoes)
{
    auto owner = std::make_unique<PlainWindow>();
    OpenedDialogCL opened("", owner->HandleM());
    Script script;
    script.WaitM([&] { return ::IsWindowVisible(opened.WindowM()) != FALSE; }, "the dialog").DoM([&] {
        owner.reset();
    });
    int32_t result = 0;
    EXPECT_EQ(panelkit_run(opened.dialog, &result), PANELKIT_OK);
    EXPECT_EQ(result, -1);
    EXPECT_EQ(opened.StoryM().substr(0, 5), "focus");
    EXPECT_EQ(panelkit_get_int(opened.dialog, 11, &result), PANELKIT_ERROR_STATE);
    EXPECT_STREQ(panelkit_last_error(opened.dialog), "the dialog's window is gone");
    EXPECT_EQ(panelkit_show(opened.dialog), PANELKIT_ERROR_STATE);
}

TEST(CRun, EndsWhenTheProgramQuits)
{
    OpenedDialogCL opened;
    Script script;
    script.WaitM([&] { return ::IsWindowVisible(opened.WindowM()) != FALSE; }, "the dialog").DoM([] {
        ::PostQuitMessage(3);
    });
    int32_t result = 0;
    EXPECT_EQ(panelkit_run(opened.dialog, &result), PANELKIT_OK);
    EXPECT_EQ(result, -1);
    int32_t quit = 0;
    EXPECT_EQ(panelkit_process_pending(&quit), PANELKIT_OK);
    EXPECT_EQ(quit, 1); // The loop outside hears of it too.
    MSG message;
    EXPECT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3u);
    EXPECT_EQ(panelkit_process_pending(&quit), PANELKIT_OK);
    EXPECT_EQ(quit, 0);
}

TEST(CRun, TheLoopEndsWithTheLastDialog)
{
    OpenedDialogCL first;
    OpenedDialogCL second;
    int ticks = 0;
    for (OpenedDialogCL* opened : { &first, &second }) {
        opened->handler = [opened, &ticks](const panelkit_event& event) {
            if (event.kind == PANELKIT_EVENT_TIMER && ++ticks > 0) {
                panelkit_close(opened->dialog, ticks);
            }
            return 0;
        };
        EXPECT_EQ(panelkit_show(opened->dialog), PANELKIT_OK);
        EXPECT_EQ(panelkit_start_timer(opened->dialog, 1, ticks == 0 ? 20 : 60), PANELKIT_OK);
    }
    EXPECT_EQ(panelkit_run_loop(), PANELKIT_OK);
    for (OpenedDialogCL* opened : { &first, &second }) {
        int32_t open = 1;
        EXPECT_EQ(panelkit_is_open(opened->dialog, &open), PANELKIT_OK);
        EXPECT_EQ(open, 0);
    }
    EXPECT_EQ(panelkit_run_loop(), PANELKIT_OK); // Nothing is open: at once.
}

// The control that notifies is in the middle of its own message, and a pressed mouse button ends there.
TEST(CDestroy, IsSafeInEveryEvent)
{
    struct CaseCL
    {
        int kind;
        int start;
        std::function<void(OpenedDialogCL&)> act;
    };
    const auto click
        = [](int id) { return [id](OpenedDialogCL& opened) { ClickM(opened.ItemM(id), 5, 5); }; };
    const auto press = [](WORD key) { return [key](OpenedDialogCL&) { KeyM(key); }; };
    const CaseCL cases[] = { { PANELKIT_EVENT_CLICK, 43, click(43) }, { PANELKIT_EVENT_CLICK, 43, click(42) },
        { PANELKIT_EVENT_FOCUS, 43, click(33) }, { PANELKIT_EVENT_SELECT, 43, click(17) },
        { PANELKIT_EVENT_SELECT, 25, press(VK_DOWN) },
        { PANELKIT_EVENT_SELECT, 46,
            [](OpenedDialogCL&) {
                KeyM(VK_RIGHT); // Expands.
                KeyM(VK_DOWN);
            } },
        { PANELKIT_EVENT_CHANGE, 13, press('X') }, { PANELKIT_EVENT_CHANGE, 16, press('X') },
        { PANELKIT_EVENT_LEAVE, 13, press(VK_TAB) }, { PANELKIT_EVENT_LEAVE, 14, press(VK_TAB) },
        { PANELKIT_EVENT_LEAVE, 16, click(43) }, { PANELKIT_EVENT_CLOSING, 43, press(VK_ESCAPE) },
        { PANELKIT_EVENT_CLOSED, 43, press(VK_ESCAPE) } };
    for (const CaseCL& tried : cases) {
        OpenedDialogCL opened;
        opened.ShowM();
        EXPECT_TRUE(FocusM(opened.ItemM(tried.start)));
        opened.StoryM();
        const HWND window = opened.WindowM();
        destroyIn(opened, tried.kind);
        tried.act(opened);
        EXPECT_TRUE(PumpUntil([window] { return !::IsWindow(window); }))
            << eventName(tried.kind) << " from " << tried.start;
        EXPECT_TRUE(opened.isGone);
    }
}

TEST(CDestroy, IsSafeInAModalDialogAndWhileABadValueIsTold)
{
    for (const bool isTold : { false, true }) {
        OpenedDialogCL opened;
        const HWND window = opened.WindowM();
        destroyIn(opened, isTold ? PANELKIT_EVENT_LEAVE : PANELKIT_EVENT_CLICK);
        MessageBoxWatcher watcher;
        Script script([&] { panelkit_close(opened.dialog, -7); });
        script.WaitM([&] { return ::GetForegroundWindow() == window; }, "the dialog")
            .DoM([&] {
                if (isTold) {
                    ChordM(VK_CONTROL, 'A');
                    TypeM(L"-");
                }
            })
            .DoM([&] { ClickM(opened.ItemM(43), 5, 5); });
        int32_t result = 0;
        EXPECT_EQ(panelkit_run(opened.dialog, &result), PANELKIT_OK);
        EXPECT_EQ(result, -1);
        EXPECT_TRUE(opened.isGone);
        EXPECT_FALSE(::IsWindow(window));
        EXPECT_EQ(watcher.SeenM().size(), isTold ? 1u : 0u);
    }
}

TEST(CCallbacks, MayThrowWithoutHarm)
{
    OpenedDialogCL opened;
    opened.ShowM();
    opened.handler
        = [](const panelkit_event& event) -> int { throw std::runtime_error(std::to_string(event.kind)); };
    ClickM(opened.ItemM(43), 5, 5);
    EXPECT_NE(opened.StoryM().find("click 43"), std::string::npos);
    KeyM(VK_ESCAPE);
    EXPECT_NE(opened.StoryM().find("closed 0 0 2"), std::string::npos);
}

TEST(CHost, IsReachedFromTheHandle)
{
    OpenedDialogCL opened;
    DuBasicDialogCL* host = slHostOf(opened.dialog);
    ASSERT_NE(host, nullptr);
    EXPECT_EQ(host->m_hWnd, opened.WindowM());
    EXPECT_EQ(host->SetSingleEditValM(11, 44), 1);
    int32_t value = 0;
    EXPECT_EQ(panelkit_get_int(opened.dialog, 11, &value), PANELKIT_OK);
    EXPECT_EQ(value, 44);
    opened.ShowM();
    host->EndDialog(6);
    EXPECT_EQ(opened.StoryM(), "closed 0 0 6");
    EXPECT_EQ(slHostOf(static_cast<panelkit_dialog*>(nullptr)), nullptr);
}
