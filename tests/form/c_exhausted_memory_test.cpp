// No function of the C interface lets an exception out: each request for memory of each of them fails, alone
// and with the next one.
#include "form/canvas_c.h"
#include "form/opened_dialog.h"
#include "support/import_hooks.h"
#include <functional>
#include <set>

using namespace testing_support;

namespace {

void* (*realMalloc)(std::size_t) = nullptr;
std::size_t failing = 0;   // The request that fails; 0: none.
std::size_t failCount = 1; // So many do from then on.
std::size_t requests = 0;
DWORD failingThread = 0;

void* failingMalloc(std::size_t size)
{
    const bool isOurs = failing > 0 && ::GetCurrentThreadId() == failingThread;
    const bool fails = isOurs && ++requests >= failing && requests - failing < failCount;
    return fails ? nullptr : realMalloc(size);
}

// While it lives, so many requests from that number on fail, where the library takes malloc from the
// system's.
class FailingMallocCL
{
public:
    FailingMallocCL(std::size_t number, std::size_t many)
    {
        failCount = many;
        requests = 0;
        failingThread = ::GetCurrentThreadId();
        failing = number;
    }
    FailingMallocCL(const FailingMallocCL&) = delete;
    FailingMallocCL& operator=(const FailingMallocCL&) = delete;
    ~FailingMallocCL() { failing = 0; }
};

// The functions of the C interface that the library exports.
std::set<std::string> exportedFunctions()
{
    const auto module = reinterpret_cast<std::uintptr_t>(::GetModuleHandleW(L"panelkit.dll"));
    const auto* const head = reinterpret_cast<const IMAGE_NT_HEADERS*>(
        module + reinterpret_cast<const IMAGE_DOS_HEADER*>(module)->e_lfanew);
    const auto* const table = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(
        module + head->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress);
    const auto* const names = reinterpret_cast<const DWORD*>(module + table->AddressOfNames);
    std::set<std::string> found;
    for (DWORD i = 0; i < table->NumberOfNames; ++i) {
        const std::string name = reinterpret_cast<const char*>(module + names[i]);
        if (name.rfind("panelkit_", 0) == 0) {
            found.insert(name);
        }
    }
    return found;
}

class CExhaustedMemory : public testing::Test
{
protected:
    using CallTP = std::function<panelkit_status()>;
    using StepTP = std::function<void()>;

    // A call that finds no memory says so, and all is as before: the next one succeeds. prepare and finish:
    // what comes before and behind each call.
    void expectKept(
        const char* name, const CallTP& call, const StepTP& prepare = nullptr, const StepTP& finish = nullptr)
    {
        SCOPED_TRACE(name);
        called_.insert(name);
        const auto run = [&](std::size_t number, std::size_t many = 1) {
            if (prepare) {
                prepare();
            }
            panelkit_status status = -1;
            {
                const FailingMallocCL memory(number, many);
                EXPECT_NO_THROW(status = call());
            }
            const std::size_t count = requests;
            if (finish) {
                finish();
            }
            EXPECT_NE(panelkit_last_error(nullptr), nullptr);
            return std::pair(status, count);
        };
        EXPECT_EQ(run(SIZE_MAX).first, PANELKIT_OK); // What is made once is made now.
        const std::size_t count = run(SIZE_MAX).second;
        constexpr std::size_t Most = 80;
        for (std::size_t number = 1; number <= count; number += 1 + count / Most) {
            // The request alone, and with that of the exception, which then takes what is kept for it.
            for (const std::size_t many : { 1, 2 }) {
                const panelkit_status status = run(number, many).first;
                EXPECT_TRUE(status == PANELKIT_OK || status == PANELKIT_ERROR_MEMORY)
                    << panelkit_status_text(status) << ", request " << number << " of " << count
                    << ", so many: " << many;
                refusals_ += status == PANELKIT_ERROR_MEMORY ? 1 : 0;
                EXPECT_EQ(run(SIZE_MAX).first, PANELKIT_OK) << "behind request " << number;
            }
            if (HasFailure()) {
                return;
            }
        }
    }

    std::set<std::string> called_;
    int refusals_ { 0 };

private:
    ImportHooksCL hooks_ {
        { { "malloc", reinterpret_cast<void*>(&failingMalloc), reinterpret_cast<void**>(&realMalloc) } }
    };
};

} // namespace

TEST_F(CExhaustedMemory, NoFunctionLetsAnExceptionOut)
{
    OpenedDialogCL opened;
    panelkit_dialog* const dialog = opened.dialog;
    char text[2000] = "";
    int32_t number = 0;
    double real = 0;
    size_t count = 0;
    void* pointer = nullptr;
    const size_t size = sizeof text;

    const auto gives
        = [](const char* given) { return given != nullptr ? PANELKIT_OK : PANELKIT_ERROR_MEMORY; };
    expectKept("panelkit_version", [&] { return gives(panelkit_version()); });
    expectKept("panelkit_status_text", [&] { return gives(panelkit_status_text(PANELKIT_ERROR_ID)); });
    expectKept("panelkit_last_error", [&] { return gives(panelkit_last_error(dialog)); });

    // Dialogs that come and go.
    panelkit_dialog* other = nullptr;
    const auto open = [&] {
        panelkit_options options {};
        options.size = sizeof options;
        options.language = "en";
        other = dialog;
        return panelkit_open(opened.PathM(), &options, &other);
    };
    const auto destroy = [&] {
        EXPECT_NE(other, dialog);
        if (other != nullptr) {
            panelkit_destroy(other);
        }
        other = nullptr;
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) { }
    };
    const auto opens = [&] { EXPECT_EQ(open(), PANELKIT_OK); };
    // Ended by the user, or at last by the program.
    const auto opensAndEnds = [&] {
        opens();
        EXPECT_EQ(panelkit_native_window(other, &pointer), PANELKIT_OK);
        ::PostMessageW(static_cast<HWND>(pointer), WM_CLOSE, 0, 0);
        ::PostQuitMessage(0);
    };
    const auto showsAndEnds = [&] {
        opensAndEnds();
        EXPECT_EQ(panelkit_show(other), PANELKIT_OK);
    };
    size_t controls = 0;
    EXPECT_EQ(panelkit_control_count(dialog, &controls), PANELKIT_OK);
    expectKept("panelkit_open", open, nullptr, [&] {
        if (other != nullptr) { // With all that belongs to it.
            EXPECT_EQ(panelkit_control_count(other, &count), PANELKIT_OK);
            EXPECT_EQ(count, controls);
        }
        destroy();
    });
    expectKept(
        "panelkit_run", [&] { return panelkit_run(other, &number); }, opensAndEnds, destroy);
    expectKept(
        "panelkit_show", [&] { return panelkit_show(other); }, opens, destroy);
    expectKept(
        "panelkit_close", [&] { return panelkit_close(other, 3); }, showsAndEnds, destroy);
    expectKept(
        "panelkit_run_loop", [&] { return panelkit_run_loop(); }, showsAndEnds, destroy);
    expectKept(
        "panelkit_process_pending", [&] { return panelkit_process_pending(&number); }, showsAndEnds, destroy);
    expectKept(
        "panelkit_destroy", [&] { return panelkit_destroy(other); }, opens,
        [&] {
            other = nullptr;
            destroy();
        });

    // The dialog itself.
    MSG message {};
    message.hwnd = opened.ItemM(11);
    message.message = WM_KEYDOWN;
    message.wParam = VK_TAB;
    expectKept("panelkit_translate_message", [&] { return panelkit_translate_message(&message, &number); });
    expectKept("panelkit_is_open", [&] { return panelkit_is_open(dialog, &number); });
    expectKept("panelkit_result", [&] { return panelkit_result(dialog, &number); });
    expectKept("panelkit_native_window", [&] { return panelkit_native_window(dialog, &pointer); });
    expectKept("panelkit_set_title",
        [&] { return panelkit_set_title(dialog, u8"标题, long enough for memory of its own"); });
    expectKept("panelkit_get_title", [&] { return panelkit_get_title(dialog, text, size, &count); });
    expectKept("panelkit_set_cancel_id", [&] { return panelkit_set_cancel_id(dialog, 43); });
    expectKept("panelkit_check", [&] { return panelkit_check(dialog, &number); });
    expectKept("panelkit_set_select_refused", [&] { return panelkit_set_select_refused(dialog, 1); });
    expectKept("panelkit_set_message_owner", [&] { return panelkit_set_message_owner(dialog, 1); });
    expectKept(
        "panelkit_set_scale", [&] { return panelkit_set_scale(dialog, number = number == 150 ? 100 : 150); });
    expectKept("panelkit_get_scale", [&] { return panelkit_get_scale(dialog, &number); });
    expectKept("panelkit_use_picture_keyboard", [&] { return panelkit_use_picture_keyboard(dialog, 1); });
    expectKept("panelkit_start_timer", [&] { return panelkit_start_timer(dialog, 5, 100000); });
    expectKept(
        "panelkit_stop_timer", [&] { return panelkit_stop_timer(dialog, 5); },
        [&] { panelkit_start_timer(dialog, 5, 100000); });
    expectKept("panelkit_set_message_text", [&] {
        return panelkit_set_message_text(
            PANELKIT_MESSAGE_INT_TOO_SMALL, u8"太小, and long enough for memory");
    });
    expectKept("panelkit_get_message_text",
        [&] { return panelkit_get_message_text(PANELKIT_MESSAGE_INT_TOO_SMALL, text, size, &count); });
    panelkit_set_message_text(PANELKIT_MESSAGE_INT_TOO_SMALL, nullptr);

    // Its controls.
    panelkit_control control {};
    control.size = sizeof control;
    expectKept("panelkit_control_count", [&] { return panelkit_control_count(dialog, &count); });
    expectKept("panelkit_control_at", [&] { return panelkit_control_at(dialog, 3, &control); });
    expectKept("panelkit_enable_control", [&] { return panelkit_enable_control(dialog, 11, 1); });
    expectKept("panelkit_show_control", [&] { return panelkit_show_control(dialog, 11, 1); });
    expectKept(
        "panelkit_is_control_enabled", [&] { return panelkit_is_control_enabled(dialog, 11, &number); });
    expectKept("panelkit_is_control_shown", [&] { return panelkit_is_control_shown(dialog, 11, &number); });
    expectKept("panelkit_get_caption", [&] { return panelkit_get_caption(dialog, 43, text, size, &count); });
    expectKept("panelkit_set_caption",
        [&] { return panelkit_set_caption(dialog, 43, u8"按下, and long enough for memory"); });
    expectKept("panelkit_set_text_colour",
        [&] { return panelkit_set_text_colour(dialog, 11, number = 0xFF - number); });
    expectKept("panelkit_set_accessible_name",
        [&] { return panelkit_set_accessible_name(dialog, 45, u8"旋钮, and long enough for memory"); });

    // Their values.
    const int32_t lines[] = { 0, 2 };
    int32_t found[8] {};
    std::string all;
    expectKept("panelkit_set_int", [&] { return panelkit_set_int(dialog, 11, 42); });
    expectKept("panelkit_get_int", [&] { return panelkit_get_int(dialog, 11, &number); });
    expectKept("panelkit_set_real", [&] { return panelkit_set_real(dialog, 12, 2.25); });
    expectKept("panelkit_get_real", [&] { return panelkit_get_real(dialog, 12, &real); });
    expectKept("panelkit_set_text", [&] { return panelkit_set_text(dialog, 16, u8"笔尖笔尖笔尖"); });
    expectKept("panelkit_get_text", [&] { return panelkit_get_text(dialog, 16, text, size, &count); });
    expectKept("panelkit_set_checked", [&] { return panelkit_set_checked(dialog, 33, 1); });
    expectKept("panelkit_get_checked", [&] { return panelkit_get_checked(dialog, 33, &number); });
    expectKept("panelkit_get_group", [&] { return panelkit_get_group(dialog, 31, &number); });
    expectKept("panelkit_set_index", [&] { return panelkit_set_index(dialog, 23, 2); });
    expectKept("panelkit_get_index", [&] { return panelkit_get_index(dialog, 23, &number); });
    expectKept("panelkit_set_selection", [&] { return panelkit_set_selection(dialog, 18, lines, 2); });
    expectKept(
        "panelkit_get_selection", [&] { return panelkit_get_selection(dialog, 18, found, 8, &count); });
    expectKept("panelkit_set_path", [&] { return panelkit_set_path(dialog, 46, "top/same\\#2/leaf"); });
    expectKept("panelkit_get_path", [&] { return panelkit_get_path(dialog, 46, text, size, &count); });
    expectKept("panelkit_save", [&] { return panelkit_save(dialog, 16, text, size, &count); });
    expectKept("panelkit_restore", [&] { return panelkit_restore(dialog, 16, u8"笔尖笔尖"); });
    expectKept("panelkit_save_all", [&] { return panelkit_save_all(dialog, text, size, &count); });
    all = text;
    expectKept("panelkit_restore_all", [&] { return panelkit_restore_all(dialog, all.c_str(), &count); });
    expectKept("panelkit_line_count", [&] { return panelkit_line_count(dialog, 17, &number); });
    expectKept("panelkit_get_line", [&] { return panelkit_get_line(dialog, 17, 1, text, size, &count); });
    expectKept("panelkit_add_line",
        [&] { return panelkit_add_line(dialog, 17, u8"又一行, and long enough for memory", 7); });
    expectKept("panelkit_insert_line",
        [&] { return panelkit_insert_line(dialog, 17, 0, u8"又一行, and long enough for memory", 7); });
    expectKept(
        "panelkit_delete_line", [&] { return panelkit_delete_line(dialog, 17, 0); },
        [&] { panelkit_add_line(dialog, 17, "one", 0); });
    expectKept(
        "panelkit_clear_lines", [&] { return panelkit_clear_lines(dialog, 17); },
        [&] { panelkit_add_line(dialog, 17, "one", 0); });
    EXPECT_EQ(panelkit_show(dialog), PANELKIT_OK);
    expectKept(
        "panelkit_focus_control", [&] { return panelkit_focus_control(dialog, 12); },
        [&] { panelkit_focus_control(dialog, 11); });

    EXPECT_GT(refusals_, 100);
    std::set<std::string> all_functions = exportedFunctions();
    for (const std::string& name : called_) {
        EXPECT_EQ(all_functions.erase(name), 1U) << name;
    }
    for (const std::string& name : all_functions) {
        EXPECT_TRUE(name.rfind("panelkit_canvas_", 0) == 0 || name == "panelkit_repaint"
            || name == "panelkit_set_painter" || name == "panelkit_show_frame")
            << name << " is not called here";
    }
}

TEST_F(CExhaustedMemory, NoFunctionForPicturesLetsAnExceptionOut)
{
    const SmallPictureCL picture(0xFF0000, 20, 20);
    OpenedDialogCL opened(HeaderSections
        + std::string("[二维绘图控件]\n1\n0\n1 11 20 30 60 40 0 128 255\n"
                      "[特殊动画控件]\n1\n0\n2 12 100 30 20 20 0 0\n[特殊动画控件位图]\n2\n0\n12 ")
        + picture.path() + "\n12 " + picture.path() + "\n");
    panelkit_dialog* const dialog = opened.dialog;
    opened.ShowM();
    std::function<void(panelkit_canvas*)> painter = [this](panelkit_canvas* canvas) {
        int32_t number = 0;
        int32_t other = 0;
        void* pointer = nullptr;
        const int32_t points[] = { 0, 0, 5, 5, 9, 1 };
        const uint32_t ink = 0xFF8040;
        expectKept("panelkit_canvas_size", [&] { return panelkit_canvas_size(canvas, &number, &other); });
        expectKept("panelkit_canvas_frame", [&] { return panelkit_canvas_frame(canvas, &number); });
        expectKept("panelkit_canvas_native", [&] { return panelkit_canvas_native(canvas, &pointer); });
        expectKept("panelkit_canvas_fill", [&] { return panelkit_canvas_fill(canvas, ink); });
        expectKept("panelkit_canvas_line", [&] { return panelkit_canvas_line(canvas, 1, 1, 9, 9, ink, 2); });
        expectKept(
            "panelkit_canvas_polyline", [&] { return panelkit_canvas_polyline(canvas, points, 3, ink, 1); });
        expectKept("panelkit_canvas_rectangle",
            [&] { return panelkit_canvas_rectangle(canvas, 1, 1, 9, 9, ink, 2); });
        expectKept("panelkit_canvas_fill_rectangle",
            [&] { return panelkit_canvas_fill_rectangle(canvas, 1, 1, 9, 9, ink); });
        expectKept(
            "panelkit_canvas_ellipse", [&] { return panelkit_canvas_ellipse(canvas, 1, 1, 9, 9, ink, 2); });
        expectKept("panelkit_canvas_fill_ellipse",
            [&] { return panelkit_canvas_fill_ellipse(canvas, 1, 1, 9, 9, ink); });
        expectKept("panelkit_canvas_text", [&] {
            return panelkit_canvas_text(
                canvas, 1, 1, u8"文本, and long enough for memory", 12, ink, PANELKIT_ALIGN_LEFT);
        });
        expectKept("panelkit_canvas_text_width", [&] {
            return panelkit_canvas_text_width(canvas, u8"文本, and long enough for memory", 12, &number);
        });
    };
    const panelkit_painter paint = [](panelkit_canvas* canvas, void* user) {
        auto& call = *static_cast<std::function<void(panelkit_canvas*)>*>(user);
        std::exchange(call, [](panelkit_canvas*) {})(canvas);
    };
    EXPECT_EQ(panelkit_set_painter(dialog, 11, paint, &painter), PANELKIT_OK);
    ::RedrawWindow(opened.ItemM(11), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(called_.size(), 12U);
    expectKept("panelkit_repaint", [&] { return panelkit_repaint(dialog, 11); });
    expectKept("panelkit_set_painter", [&] { return panelkit_set_painter(dialog, 11, paint, &painter); });
    expectKept(
        "panelkit_show_frame", [&] { return panelkit_show_frame(dialog, 12, 1); },
        [&] { panelkit_show_frame(dialog, 12, 0); });
    EXPECT_GT(refusals_, 5);
    std::set<std::string> canvas = exportedFunctions();
    for (const std::string& name : canvas) {
        EXPECT_TRUE(name.rfind("panelkit_canvas_", 0) != 0 || called_.count(name) > 0) << name;
    }
}
