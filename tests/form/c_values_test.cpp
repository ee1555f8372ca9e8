// The C interface: values, lines and controls by id, and what it refuses.
#include "form/opened_dialog.h"
#include <map>
#include <thread>

namespace {

class CValues : public testing::Test
{
protected:
    OpenedDialogCL opened_;
    panelkit_dialog* const dialog_ { opened_.dialog };
};

} // namespace

TEST_F(CValues, AreReadAndSetByTheirTypes)
{
    int32_t number = 0;
    EXPECT_EQ(panelkit_get_int(dialog_, 11, &number), PANELKIT_OK);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(panelkit_set_int(dialog_, 11, 42), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_int(dialog_, 11, &number), PANELKIT_OK);
    EXPECT_EQ(number, 42);
    double real = 0;
    EXPECT_EQ(panelkit_set_real(dialog_, 12, 2.25), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_real(dialog_, 12, &real), PANELKIT_OK);
    EXPECT_EQ(real, 2.25);
    EXPECT_EQ(panelkit_set_text(dialog_, 13, u8"笔尖"), PANELKIT_OK);
    EXPECT_EQ(opened_.TextM(13), u8"笔尖");
    int32_t checked = 7;
    EXPECT_EQ(panelkit_get_checked(dialog_, 42, &checked), PANELKIT_OK);
    EXPECT_EQ(checked, 0);
    EXPECT_EQ(panelkit_set_checked(dialog_, 42, 5), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_checked(dialog_, 42, &checked), PANELKIT_OK);
    EXPECT_EQ(checked, 1);
    int32_t group = 0;
    EXPECT_EQ(panelkit_set_checked(dialog_, 33, 1), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_group(dialog_, 31, &group), PANELKIT_OK);
    EXPECT_EQ(group, 33);
    EXPECT_EQ(panelkit_get_group(dialog_, 34, &group), PANELKIT_OK);
    EXPECT_EQ(group, 0); // None is checked.
    EXPECT_EQ(panelkit_get_group(dialog_, 42, &group), PANELKIT_ERROR_NO_VALUE);
    int32_t index = 7;
    EXPECT_EQ(panelkit_get_index(dialog_, 23, &index), PANELKIT_OK);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(panelkit_set_index(dialog_, 23, 2), PANELKIT_OK);
    EXPECT_EQ(opened_.TextM(23), "blue");
    char path[20] = "";
    EXPECT_EQ(panelkit_set_path(dialog_, 46, "top/same\\#2/leaf"), PANELKIT_OK)
        << panelkit_last_error(dialog_);
    EXPECT_EQ(panelkit_get_path(dialog_, 46, path, sizeof path, nullptr), PANELKIT_OK);
    EXPECT_STREQ(path, "top/same\\#2/leaf");
    EXPECT_EQ(opened_.StoryM(), ""); // Nothing of it is the user's doing.
}

TEST_F(CValues, CaptionsAreReadAndSetInAnyLanguage)
{
    char caption[40] = "";
    EXPECT_EQ(panelkit_get_caption(dialog_, 43, caption, sizeof caption, nullptr), PANELKIT_OK);
    EXPECT_STREQ(caption, "press");
    for (const int32_t id : { 31, 41, 43 }) {
        EXPECT_EQ(panelkit_set_caption(dialog_, id, u8"Größe 크기"), PANELKIT_OK) << id;
        EXPECT_EQ(panelkit_get_caption(dialog_, id, caption, sizeof caption, nullptr), PANELKIT_OK) << id;
        EXPECT_STREQ(caption, u8"Größe 크기") << id;
        wchar_t shown[40] = L"";
        ::GetWindowTextW(opened_.ItemM(id), shown, 40);
        EXPECT_STREQ(shown, L"Größe 크기") << id;
    }
    size_t needed = 0;
    EXPECT_EQ(panelkit_get_caption(dialog_, 43, nullptr, 0, &needed), PANELKIT_OK);
    EXPECT_EQ(needed, sizeof u8"Größe 크기");
    EXPECT_EQ(panelkit_set_caption(dialog_, 11, "x"), PANELKIT_ERROR_NO_VALUE);
    EXPECT_EQ(panelkit_get_caption(dialog_, 46, caption, sizeof caption, nullptr), PANELKIT_ERROR_NO_VALUE);
    EXPECT_EQ(panelkit_set_caption(dialog_, 999, "x"), PANELKIT_ERROR_ID);
    EXPECT_EQ(panelkit_set_caption(dialog_, 43, nullptr), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(opened_.TextM(11), "none"); // An integer.
    EXPECT_EQ(opened_.StoryM(), "");
}

TEST_F(CValues, SelectionsTellHowManyThereAre)
{
    const int32_t wanted[] = { 2, 0 };
    int32_t lines[3] = { 7, 7, 7 };
    size_t count = 9;
    EXPECT_EQ(panelkit_set_selection(dialog_, 18, wanted, 2), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_selection(dialog_, 18, nullptr, 0, &count), PANELKIT_OK);
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(panelkit_get_selection(dialog_, 18, lines, 1, &count), PANELKIT_ERROR_BUFFER);
    EXPECT_EQ(lines[1], 7);
    EXPECT_EQ(panelkit_get_selection(dialog_, 18, lines, 3, nullptr), PANELKIT_OK);
    EXPECT_EQ(std::vector<int32_t>(lines, lines + 3), (std::vector<int32_t> { 0, 2, 7 }));
    EXPECT_EQ(panelkit_get_selection(dialog_, 18, nullptr, 3, &count), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(panelkit_set_selection(dialog_, 18, nullptr, 2), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(panelkit_set_selection(dialog_, 18, nullptr, 0), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_selection(dialog_, 18, nullptr, 0, &count), PANELKIT_OK);
    EXPECT_EQ(count, 0u);
}

TEST_F(CValues, RefusedOnesChangeNothing)
{
    int32_t number = 0;
    double real = 0;
    EXPECT_EQ(panelkit_set_int(dialog_, 11, 101), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(panelkit_get_int(dialog_, 11, &number), PANELKIT_OK);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(panelkit_set_real(dialog_, 12, 9.75), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(panelkit_set_text(dialog_, 13, "too long"), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(panelkit_set_text(dialog_, 13, u8"\U0001F600"), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(opened_.TextM(13), "abc");
    EXPECT_EQ(panelkit_set_index(dialog_, 17, 3), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(panelkit_set_path(dialog_, 46, "nowhere"), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(panelkit_set_real(dialog_, 11, 1), PANELKIT_ERROR_NO_VALUE);
    EXPECT_EQ(panelkit_get_real(dialog_, 11, &real), PANELKIT_ERROR_NO_VALUE);
    EXPECT_STREQ(panelkit_last_error(dialog_), panelkit_status_text(PANELKIT_ERROR_NO_VALUE));
    EXPECT_EQ(panelkit_set_text(dialog_, 43, "button"), PANELKIT_ERROR_NO_VALUE);
    EXPECT_EQ(panelkit_get_int(dialog_, 999, &number), PANELKIT_ERROR_ID);
    EXPECT_STREQ(panelkit_last_error(dialog_), "there is no control 999");
    EXPECT_EQ(panelkit_get_int(dialog_, 11, &number), PANELKIT_OK);
    EXPECT_STREQ(panelkit_last_error(dialog_), "");
    ::SetWindowTextW(opened_.ItemM(11), L"-");
    EXPECT_EQ(panelkit_get_int(dialog_, 11, &number), PANELKIT_ERROR_NO_VALUE); // No legal one stands there.
}

TEST_F(CValues, TextsAreCutBetweenCharacters)
{
    EXPECT_EQ(panelkit_set_text(dialog_, 16, u8"笔a尖"), PANELKIT_OK);
    size_t needed = 0;
    EXPECT_EQ(panelkit_get_text(dialog_, 16, nullptr, 0, &needed), PANELKIT_OK);
    EXPECT_EQ(needed, 8u);
    const std::map<size_t, std::string> cuts { { 1, "" }, { 3, "" }, { 4, u8"笔" }, { 5, u8"笔a" },
        { 7, u8"笔a" } };
    for (const auto& [size, cut] : cuts) {
        char buffer[9] = "########";
        EXPECT_EQ(panelkit_get_text(dialog_, 16, buffer, size, &needed), PANELKIT_ERROR_BUFFER);
        EXPECT_EQ(buffer, cut);
        EXPECT_EQ(buffer[size], '#');
        EXPECT_EQ(needed, 8u);
    }
    char buffer[9] = "########";
    EXPECT_EQ(panelkit_get_text(dialog_, 16, buffer, 8, nullptr), PANELKIT_OK);
    EXPECT_STREQ(buffer, u8"笔a尖");
    EXPECT_EQ(panelkit_get_text(dialog_, 16, nullptr, 8, &needed), PANELKIT_ERROR_ARGUMENT);
}

TEST_F(CValues, AreKeptAsTextAndRestored)
{
    std::string all(2000, '\0');
    size_t needed = 0;
    EXPECT_EQ(panelkit_set_text(dialog_, 16, "one\r\ntwo\\n"), PANELKIT_OK);
    EXPECT_EQ(panelkit_save_all(dialog_, all.data(), all.size(), &needed), PANELKIT_OK);
    all.resize(needed - 1);
    EXPECT_NE(all.find("\n16 one\\r\\ntwo\\\\n\n"), std::string::npos) << all;
    EXPECT_EQ(panelkit_set_text(dialog_, 16, "other"), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_int(dialog_, 11, 77), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_checked(dialog_, 41, 0), PANELKIT_OK);
    size_t refused = 9;
    EXPECT_EQ(panelkit_restore_all(dialog_, all.c_str(), &refused), PANELKIT_OK) << refused;
    EXPECT_EQ(refused, 0u);
    std::string again(2000, '\0');
    EXPECT_EQ(panelkit_save_all(dialog_, again.data(), again.size(), &needed), PANELKIT_OK);
    EXPECT_STREQ(again.c_str(), all.c_str());
    // What can't be is counted, the rest is set.
    EXPECT_EQ(
        panelkit_restore_all(dialog_, "11 8\r\n11x\nyz\n999 1\n12 high\n", &refused), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(refused, 4u);
    char saved[10] = "";
    EXPECT_EQ(panelkit_save(dialog_, 11, saved, sizeof saved, nullptr), PANELKIT_OK);
    EXPECT_STREQ(saved, "8");
    EXPECT_EQ(panelkit_restore(dialog_, 18, "0 2"), PANELKIT_OK);
    EXPECT_EQ(panelkit_restore(dialog_, 18, "0 9"), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(panelkit_restore(dialog_, 43, "1"), PANELKIT_ERROR_NO_VALUE);
}

TEST_F(CValues, LinesAreAddedReadAndDeleted)
{
    int32_t count = 0;
    char line[20] = "";
    EXPECT_EQ(panelkit_add_line(dialog_, 17, u8"笔", 4), PANELKIT_OK);
    EXPECT_EQ(panelkit_insert_line(dialog_, 17, 0, "first", 0), PANELKIT_OK);
    EXPECT_EQ(panelkit_line_count(dialog_, 17, &count), PANELKIT_OK);
    EXPECT_EQ(count, 5);
    EXPECT_EQ(panelkit_get_line(dialog_, 17, 4, line, sizeof line, nullptr), PANELKIT_OK);
    EXPECT_STREQ(line, u8"笔");
    EXPECT_EQ(panelkit_get_line(dialog_, 17, 5, line, sizeof line, nullptr), PANELKIT_ERROR_ID);
    EXPECT_EQ(panelkit_delete_line(dialog_, 17, 5), PANELKIT_ERROR_ID);
    EXPECT_EQ(panelkit_delete_line(dialog_, 17, -1), PANELKIT_ERROR_ID);
    EXPECT_EQ(panelkit_delete_line(dialog_, 17, 0), PANELKIT_OK);
    EXPECT_EQ(panelkit_insert_line(dialog_, 17, 6, "far", 0), PANELKIT_ERROR_ID);
    EXPECT_EQ(panelkit_add_line(dialog_, 17, u8"\U0001F600", 0), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(panelkit_clear_lines(dialog_, 17), PANELKIT_OK);
    EXPECT_EQ(panelkit_line_count(dialog_, 17, &count), PANELKIT_OK);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(panelkit_line_count(dialog_, 11, &count), PANELKIT_ERROR_NO_VALUE);
}

TEST_F(CValues, ControlsAreEnumeratedDisabledAndHidden)
{
    size_t count = 0;
    EXPECT_EQ(panelkit_control_count(dialog_, &count), PANELKIT_OK);
    std::map<int, int> kinds;
    panelkit_control control {};
    control.size = sizeof control;
    for (size_t i = 0; i < count; ++i) {
        ASSERT_EQ(panelkit_control_at(dialog_, i, &control), PANELKIT_OK);
        kinds[control.id] = control.kind;
        EXPECT_EQ(control.has_value, control.id == 43 || control.id == 19 ? 0 : 1) << control.id;
    }
    EXPECT_EQ(panelkit_control_at(dialog_, count, &control), PANELKIT_ERROR_ID);
    EXPECT_EQ(kinds.size(), 26u);
    EXPECT_EQ(kinds[11], static_cast<int>(PANELKIT_KIND_SINGLE_EDIT));
    EXPECT_EQ(kinds[43], static_cast<int>(PANELKIT_KIND_STANDARD_BUTTON));
    EXPECT_EQ(kinds[46], static_cast<int>(PANELKIT_KIND_TREE));
    control = {};
    control.size = offsetof(panelkit_control, has_value); // Of an older program.
    control.has_value = 77;
    EXPECT_EQ(panelkit_control_at(dialog_, 0, &control), PANELKIT_OK);
    EXPECT_EQ(control.has_value, 77);
    control.size = 4;
    EXPECT_EQ(panelkit_control_at(dialog_, 0, &control), PANELKIT_ERROR_ARGUMENT);

    int32_t is = 7;
    EXPECT_EQ(panelkit_enable_control(dialog_, 14, 0), PANELKIT_OK);
    EXPECT_EQ(panelkit_is_control_enabled(dialog_, 14, &is), PANELKIT_OK);
    EXPECT_EQ(is, 0);
    EXPECT_EQ(panelkit_show_control(dialog_, 14, 0), PANELKIT_OK);
    EXPECT_EQ(panelkit_is_control_shown(dialog_, 14, &is), PANELKIT_OK);
    EXPECT_EQ(is, 0);
    EXPECT_FALSE(::IsWindowEnabled(opened_.ItemM(1014))); // Its arrows too.
    EXPECT_EQ(panelkit_enable_control(dialog_, 999, 1), PANELKIT_ERROR_ID);
}

TEST_F(CValues, TitleIsReadAndSet)
{
    char title[40] = "";
    EXPECT_EQ(panelkit_get_title(dialog_, title, sizeof title, nullptr), PANELKIT_OK);
    EXPECT_STREQ(title, u8"参数设置");
    EXPECT_EQ(panelkit_set_title(dialog_, u8"\U0001F600 new"), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_title(dialog_, title, sizeof title, nullptr), PANELKIT_OK);
    EXPECT_STREQ(title, u8"\U0001F600 new");
}

// Each function refuses a null handle, a handle of another thread and one that is no longer there.
TEST(CHandles, AreCheckedByEveryFunction)
{
    OpenedDialogCL opened;
    const auto callAll = [](panelkit_dialog* dialog, panelkit_status wanted) {
        int32_t number = 7;
        double real = 7;
        size_t size = 7;
        void* pointer = nullptr;
        panelkit_control control {};
        control.size = sizeof control;
        const panelkit_status got[] = { panelkit_run(dialog, &number), panelkit_show(dialog),
            panelkit_close(dialog, 1), panelkit_is_open(dialog, &number), panelkit_result(dialog, &number),
            panelkit_native_window(dialog, &pointer), panelkit_set_title(dialog, "x"),
            panelkit_get_title(dialog, nullptr, 0, &size), panelkit_set_cancel_id(dialog, 1),
            panelkit_check(dialog, &number), panelkit_control_count(dialog, &size),
            panelkit_control_at(dialog, 0, &control), panelkit_enable_control(dialog, 11, 0),
            panelkit_show_control(dialog, 11, 0), panelkit_focus_control(dialog, 11),
            panelkit_get_caption(dialog, 43, nullptr, 0, &size), panelkit_set_caption(dialog, 43, "x"),
            panelkit_is_control_enabled(dialog, 11, &number), panelkit_is_control_shown(dialog, 11, &number),
            panelkit_get_int(dialog, 11, &number), panelkit_set_int(dialog, 11, 7),
            panelkit_get_real(dialog, 12, &real), panelkit_set_real(dialog, 12, 7),
            panelkit_get_text(dialog, 13, nullptr, 0, &size), panelkit_set_text(dialog, 13, "x"),
            panelkit_get_checked(dialog, 41, &number), panelkit_set_checked(dialog, 41, 0),
            panelkit_get_group(dialog, 31, &number), panelkit_get_index(dialog, 17, &number),
            panelkit_set_index(dialog, 17, 1), panelkit_get_selection(dialog, 18, nullptr, 0, &size),
            panelkit_set_selection(dialog, 18, nullptr, 0), panelkit_get_path(dialog, 46, nullptr, 0, &size),
            panelkit_set_path(dialog, 46, ""), panelkit_save(dialog, 11, nullptr, 0, &size),
            panelkit_restore(dialog, 11, "7"), panelkit_save_all(dialog, nullptr, 0, &size),
            panelkit_restore_all(dialog, "11 7\n", &size), panelkit_line_count(dialog, 17, &number),
            panelkit_get_line(dialog, 17, 0, nullptr, 0, &size), panelkit_add_line(dialog, 17, "x", 0),
            panelkit_insert_line(dialog, 17, 0, "x", 0), panelkit_delete_line(dialog, 17, 0),
            panelkit_clear_lines(dialog, 17), panelkit_start_timer(dialog, 1, 1),
            panelkit_stop_timer(dialog, 1), panelkit_destroy(dialog) };
        int at = 0;
        for (const panelkit_status status : got) {
            EXPECT_EQ(status, wanted) << "call " << at;
            ++at;
        }
        EXPECT_EQ(number, 7);
        EXPECT_EQ(real, 7);
        EXPECT_EQ(size, 7u);
        EXPECT_EQ(pointer, nullptr);
        EXPECT_STREQ(panelkit_last_error(dialog), panelkit_status_text(wanted));
    };
    callAll(nullptr, PANELKIT_ERROR_ARGUMENT);
    std::thread([&] { callAll(opened.dialog, PANELKIT_ERROR_THREAD); }).join();
    int32_t number = 0;
    EXPECT_EQ(panelkit_get_int(opened.dialog, 11, &number), PANELKIT_OK);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(panelkit_destroy(opened.dialog), PANELKIT_OK);
    opened.isGone = true;
    callAll(opened.dialog, PANELKIT_ERROR_HANDLE);
    panelkit_dialog* next = nullptr;
    EXPECT_EQ(panelkit_open(opened.PathM(), nullptr, &next), PANELKIT_OK);
    EXPECT_NE(next, opened.dialog); // Nor does a new one make the old one good again.
    EXPECT_EQ(panelkit_destroy(next), PANELKIT_OK);
}

TEST(CHandles, NullsAreRefusedByEveryFunction)
{
    OpenedDialogCL opened;
    panelkit_dialog* const dialog = opened.dialog;
    const panelkit_status got[] = { panelkit_is_open(dialog, nullptr), panelkit_result(dialog, nullptr),
        panelkit_native_window(dialog, nullptr), panelkit_set_title(dialog, nullptr),
        panelkit_check(dialog, nullptr), panelkit_control_count(dialog, nullptr),
        panelkit_control_at(dialog, 0, nullptr), panelkit_is_control_enabled(dialog, 11, nullptr),
        panelkit_is_control_shown(dialog, 11, nullptr), panelkit_get_int(dialog, 11, nullptr),
        panelkit_get_real(dialog, 12, nullptr), panelkit_set_text(dialog, 13, nullptr),
        panelkit_get_checked(dialog, 41, nullptr), panelkit_get_group(dialog, 31, nullptr),
        panelkit_get_index(dialog, 17, nullptr), panelkit_set_path(dialog, 46, nullptr),
        panelkit_restore(dialog, 11, nullptr), panelkit_restore_all(dialog, nullptr, nullptr),
        panelkit_line_count(dialog, 17, nullptr), panelkit_add_line(dialog, 17, nullptr, 0),
        panelkit_insert_line(dialog, 17, 0, nullptr, 0), panelkit_start_timer(dialog, 1, -1),
        panelkit_translate_message(nullptr, nullptr), panelkit_get_text(dialog, 13, nullptr, 5, nullptr) };
    int at = 0;
    for (const panelkit_status status : got) {
        EXPECT_EQ(status, static_cast<panelkit_status>(PANELKIT_ERROR_ARGUMENT)) << "call " << at;
        ++at;
    }
    EXPECT_EQ(panelkit_process_pending(nullptr), PANELKIT_OK);
}
